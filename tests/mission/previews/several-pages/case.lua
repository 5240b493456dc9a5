-- A folder with several pages of a kind: the chooser asks for one.
local folder = mission("m.Eden")
for _, name in ipairs{"Briefing.html", "Briefing.Žlutý; kůň.html", "Overview.html", "Overview.French.html"} do write_file(folder .. "/" .. name, "<BODY>\r\nread\r\n") end
start("MISSION=" .. folder .. "/mission.sqm")
frmmain.mnushowfiles:click()
local question, row
on.modal.frmloadsite = function(form)
  question = form.caption .. "/" .. form.Label1.caption .. "/" .. rows(form.List1)
  equal(form.cmdstorno.visible, false, "a page is not cancelled")
  if row then form.List1:select(row) form.Command1:click() end
end
row = 1
frmnahled.cmdbriefing:click()
equal(question, "Načíst Briefing/Adresář obsahuje více souborů Briefingu. Vyberte, který se má načíst/Briefing.html|Briefing.Žlutý; kůň.html", "question for a briefing")
equal(frmnahled.nahledbrowser.address, path(folder) .. "\\Briefing.Žlutý; kůň.html", "the chosen one")
equal(frmnahled.caption, "Náhled souborů: Briefing.Žlutý; kůň.html", "its title")
row = 0
frmnahled.cmdoverview:click()
contains(question, "/Overview.French.html|Overview.html", "question for an overview")
equal(frmnahled.nahledbrowser.address, path(folder) .. "\\Overview.French.html", "the chosen one")
row = nil
for _, command in ipairs{frmnahled.cmdbriefing, frmnahled.cmdoverview} do
  frmnahled.cmdnapoveda:click()
  command:click()
  equal(frmnahled.caption, "Náhled souborů: Nápověda", "closing the chooser without a choice: the former one does not come back")
end
on.modal.frmloadsite = function(form) form.Command1:click() end
frmnahled.cmdbriefing:click()
equal(frmnahled.caption, "Náhled souborů: Nápověda", "OK without a choice neither")
equal(frmmain.StranaBrifing .. frmmain.StranaOverview, "", "looking is not reading")
equal(frmmain.txtBriefink.text .. frmmain.txtOverview.text, "T7T8", "the panels stay")

-- a folder that is gone meanwhile
os.execute("rm -rf '" .. folder .. "'")
local from = #log()
frmnahled.cmdbriefing:click()
contains(log():sub(from + 1), "Chyba v podprogramu SpocitejSoubory , 76 , Path not found\r\n", "is logged")
equal(frmnahled.caption, "Náhled souborů: Nápověda", "and nothing is shown")
