-- Three chapters with links of every kind, a cutscene, awards and penalties on three islands, one of them terminating.
dofile(arg[1] .. "/campaign.lua")
local intro, most, obrana, konec = mission("Úvod.Eden"), mission("Most.Eden"), mission("Obrana mostu.Abel"), mission("M3.Cain")
local praise, march, scolding, end_scene = mission("Chvála.Eden"), mission("Pochod.Cain"), mission("Výtka.Abel"), mission("Konec.Eden")
local folder = make_folder(work .. "/out")

begin_campaign()
-- awards: two islands; one island; an unmarked one
local f = frmcamp3
pick(praise) f.cmdaddA:click()
f.awardlend:select(2)
pick(march) f.Command2:click()
f.awardlimit.text = "250"
f.awardlend:select(0)
pick(praise) f.cmdaddA:click()
f.cmdaddA:click()
f.awardlist:mark(2, false)
-- penalties: -10 on the second island, -20 unmarked, -30 terminating with its mark off
f.penaltyland:select(1)
pick(scolding) f.cdmaddP:click()
f.penaltyland:select(0)
f.cdmaddP:click()
pick(end_scene) f.cdmaddP:click()
f.penaltylist:mark(1, false)
f.penaltylist:select(2)
f.cmdukon.value = 1
f.penaltylist:mark(2, false)
equal(boxes(), "", "the lowest penalty may terminate")

chapter("První")
chapter("Druhá kapitola")
chapter("Třetí")
links("PART1", {{2, "T48"}, {3, "PART3"}, {4, ""}, {5, "Jiná; \"x\""}, {6, "T48"}, {7, "T47"}, {8, path(intro)}})
links("PART2", {{6, "PART1"}, {7, "Konec"}})
links("PART3", {{1, "Zahozeno"}, {2, "T48"}, {7, "T47"}})
add_mission("PART1", most)
add_mission("PART1", obrana)
add_mission("PART1", konec)
add_mission("PART2", konec)
add_mission("PART3", obrana)
add_mission("PART3", most)
links("PART1MISSION1", {{2, "T46"}, {3, "M3"}, {4, ""}, {6, "T46"}, {7, "T45"}})
links("PART1MISSION2", {{6, "Cíl"}, {7, "Konec hry"}})
links("PART1MISSION3", {{1, "Zahozeno"}, {7, "T45"}})
links("PART3MISSION2", {{7, "Nikam"}})
equal(boxes(), "", "no link was refused")

name_campaign(folder, "Tři kapitoly")
frmcamp1.txtzivoty.text = "3"
f.penaltylist:select(0)
frmcamp6.cmdnext:click()
local made = folder .. "/Tři kapitoly.Eden"
same_as_kept(made, "Description.ext")
equal(listing(made .. "/Missions"), "Chvála.Eden Konec.Eden M3.Cain Most.Eden Obrana mostu.Abel Pochod.Cain " ..
  "Výtka.Abel Úvod.Eden", "every mission, the cutscene's and the scores' too, marked or not")
equal(frmcopy.prubeh1.max, 3, "the bar of the last phase, the penalties")
equal(frmcopy.prubeh1.value, 3, "is full")
equal(frmcopy.lblmise.caption, "T80", "the sounds come last")

-- no highlighted penalty: no exitScore; a highlighted one while none terminates: a log line instead
f.cmdukon.value = 1 -- of the first penalty: refused, the third is lower
equal(boxes(), "H11/ok/information", "only the lowest may terminate")
equal(f.cmdukon.value, 0, "the box is unchecked")
f.penaltylist:select(2)
equal(f.cmdukon.value, 1, "highlighting shows the terminating one")
f.cmdukon.value = 0
equal(shared.Tresty[2].Ukoncovaci, 0, "it terminates no more")
lacks(log(), "Description.ext pro kampaň do složky", "so far all went well")
frmcamp6.cmdnext:click()
local text = read_file(made .. "/Description.ext")
lacks(text, "exitScore", "no terminating penalty, no exit score")
lacks(text, "PenaltyGameOver", "nor a class of it")
contains(log(), "Nastala chyba při vytváření Description.ext pro kampaň do složky: " .. path(made) ..
  "\\Description.ext, 5, Invalid procedure call or argument\r\n", "the search ran off the list")
f.penaltylist:select(2)
f.cmdukon.value = 1
pick(nil) f.cdmaddP:click() -- a cancelled one leaves nothing highlighted
equal(f.penaltylist.index, -1, "nothing is highlighted")
frmcamp6.cmdnext:click()
text = read_file(made .. "/Description.ext")
lacks(text, "exitScore", "nothing highlighted, no exit score")
contains(text, "    class PenaltyGameOver\r\n    {\r\n        limit = -30;\r\n", "the class is written all the same")
