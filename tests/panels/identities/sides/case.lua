-- The mission and the campaign have rows of their own in the one list; each comes back with its marks.
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
local function add(name)
  Form2.txtnazev.text = name
  Form2.cmdadd:click()
end
local function list() return rows(Form2.seznamidentit) .. marks(Form2.seznamidentit) end
local function enabled() return tostring(Form2.Text1.enabled) .. tostring(Form2.cmdelall.enabled) end
local function campaign_side()
  frmmain.mnucampaignedit:click()
  frmcamp1.cmdNext:click()
  frmcamp2.cmdnext:click()
end
-- what each writer takes from the list
local function mission_classes()
  proc.UlozDescription(path(work) .. "\\mission.ext")
  return (read_file(work .. "/mission.ext"):match("class CfgIdentities\r\n.-\r\n};") or ""):gsub("[^\n]*=[^\n]*\n", ""):gsub("%s+", " ")
end
local function campaign_classes()
  proc.UlozKampanDescription(path(work) .. "\\campaign.ext")
  return (read_file(work .. "/campaign.ext"):match("class CfgIdentities\r\n.-\r\n};")):gsub("[^\n]*=[^\n]*\n", ""):gsub("%s+", " ")
end
local function written(what)
  equal(mission_classes(), "class CfgIdentities { class Vojak { }; };", what .. ": the mission's file")
  equal(campaign_classes(), "class CfgIdentities { class Guba { }; class Velitel { }; };", what .. ": the campaign's file")
end

frmmain.mnuksicht:click()
add("Vojak")
add("Pilot")
Form2.seznamidentit:mark(1, false)
Form2.chkpouzithrace.value = 1
Form2.cmdOk:click()

campaign_side()
equal(list() .. enabled(), "falsefalse", "the campaign begins with no rows and nothing to edit")
add("Guba")
add("Nikdo")
add("Velitel")
Form2.seznamidentit:mark(1, false)
equal(list(), "Guba|Nikdo|Velitel+-+", "its rows")
equal(shared.AktualniIdentitaKampane .. "/" .. shared.PocetIdentitKampane .. "/" .. shared.PocetIdentit, "1/3/2", "its count")

written("the campaign on show")
frmmain.mnuksicht:click()
equal(list() .. enabled(), "Vojak|Pilot+-truetrue", "the mission's rows come back with their marks")
equal(Form2.seznamidentit.index, -1, "none is highlighted")
written("the mission on show")
Form2.seznamidentit:select(1)
equal(shared.AktualniIdentita .. "/" .. shared.AktualniIdentitaKampane, "1/1", "a click is the mission's")
Form2.cmdOk:click()

-- on and back through the wizard
frmcamp2.cmdnext:click()
equal(list() .. enabled(), "Guba|Nikdo|Velitel+-+truetrue", "so do the campaign's")
Form2.cmdOk:click()
frmcamp3.cmdPrev:click()
equal(list(), "Guba|Nikdo|Velitel+-+", "going back keeps them")

-- another mission takes the mission's rows alone
open_mission(mission("n.Eden"), false)
equal(list() .. enabled(), "Guba|Nikdo|Velitel+-+truetrue", "another mission leaves the campaign's rows")
frmmain.mnuksicht:click()
equal(list() .. enabled(), "falsefalse", "and has none of its own")
add("Nova")

-- the campaign's end takes the campaign's rows alone
frmcamp2.cmdnext:click()
frmcamp6.cmdstorno:click()
equal(list() .. enabled(), "Nova+truetrue", "the mission's rows are there again")
equal(campaign_classes(), "class CfgIdentities { };", "the campaign's are dropped")
frmcamp2.cmdnext:click()
equal(list() .. enabled(), "falsefalse", "a new campaign begins with none")
