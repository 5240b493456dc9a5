-- A page for several sides: each side's own notes, plan and objectives, numbers without gaps.
start("MISSION=" .. mission_folder .. "/mission.sqm")
frmmain.chkvicestran.value = 1
for i, side in ipairs{"Zapad", "Vychod", "Partyzani", "Civilisti"} do
  shared["Poznamky" .. side] = "notes of " .. i
  shared["Plan" .. side] = i == 4 and "" or "plan of " .. i
end
frmmain.strany:select(0)
for _, text in ipairs{"West one", "West two", "West three"} do frmmain.txtUkol.text = text frmmain.cmdpridat:click() end
shared.UkolyZapad[1].Pouzit = 0
frmmain.strany:select(2)
frmmain.txtUkol.text = "Guerrilla one"
frmmain.cmdpridat:click()
frmmain.seznamakci:select(0)
frmmain.cmdvytvor:click()
