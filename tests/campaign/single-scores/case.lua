-- One award and one penalty alone bring their missions along; a folder that ends in a backslash does as well as
-- another; the mission's sounds and the campaign's go their own ways, even under one name.
dofile(arg[1] .. "/campaign.lua")
local battle, praise, scolding = mission("Boj.Eden"), mission("Chvála.Abel"), mission("Výtka.Cain")
local folder = make_folder(work .. "/kampaně")
for name, bytes in pairs{mise = "of the mission", kampan = "of the campaign"} do
  write_file(make_folder(work .. "/" .. name) .. "/signál.ogg", bytes)
end
local own = mission("Moje.Eden")
begin_campaign("MISSION=" .. own .. "/mission.sqm")

chapter("A")
add_mission("PART1", battle)
frmcamp3.awardlend:select(1)
pick(praise) frmcamp3.cmdaddA:click()
frmcamp3.penaltyland:select(2)
pick(scolding) frmcamp3.cdmaddP:click()
equal(shared.Odmeny.bound .. "/" .. shared.Tresty.bound, "1/1", "one of each and the spare one")

local kinds = {{"cmdnacistradio", "seznamradia"}, {"cmdnacistzvuk", "seznamzvuku"}, {"cdmnactihudbu", "seznamhudby"}}
for _, kind in ipairs(kinds) do
  take_sounds(frmmain[kind[1]], work .. "/mise", "signál.ogg")
  take_sounds(frmcamp5[kind[1]], work .. "/kampan", "signál.ogg")
end
frmcamp5.seznamzvuku:select(0)
frmcamp5.cmdadd:click()

name_campaign(folder .. "/", "Malá")
equal(shared.CestaKampane, path(folder) .. "\\", "the folder as it was typed")
frmcamp6.cmdnext:click()
local made = folder .. "/Malá.Eden"
equal(everything(made), "Description.ext DtaExt/ DtaExt/music/ DtaExt/music/signál.ogg DtaExt/sound/ DtaExt/sound/signál.ogg " ..
  "Missions/ Missions/Boj.Eden/ Missions/Boj.Eden/mission.sqm Missions/Chvála.Abel/ Missions/Chvála.Abel/mission.sqm " ..
  "Missions/Výtka.Cain/ Missions/Výtka.Cain/mission.sqm Overview.html Stringtable.csv mission.sqm", "the whole folder")
equal(read_file(made .. "/DtaExt/sound/signál.ogg"), "of the campaign", "the campaign's sound, not the mission's")
equal(frmcamp7.ukaz.address, path(made) .. "\\Overview.html", "one backslash where it is shown")
local text = read_file(made .. "/Description.ext")
contains(text, "        limit = 10;\r\n        Eden = ;\r\n        Abel = Chv\xe1la.Abel;\r\n        Cain = ;\r\n", "the award on its island")
contains(text, "        limit = -10;\r\n        Eden = ;\r\n        Abel = ;\r\n        Cain = V\xfdtka.Cain;\r\n", "the penalty on its own")

-- the end of the run empties the campaign's lists and leaves the mission's
frmcamp7.cmdok:click()
for _, kind in ipairs(kinds) do
  equal(#frmcamp5[kind[2]] .. "/" .. #frmmain[kind[2]], "0/1", kind[2])
end
equal(#frmcamp5.seznamtextu, 0, "subtitles went with their sound")
equal(shared.PocetRadiiKampane .. shared.PocetZvukuKampane .. shared.PocetHudebKampane, "000", "the campaign's counts")
equal(shared.PocetRadii .. shared.PocetZvuku .. shared.PocetHudeb, "111", "the mission's")
frmmain.seznamakci:select(3)
frmmain.cmdvytvor:click()
equal(read_file(own .. "/sound/signál.ogg") .. "/" .. read_file(own .. "/music/signál.ogg"), "of the mission/of the mission",
  "the mission writes its own")
