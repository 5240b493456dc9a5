-- The list of outside programs: adding, editing, deleting, picking an executable.
start()
local f = frmsettings
equal(shared.PocetProgramu, -1, "no programs")
equal(f.cmddel.enabled, false, "nothing to delete")
for _, name in ipairs { "txtnazev", "txtcesta", "txtparams" } do equal(f[name].enabled, false, name .. " waits for a program") end
equal(frmmain.Picture1.visible or frmmain.Picture2.visible or frmmain.HScroll1.visible, false, "no bar")
lacks(log(), "LoadPrograms", "a missing file is no failure")
frmmain.mnusetobec:click()
equal(f.visible, true, "the menu shows the settings")

for _ = 1, 3 do f.cmdadd:click() end
equal(rows(f.seznamprogramu), "T97 1|T97 2|T97 3", "rows by number")
equal(shared.PocetProgramu .. "," .. shared.Programy.bound, "2,2", "as many records")
equal(f.cmddel.enabled and f.txtnazev.enabled and f.txtcesta.enabled and f.txtparams.enabled, true, "to be edited")
f.txtnazev.text = "nowhere"
equal(shared.Programy[0].Nazev, "", "with no row highlighted nothing is changed")
for i = 0, 2 do
  f.seznamprogramu:select(i)
  f.txtnazev.text = "name " .. i
  f.txtcesta.text = "c:\\" .. i .. ".exe"
  f.txtparams.text = "-" .. i
end
equal(rows(f.seznamprogramu), "T97 1|T97 2|T97 3", "a row's name is not the program's")
f.seznamprogramu:select(1)
equal(f.txtnazev.text .. "," .. f.txtcesta.text .. "," .. f.txtparams.text, "name 1,c:\\1.exe,-1", "a click shows the record")
equal(shared.Programy[1].Cesta, "c:\\1.exe", "showing changes nothing")
equal(shared.Programy[2].Nazev, "name 2", "nor in another record")

f.cmddel:click()
equal(rows(f.seznamprogramu), "T97 1|T97 3", "the row is gone")
equal(f.seznamprogramu.index, -1, "nothing is highlighted")
equal(shared.PocetProgramu .. "," .. shared.Programy.bound, "1,1", "one record less")
equal(shared.Programy[1].Nazev .. shared.Programy[1].Parametry, "name 2-2", "the later one moved down")
f.cmddel:click()
equal(#f.seznamprogramu, 2, "with no row highlighted nothing is deleted")
f.seznamprogramu:select(1)
equal(f.txtnazev.text, "name 2", "the row shows its record")
f.cmddel:click()
f.seznamprogramu:select(0)
f.cmddel:click()
equal(shared.PocetProgramu .. "," .. shared.Programy.bound, "-1,-1", "none left")
equal(f.cmddel.enabled, false, "nothing to delete")
