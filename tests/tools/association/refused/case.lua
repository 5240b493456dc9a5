-- An association that the system refuses: each key is told in a box of its own, and the program carries on.
local user = os.getenv("HOME")
make_folder(user)
write_file(user .. "/.local", "a file where the user's data should be")
local icon = work .. "/bad.ico"
write_file(icon, "no icon")
start()
local boxes = {}
on.box = function(text, buttons, icon)
  boxes[#boxes + 1] = text .. "|" .. buttons .. "|" .. icon
  return buttons == "ok" and "ok" or "yes"
end
local function told() local all = table.concat(boxes, "\n") boxes = {} return all end

on.file = function() return icon end
frmsettings.imgicon:click()
frmsettings.Command5:click()
equal(told(), "H20 .sqm|ok|critical\nH18 .sqm|ok|critical\nH18 Tarvelin.exe\\shell\\Open in Tarvelin\\command|ok|critical\n" ..
  "H18 Tarvelin.exe\\DefaultIcon|ok|critical", "each failure, and no report")
equal(exists(user .. "/.config/mimeapps.list"), false, "no default for a type that is not there")
frmsettings.Command6:click()
equal(told(), "", "nothing to take back")

-- the type can be written again, the icon cannot be read
os.remove(user .. "/.local")
frmsettings.Command5:click()
equal(told(), "H20 .sqm|ok|critical\nH18 Tarvelin.exe\\DefaultIcon|ok|critical\nH16\r\n to: .sqm\r\n" ..
  " to: Tarvelin.exe\\shell\\Open in Tarvelin\\command\r\n|ok|information", "what went well is told")
equal(exists(user .. "/.local/share/applications/tarvelin.desktop"), true, "and done")

-- the entry is gone meanwhile, so it cannot be deleted
os.remove(user .. "/.local/share/applications/tarvelin.desktop")
frmsettings.Command6:click()
equal(told(), "H17|yesno|question\nH19 Tarvelin.exe|ok|critical", "an association whose program is not known asks first")
lacks(read_file(user .. "/.config/mimeapps.list"), "x-sqm", "and goes")
