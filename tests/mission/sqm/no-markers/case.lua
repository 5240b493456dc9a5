-- A mission without markers and sensors, opened after one that has some.
local with = mission("with.Eden", 'class Mission\n{\nclass Markers\n{\nitems=1;\nclass Item0\n{\nname="a";\n};\n};\nclass Sensors\n{\nitems=1;\nclass Item0\n{\ntype="END1";\n};\n};\n};\n')
local without = mission("without.Eden")
start()
open_mission(with)
equal(shared.PocetZnacek, 1, "one marker") equal(shared.PocetSenzoru, 1, "one sensor")
open_mission(without)
equal(shared.PocetZnacek, 0, "none") equal(shared.PocetSenzoru, 0, "none")
equal(frmmain.lblznackypocet.caption, "0", "number") equal(frmmain.lblcisloznacky.caption, "1", "position")
for _, name in ipairs{"lblJmenoZnacky", "lblPopisZnacky", "lbltypZnacky"} do equal(frmmain[name].caption, "", name .. " is empty") end
for _, name in ipairs{"lbltyp", "lbltext", "lblpodminka"} do equal(frmdebrief[name].caption, "", "frmdebrief." .. name .. " is empty") end
equal(frmmain.cmdPrev.enabled, false, "no marker to go to") equal(frmmain.cmdnext.enabled, false, "either way")
equal(frmdebrief.cmdprev.enabled, false, "no sensor") equal(frmdebrief.cmdnext.enabled, false, "either way")
