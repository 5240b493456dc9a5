-- The association of mission files: boxes, icon, reading of the registry. The user's folder is the test's own.
local user = os.getenv("HOME")
make_folder(user .. "/.wine")
write_file(user .. "/.wine/system.reg", [[
WINE REGISTRY Version 2

[Software\\Classes\\.abc] 1
@="abcfile"
"Other"="x\"y"

[Software\\Game] 1
"MAIN"="C:\\Games"
]])
start()
local boxes = {}
on.box = function(text, buttons, icon)
  boxes[#boxes + 1] = text .. "|" .. buttons .. "|" .. icon
  return buttons == "ok" and "ok" or "no"
end
local function told() local all = table.concat(boxes, "\n") boxes = {} return all end

equal(proc.CtiKlic(0x80000000, ".abc", ""), "abcfile", "a key's default")
equal(proc.CtiKlic(0x80000000, ".ABC", "other"), "x\"y", "a value")
equal(proc.CtiKlic(0x80000002, "Software\\Game", "MAIN"), "C:\\Games", "of the machine")
equal(told(), "", "no box")
equal(proc.CtiKlic(0x80000000, ".xyz", ""), "", "a missing key")
equal(told(), "H20 .xyz|ok|critical", "is told")
equal(proc.CtiKlic(0x80000002, "Software\\Game", "None"), "", "a missing value")
equal(told(), "H21 Software\\Game|ok|critical", "is told")
equal(proc.CtiKlic(5, "Software\\Game", "MAIN"), "", "no such root")
told()

-- the icon
local filter
on.file = function(asked) filter = asked end
frmsettings.imgicon:click()
equal(filter, "Icons|*.ico", "the filter")
equal(shared.IkonaAsociace, "", "cancelled: nothing")
local icon = string.pack("<I2I2I2", 0, 1, 1) .. string.pack("<BBBBI2I2I4I4", 1, 1, 0, 0, 1, 32, 48, 22) ..
  string.pack("<I4i4i4I2I2I4I4i4i4I4I4", 40, 1, 2, 1, 32, 0, 0, 0, 0, 0, 0) .. "\x30\x20\x10\x80" .. "\0\0\0\0"
write_file(work .. "/my icon.ico", icon)
on.file = function() return work .. "/my icon.ico" end
frmsettings.imgicon:click()
equal(shared.IkonaAsociace, path(work) .. "\\my icon.ico", "the choice")
equal(frmsettings.imgicon.path .. "|" .. frmsettings.imgicon.width .. "x" .. frmsettings.imgicon.height,
  shared.IkonaAsociace .. "|1x1", "is shown")
write_file(work .. "/bad.ico", "no icon")
on.file = function() return work .. "/bad.ico" end
frmsettings.imgicon:click()
equal(shared.IkonaAsociace, path(work) .. "\\bad.ico", "whatever was picked is kept")
equal(frmsettings.imgicon.path, path(work) .. "\\my icon.ico", "one that cannot be shown leaves the picture")
on.file = function() return work .. "/my icon.ico" end
frmsettings.imgicon:click()
on.file = nil
frmsettings.imgicon:click()
equal(shared.IkonaAsociace, path(work) .. "\\my icon.ico", "cancelled: it stays")

-- nothing there to take away
frmsettings.Command6:click()
equal(told(), "", "no association: nothing is done")

frmsettings.Command5:click()
equal(told(), "H20 .sqm|ok|critical\nH16\r\n to: .sqm\r\n to: Tarvelin.exe\\shell\\Open in Tarvelin\\command\r\n" ..
  " to: Tarvelin.exe\\DefaultIcon\r\n|ok|information", "what is told the first time")
local share = user .. "/.local/share"
local entry = read_file(share .. "/applications/tarvelin.desktop")
contains(entry, "[Desktop Entry]\n", "a desktop entry")
contains(entry, "\nMimeType=application/x-sqm;\n", "for the type")
contains(entry, "tarvelin\" %f\n", "which gets the file")
contains(read_file(share .. "/mime/packages/tarvelin-sqm.xml"), "<glob pattern=\"*.sqm\"", "a type for the extension")
contains(read_file(user .. "/.config/mimeapps.list"), "[Default Applications]\napplication/x-sqm=tarvelin.desktop\n", "the default")
contains(read_file(share .. "/icons/hicolor/1x1/mimetypes/application-x-sqm.png"), "\x89PNG\r\n\x1A\n", "the icon of the files")
contains(read_file(share .. "/icons/hicolor/1x1/apps/tarvelin.png"), "IEND", "the icon of the program")

frmsettings.Command5:click()
equal(told(), "H20|yesno|question", "the second time it asks, and no ends it")
on.box = function(text, buttons) boxes[#boxes + 1] = text .. "|" .. buttons return buttons == "ok" and "ok" or "yes" end
proc.Asociuj()
contains(told(), "H20|yesno\nH16\r\n to: .sqm\r\n", "yes overwrites")

frmsettings.Command6:click()
equal(told(), "", "its own association goes without a question")
equal(exists(share .. "/applications/tarvelin.desktop"), false, "no desktop entry")
equal(exists(share .. "/mime/packages/tarvelin-sqm.xml"), false, "no type")
equal(exists(share .. "/icons/hicolor/1x1/apps/tarvelin.png"), false, "no icon")
lacks(read_file(user .. "/.config/mimeapps.list"), "x-sqm", "no default")

-- another program's
make_folder(share .. "/mime")
write_file(share .. "/mime/globs2", "50:application/x-other:*.sqm\n")
write_file(user .. "/.config/mimeapps.list", "[Default Applications]\ntext/plain=edit.desktop\napplication/x-other=other.desktop;more.desktop;\n")
on.box = function(text, buttons) boxes[#boxes + 1] = text .. "|" .. buttons return "no" end
proc.ZrusAsociaci()
equal(told(), "H17|yesno", "it asks first")
contains(read_file(user .. "/.config/mimeapps.list"), "other.desktop", "no leaves it")
on.box = function(text, buttons) boxes[#boxes + 1] = text .. "|" .. buttons return "yes" end
proc.ZrusAsociaci()
equal(told(), "H17|yesno\nH19 Tarvelin.exe|ok", "yes takes it; of this program there was none")
equal(read_file(user .. "/.config/mimeapps.list"), "[Default Applications]\ntext/plain=edit.desktop\n", "the others stay")

-- no icon was picked: the program's own
shared.IkonaAsociace = ""
proc.Asociuj()
check(shared.IkonaAsociace:sub(-13) == "\\tarvelin.exe", "the program's path", shared.IkonaAsociace)
