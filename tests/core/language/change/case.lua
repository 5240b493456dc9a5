-- Another pack with a mission open: words and combos change, typed default texts are replaced, the mission's data stay.
local lines = {}
for i = 1, 462 do lines[i] = "  N" .. i .. " " end
write_file(home .. "/Bfdata/languages/Tv/New.lng", table.concat(lines, "\r\n") .. "\r\n")
write_file(home .. "/Bfdata/languages/Tv/notes.txt", "no pack")
local folder = mission("m.Eden", 'class Mission\n{\nclass Markers\n{\nitems=1;\nclass Item0\n{\nname="a";\n};\n};\n};\n')
start("MISSION=" .. folder .. "/mission.sqm")
frmmain.txtJmenoMise.text = "typed"
frmmain.minScore.text = "-7"
frmmain.respawn.value = 1
frmmain.jazykbrif:select(3)
frmmain.seznamakci:select(1)
local function choose(name, cancel)
  on.modal.frmloadsite = function(form)
    equal(form.cmdstorno.visible, true, "the chooser can be cancelled")
    equal(form.Label1.visible, false, "nobody is asked for a page")
    equal(rows(form.List1), "New.lng|Test.lng", "packs alone are listed")
    for i = 0, #form.List1 - 1 do if form.List1[i].text == name then form.List1:select(i) end end
    if cancel then form.cmdstorno:click() else form.Command1:click() end
    equal(form.visible, false, "the chooser hides")
  end
  frmmain.mnusetupLanguage:click()
end
choose("New.lng", true)
equal(shared.Texty[1], "T1", "cancelled: nothing is read")
equal(shared.Nastaveni.SouborJazyka, path(home) .. "\\Bfdata\\languages\\Tv\\Test.lng", "the pack stays in use")

choose("New.lng")
equal(shared.Nastaveni.SouborJazyka, path(home) .. "\\Bfdata\\languages\\Tv\\New.lng", "the full path")
equal(shared.Texty[1], "N1", "first text, trimmed") equal(shared.Texty[121], "N121", "last text") equal(shared.Texty[0], "", "index 0 is never filled")
equal(shared.Hlasky[1], "N122", "first message") equal(shared.Hlasky[23], "N144", "last message") equal(shared.Hlasky[0], "", "index 0 of these neither")
equal(frmmain.Label1[25].caption, "N145", "the first caption")
equal(Form1.caption, "N396", "the copying's window") equal(frmrejstrik.caption, "N397", "and the index of commands")
equal(frmdalsinast.Label4.caption, "N462", "the last caption")
equal(shared.Nastaveni.ParametryPbo, "N92,N93,2", "parameters of the packing tool")
equal(rows(frmmain.seznamakci), "N21|N22|N23|N24", "what Vytvoř writes") equal(frmmain.seznamakci.index, 3, "all of it")
equal(frmmain.seznamakci.enabled, true, "the mission is still open")
equal(rows(frmmain.jazykbrif), "N25|N26|N27|N28|N29|N30|N31|N32", "variants") equal(frmmain.jazykbrif.index, 0, "the first one")
equal(rows(frmmain.strany), "N33|N34|N35|N36", "sides")
equal(rows(frmmain.strany3), "T33|T34|T35|T36|N33|N34|N35|N36", "four more sides for the notes")
equal(rows(Form2.bryle), "N70|N71|N72", "glasses")
equal(frmmain.txtJmenoMise.text, "N53", "a typed default text is replaced")
equal(frmcamp5.txtnazev.text, "N60", "the campaign's too")
equal(frmmain.minScore.text, "-7", "a field without a default text stays") equal(frmmain.respawn.value, 1, "settings stay")
equal(shared.PocetZnacek, 1, "so do the mission's data") equal(shared.Znacky[0].Name, '"a"', "its markers")
equal(frmmain.caption, "Tarvelin - " .. path(folder) .. "\\", "and the title of the window")
equal(frmloadsite.RezimJazyka, false, "the chooser is no longer for languages")
choose("Test.lng")
equal(#frmmain.strany3, 12, "and four more with each change")
quit()
start()
equal(shared.Nastaveni.SouborJazyka, path(home) .. "\\Bfdata\\languages\\Tv\\Test.lng", "the choice is kept for the next start")
