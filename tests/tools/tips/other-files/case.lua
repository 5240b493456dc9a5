-- A folder of tips with other things in it: every file has its turn, folders have none.
local tips = home .. "/Bfdata/tips/Test"
write_file(tips .. "/0 notes.txt", "no page")
write_file(tips .. "/picture.jpg", "\xFF\xD8\xFF\xE0")
write_file(tips .. "/.hidden", "")
write_file(tips .. "/Žlutý; kůň.html", "x")
write_file(tips .. "/empty", "")
make_folder(tips .. "/b folder.html")
os.execute("ln -s nowhere '" .. tips .. "/broken.html'")
start()
local folder = path(home) .. "\\Bfdata\\tips\\Test\\"
local seen, count = {}, 0
for i = 1, 40 do
  frmtips.Command2:click()
  local name = frmtips.WebBrowser1.address:sub(#folder + 1)
  equal(frmtips.WebBrowser1.address:sub(1, #folder), folder, "from the folder")
  if not seen[name] then count = count + 1 end
  seen[name] = (seen[name] or 0) + 1
end
for _, name in ipairs {"0 notes.txt", "a.html", "b.html", "picture.jpg", "empty", "Žlutý; kůň.html"} do
  check(seen[name], "its turn", name)
end
equal(seen["b folder.html"], nil, "a folder is no tip")
check(frmtips.Aktualni >= 2 and frmtips.Aktualni <= count + 1, "the number stays among them", frmtips.Aktualni)

-- nothing but folders
os.execute("rm -f '" .. tips .. "'/* '" .. tips .. "'/.hidden 2>/dev/null")
frmtips.Command2:click()
equal(frmtips.WebBrowser1.address, "", "no file, no tip")
frmtips.Command2:click()
equal(frmtips.WebBrowser1.address, "", "again")
write_file(tips .. "/new.html", "x")
frmtips.Command2:click()
equal(frmtips.WebBrowser1.address, folder .. "new.html", "a new one is found")

-- a file where the folder should be, and a folder that may not be read
os.execute("rm -rf '" .. tips .. "'")
write_file(tips, "x")
frmtips.Command2:click()
equal(frmtips.WebBrowser1.address, "", "a file is no folder")
