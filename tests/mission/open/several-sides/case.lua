-- A mission with texts for several sides is opened a second time: what is read is what was written, and the default
-- texts of the fields have not become some side's own.
local folder = mission("Sides.Eden")
start()
on.box = function() return "yes" end -- read it once more
open_mission(folder)
frmmain.chkvicestran.value = 1
for side, name in pairs{[0] = "west", "east", "guerrilla", "civil"} do
  frmmain.strany:select(side)
  frmmain.txtBriefink.text = "Plan " .. name
  frmmain.strany3:select(side)
  frmmain.txtPoznamky.text = "Notes " .. name
end
frmmain.seznamakci:select(3)
frmmain.cmdvytvor:click()

for _, shown in ipairs{0, 2} do
  frmmain.strany:select(shown)
  frmmain.strany3:select(shown)
  open_mission(folder, true)
  equal(table.concat({shared.PlanZapad, shared.PlanVychod, shared.PlanPartyzani, shared.PlanCivilisti}, "|"),
    "Plan west|Plan east|Plan guerrilla|Plan civil", "the plans after side " .. shown .. " was on show")
  equal(table.concat({shared.PoznamkyZapad, shared.PoznamkyVychod, shared.PoznamkyPartyzani, shared.PoznamkyCivilisti}, "|"),
    "Notes west|Notes east|Notes guerrilla|Notes civil", "the notes after side " .. shown .. " was on show")
end

open_mission(folder)
equal(frmmain.chkvicestran.value, 1, "several sides stay chosen")
equal(frmmain.txtBriefink.text, "T7", "the field has its default text")
equal(shared.PlanPartyzani .. shared.PoznamkyPartyzani, "", "which is no side's plan or notes")
