-- programs.dat, byte for byte, and what damaged ones leave.
local file = home .. "/Bfdata/programs.dat"
local function record(...)
  local bytes = ""
  for _, text in ipairs { ... } do bytes = bytes .. string.pack("<s2", text) end
  return bytes
end
write_file(file, record("Sou\xE8et", "c:\\a b\\x.exe", "<T103>;-x") .. record("", "", ""))
start()
local f = frmsettings
equal(shared.PocetProgramu, 1, "two programs at the start")
equal(shared.Programy[0].Nazev .. "|" .. shared.Programy[0].Cesta .. "|" .. shared.Programy[0].Parametry,
  "Součet|c:\\a b\\x.exe|<T103>;-x", "the first record")
equal(rows(f.seznamprogramu), "T97 1|T97 2", "the rows")
equal(f.cmddel.enabled and f.txtparams.enabled, true, "they can be edited")
equal(frmmain.Picture1.visible and frmmain.Picture2.visible, true, "the bar is there")
equal(frmmain.Image1[1].visible and frmmain.Image1[2].visible, true, "an icon for each")
equal(pcall(function() return frmmain.Image1[3].kind end), false, "and no more")

f.seznamprogramu:select(1)
f.txtnazev.text = "Žába"
f.txtcesta.text = "\\bin\\tool"
f.txtparams.text = "a,b"
equal(#read_file(file), 2 + 6 + 2 + 12 + 2 + 9 + 6, "nothing is written yet")
f.cmdsave:click()
local want = record("Sou\xE8et", "c:\\a b\\x.exe", "<T103>;-x") .. record("\x8E\xE1ba", "\\bin\\tool", "a,b")
equal(read_file(file), want, "the file")
f.seznamprogramu:select(0)
f.cmddel:click()
f.cmdsave:click()
equal(read_file(file), record("\x8E\xE1ba", "\\bin\\tool", "a,b"), "one program less")
equal(pcall(function() return frmmain.Image1[2].kind end), false, "and one icon less")
f.seznamprogramu:select(0)
f.cmddel:click()
f.cmdsave:click()
equal(read_file(file), "", "no programs")
equal(frmmain.Picture1.visible or frmmain.Picture2.visible, false, "no bar")

-- long strings, then files that are cut off
write_file(file, record(("n"):rep(65535), "p", ""))
proc.LoadPrograms(path(file))
equal(#shared.Programy[0].Nazev, 65535, "the longest string")
lacks(log(), "LoadPrograms", "no failure so far")
local whole = record("one", "two", "three")
for cut, title in pairs { [1] = "half a length", [4] = "half a string", [#whole - 1] = "all but a byte" } do
  write_file(file, whole .. whole:sub(1, cut))
  proc.LoadPrograms(path(file))
  equal(shared.PocetProgramu, 0, title .. ": the whole record is read")
  equal(#f.seznamprogramu, 1, title .. ": one row")
  contains(log(), "Podprogram LoadPrograms: " .. path(file) .. ", 62, ", title .. ": it is logged")
end
proc.LoadPrograms(path(work .. "/missing.dat"))
equal(shared.PocetProgramu, -1, "a missing file leaves no programs")
contains(log(), "Podprogram LoadPrograms: " .. path(work .. "/missing.dat") .. ", 53, ", "it is logged")
proc.UlozitConfig(path(work) .. "\\no\\such.dat")
contains(log(), "Chyba v UlozitConfig: " .. path(work) .. "\\no\\such.dat, 76, ", "a file that cannot be written")

-- another language renames the rows
write_file(file, whole)
local pack = read_file(home .. "/Bfdata/languages/Tv/Test.lng"):gsub("T97\r", "Program\r")
write_file(home .. "/Bfdata/languages/Tv/Other.lng", pack)
on.modal.frmloadsite = function(form)
  for i = 0, #form.List1 - 1 do if form.List1[i].text == "Other.lng" then form.List1:select(i) end end
  form.Command1:click()
end
frmmain.mnusetupLanguage:click()
equal(rows(f.seznamprogramu), "Program 1", "the rows in the new language")
