-- Eleven chapters, of which one is deleted and one added. The missions of a chapter are counted by a search for its
-- key, so those of PART10 and on count for PART1 too, and its array and its classes grow past what is there.
dofile(arg[1] .. "/campaign.lua")
local m1, m2, m3 = mission("M1.Eden"), mission("M2.Eden"), mission("M3.Abel")
local folder = make_folder(work .. "/out")
begin_campaign()
on.box = function() return "yes" end
for name in ("ABCDEFGHIJK"):gmatch(".") do chapter(name) end
add_mission("PART1", m1)
add_mission("PART10", m2)
add_mission("PART10", m3)
add_mission("PART11", m1)
equal(proc.SpocitejMise(1), 4, "one mission of its own and three of the later chapters")
add_mission("PART1", m2)
equal(frmcamp4.campfiles:node("PART1MISSION5").text, "T205: M2.Eden", "its second mission is the fifth")
equal(shared.Kapitoly[0].Mise.bound, 4, "behind three empty records")
equal(shared.Kapitoly[0].Mise[1].Cesta .. "|" .. shared.Kapitoly[0].Mise[4].Cesta, "|" .. path(m2), "empty and full")

frmcamp4.campfiles:click("PART3")
frmcamp4.cmddel:click()
chapter("L")
add_mission("PART12", m3)
equal(keys(), "PART1 PART1MISSION1 PART1MISSION5 PART2 PART3 PART4 PART5 PART6 PART7 PART8 " ..
  "PART9 PART9MISSION1 PART9MISSION2 PART10 PART10MISSION1 PART12 PART12MISSION1", "keys after a deletion")
equal(frmcamp4.campfiles:node("PART10").text, "T1911: K", "old number in the text")
equal(proc.SpocitejMise(1), 4, "two of its own, one of PART10, one of PART12")
equal(shared.Kapitoly.bound, 11, "an empty record in front of the new one")

name_campaign(folder, "Jedenáct")
frmcampobr.txtkampover.text = ""
frmcamp6.cmdnext:click()
same_campaign(folder .. "/Jedenáct.Eden", {"DtaExt/"})
local _, nines = log():gsub("Description%.ext pro kampaň do složky: [^\r\n]*Description%.ext, 9, ", "")
equal(nines, 8, "chapters without a first mission")
local _, fives = log():gsub("Description%.ext pro kampaň do složky: [^\r\n]*Description%.ext, 5, ", "")
equal(fives, 9, "names of missions that are not there")
contains(log(), "Nastala chyba při kopírování souboru:  do: " .. path(folder) .. "\\Jedenáct.Eden\\Missions\\ , 52, ",
  "the empty ones go to the log")
