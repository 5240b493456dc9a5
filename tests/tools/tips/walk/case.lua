-- Tips in the language in use, one after the other, in the order of the folder.
write_file(home .. "/Bfdata/tips/Test/B2.html", "x")
start()
local folder = path(home) .. "\\Bfdata\\tips\\Test\\"
equal(frmtips.visible, false, "tips are off")
equal(frmtips.Aktualni, 1, "the first one is next")
equal(frmtips.WebBrowser1.address, "", "nothing on show yet")
local shown = {}
for i = 1, 5 do
  frmtips.Command2:click()
  shown[i] = frmtips.WebBrowser1.address:sub(#folder + 1)
  equal(frmtips.WebBrowser1.address:sub(1, #folder), folder, "from the folder of the language")
end
equal(table.concat(shown, " "), "a.html b.html B2.html a.html b.html", "behind the last the first comes again")
equal(frmtips.Aktualni, 3, "number of the next")

-- fewer tips than before
os.remove(home .. "/Bfdata/tips/Test/b.html")
os.remove(home .. "/Bfdata/tips/Test/B2.html")
proc.NactiTip()
equal(frmtips.WebBrowser1.address, folder .. "a.html", "the first when the number is too high")

-- another language
make_folder(home .. "/Bfdata/tips/Ceština")
write_file(home .. "/Bfdata/tips/Ceština/1.html", "x")
shared.Nastaveni.SouborJazyka = path(home) .. "\\Bfdata\\languages\\Tv\\Ceština.lng"
proc.NactiTip()
equal(frmtips.WebBrowser1.address, path(home) .. "\\Bfdata\\tips\\Ceština\\1.html", "the folder follows the language")
for _, pack in ipairs {path(home) .. "\\None.lng", "", "x", "\\.lng"} do
  shared.Nastaveni.SouborJazyka = pack
  proc.NactiTip()
  equal(frmtips.WebBrowser1.address, "", "no tips for " .. pack)
end
