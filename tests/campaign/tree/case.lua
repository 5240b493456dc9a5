-- Chapters and missions: the commands of two presses, the link editor, refused words, deletion and renumbering.
dofile(arg[1] .. "/campaign.lua")
local a, b, c = mission("Útok.Eden"), mission("Obrana.Abel"), mission("Zálohy.Cain")
start()
equal(frmcamp4.cmdaddmission.enabled, false, "no mission without a chapter")
frmcamp1.cmdstorno:click()
local f = frmcamp4

-- adding a chapter takes two presses; the first can be taken back
f.cmdaddpart:click()
equal(f.cmdaddpart.caption, "T16", "first press")
equal(f.txtpartname.visible and f.cmdne.visible, true, "a name is asked for")
equal(#f.campfiles, 0, "nothing is added yet")
f.cmdne:click()
equal(f.cmdaddpart.caption, "T15", "taken back")
equal(f.txtpartname.visible or f.cmdne.visible or f.txtdalsimise.visible, false, "the fields go")
equal(f.cmddel.enabled or f.cmdmissionedit.enabled or f.cmdaddmission.enabled, false, "nothing to work on")
chapter("Začátek")
equal(f.cmdaddpart.caption, "T15", "second press")
equal(f.txtpartname.visible or f.cmdne.visible, false, "the name is taken")
equal(f.cmddel.enabled and f.cmdmissionedit.enabled and f.cmdaddmission.enabled, true, "there is a chapter now")
equal(keys() .. " " .. node_texts(), "PART1 T191: Začátek", "key and text of a chapter")
equal(f.campfiles:node("PART1").icon, 1, "icon of a chapter")
equal(shared.KlicKapitoly, "PART1", "the new chapter takes missions")
local r = shared.Kapitoly[0]
equal(r.Jmeno .. "|" .. r.Cutscena .. "|" .. r.End1 .. r.End2 .. r.End3 .. r.End4 .. r.End5 .. r.End6 .. "|" .. r.Lost,
  "Začátek||T47T47T47T47T47T47|T48", "a new chapter's record")
equal(f.txtdalsimise.text, "T48", "the link field keeps the last word")

-- a mission right away, another by a click on the chapter
pick(a) f.cmdaddmission:click()
add_mission("PART1", b)
equal(node_texts(), "T191: Začátek|T201: Útok.Eden|T202: Obrana.Abel", "texts of missions")
equal(f.campfiles:node("PART1MISSION2").icon, 2, "icon of a mission")
equal(shared.Kapitoly[0].Mise.bound, 1, "the array ends with the mission just added")
-- the picker's window closed, nothing chosen: the mission chosen before does not come again
on.modal.frmopenmission = nil
f.cmdaddmission:click()
equal(#f.campfiles, 3, "nothing was chosen, nothing added")

-- clicks
f.campfiles:click("PART1MISSION2")
equal(f.cmdaddmission.enabled, false, "a mission takes no missions")
equal(f.txtcesta.caption, "Obrana.Abel", "name of the folder")
equal(shared.AktualniMise .. "," .. shared.VybranaMise .. "," .. shared.KlicUzlu, "1,-1,PART1MISSION2", "state on a mission")
f.campfiles:click("PART1")
equal(f.cmdaddmission.enabled, true, "a chapter does")
equal(f.txtcesta.caption, "Začátek", "name of the chapter")
equal(shared.AktualniKapitola .. "," .. shared.VybranaMise .. "," .. shared.PocetMisi, "0,0,2", "state on a chapter")

-- the link editor on a mission
f.campfiles:click("PART1MISSION1")
f.cmdmissionedit:click()
equal(f.cmdmissionedit.caption, "T18", "the editor opens")
equal(f.campfiles.enabled, false, "the tree waits")
equal(f.txtdalsimise.visible and f.seznamakci.visible, true, "the fields come")
equal(f.txtpartname.visible, false, "a mission has no name to edit")
equal(rows(f.seznamakci), "T37|T38|T39|T40|T41|T42|T43", "endings of a mission")
equal(f.seznamakci.index .. f.txtdalsimise.text, "0T45", "the first is shown")
f.seznamakci:select(6)
equal(f.txtdalsimise.text, "T46", "the lost ending")
f.txtdalsimise.text = "Jinam"
f.seznamakci:select(1)
equal(f.txtdalsimise.text, "T45", "each ending has its own link")
boxes()
f.txtdalsimise.text = "T47"
equal(boxes(), "H10/ok/information", "a mission does not lead to a chapter")
equal(f.txtdalsimise.text .. "|" .. shared.Kapitoly[0].Mise[0].End2, "|", "the word is emptied, the link too")
f.txtdalsimise.text = "T48"
equal(boxes(), "H10/ok/information", "nor to the same one")
f.txtdalsimise.text = "T46"
equal(boxes(), "", "to a mission it does")
f.cmdmissionedit:click()
equal(f.cmdmissionedit.caption, "T17", "the editor closes")
equal(f.campfiles.enabled, true, "the tree is back")
equal(f.txtdalsimise.visible or f.seznamakci.visible, false, "the fields go")
local m = shared.Kapitoly[0].Mise[0]
equal(m.End1 .. "|" .. m.End2 .. "|" .. m.End3 .. "|" .. m.Lost, "T45|T46|T45|Jinam", "the links of the mission")

-- the link editor on a chapter; the cutscene is its eighth row
f.campfiles:click("PART1")
f.cmdmissionedit:click()
equal(rows(f.seznamakci), "T37|T38|T39|T40|T41|T42|T43|T44", "endings of a chapter")
equal(f.txtpartname.visible, true, "a chapter has a name")
f.seznamakci:select(7)
f.txtdalsimise.text = "\\mise\\Film.Eden"
equal(shared.Kapitoly[0].Cutscena, "\\mise\\Film.Eden", "the cutscene")
f.txtdalsimise.text = "T45"
equal(boxes(), "H9/ok/information", "a chapter does not lead to a mission")
f.txtdalsimise.text = "T46"
equal(boxes(), "H9/ok/information", "nor to the same one")
f.txtpartname.text = "Přejmenováno"
equal(shared.Kapitoly[0].Jmeno, "Začátek", "the name follows under the caption Ok only")
f.cmdmissionedit:click()
equal(f.txtpartname.visible, false, "the name goes")
equal(f.campfiles:node("PART1").text, "T191 :Začátek", "the text is made anew, the blank before the colon")
-- a chapter added now: what is edited last does not get into it
chapter("Druhá")
equal(shared.Kapitoly[1].Cutscena .. "|" .. shared.Kapitoly[1].Lost, "|T48", "a clean record after editing a cutscene")
add_mission("PART2", c)

-- deleting a chapter: keys are renumbered, texts are not, the count stays
chapter("Třetí")
add_mission("PART3", a)
add_mission("PART3", b)
local whole = keys()
f.campfiles:click("PART1")
boxes()
on.box = function() return "no" end
f.cmddel:click()
equal(boxes(), "H12/yesno/question", "the question")
equal(keys(), whole, "No: nothing happens")
on.box = function() return "yes" end
f.cmddel:click()
equal(keys(), "PART1 PART1MISSION1 PART2 PART2MISSION1 PART2MISSION2", "keys after the first chapter went")
equal(node_texts(), "T192: Druhá|T201: Zálohy.Cain|T193: Třetí|T201: Útok.Eden|T202: Obrana.Abel", "old numbers in the texts")
equal(shared.Kapitoly.bound .. shared.Kapitoly[0].Jmeno .. shared.Kapitoly[1].Jmeno, "1DruháTřetí", "the records move down")
equal(shared.Kapitoly[1].Mise[1].Cesta, path(b), "with their missions")
equal(shared.PocetKapitol, 3, "the count stays")
chapter("Čtvrtá")
equal(f.campfiles:node("PART4").text, "T194: Čtvrtá", "so the next number jumps")
equal(shared.Kapitoly.bound .. "|" .. shared.Kapitoly[2].Jmeno .. "|" .. shared.Kapitoly[3].Jmeno, "3||Čtvrtá", "over an empty record")

-- deleting a mission asks nothing
boxes()
f.campfiles:click("PART2MISSION1")
f.cmddel:click()
equal(boxes(), "", "no question")
equal(keys(), "PART1 PART1MISSION1 PART2 PART2MISSION1 PART4", "the mission behind moves up")
equal(f.campfiles:node("PART2MISSION1").text, "T202: Obrana.Abel", "with its old number")
equal(shared.Kapitoly[1].Mise.bound .. shared.Kapitoly[1].Mise[0].Cesta, "0" .. path(b), "the record too")
add_mission("PART2", c)
equal(f.campfiles:node("PART2MISSION2").text, "T202: Zálohy.Cain", "the next one is the second")

-- a node that is gone cannot be deleted again
f.campfiles:click("PART4")
f.cmddel:click()
equal(shared.Kapitoly.bound, 2, "the last chapter went")
boxes()
f.cmddel:click()
equal(boxes() .. shared.Kapitoly.bound, "2", "pressed again: nothing")

-- the last node: all is as at the start
for _, key in ipairs({"PART2", "PART1"}) do
  f.campfiles:click(key)
  f.cmddel:click()
end
equal(#f.campfiles, 0, "all gone")
equal(f.cmddel.enabled or f.cmdmissionedit.enabled or f.cmdaddmission.enabled, false, "nothing to work on")
equal(shared.PocetKapitol + shared.AktualniKapitola + shared.AktualniMise + shared.PocetMisi, 0, "counts")
equal(shared.Kapitoly.bound .. shared.Kapitoly[0].Jmeno, "0", "one spare chapter")
chapter("Znovu")
equal(keys(), "PART1", "numbers begin anew")

-- cancelling in the middle of an entry leaves no step behind
add_mission("PART1", a)
f.campfiles:click("PART1MISSION1")
f.cmdmissionedit:click()
f.cmdaddpart:click()
f.cmdstorno:click()
equal(f.cmdaddpart.caption .. f.cmdmissionedit.caption, "T15T17", "captions after cancelling")
equal(f.campfiles.enabled, true, "the tree takes clicks")
equal(f.txtpartname.visible or f.cmdne.visible or f.txtdalsimise.visible or f.seznamakci.visible, false, "no open entry")
