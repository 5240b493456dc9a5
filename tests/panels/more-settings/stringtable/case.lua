-- The own rows are loaded from the mission's table when existing files are to be read.
start()
local box = frmdalsinast.txtstringtable
write_file(mission_folder .. "/StringTable.CSV", "LANGUAGE,Czech\nSTRM_a,\"k\xF9\xF2\"\r\n\r\nlast")
box.text = "mine"
open_mission(mission_folder, false)
equal(box.text, "mine", "not read unless asked for")
open_mission(mission("other.Eden"), true)
equal(box.text, "mine", "nor when there is none")
open_mission(mission_folder, true)
equal(box.text, "LANGUAGE,Czech\r\nSTRM_a,\"kůň\"\r\n\r\nlast\r\n", "the whole file in place of what stood there, each line with CR LF")
lacks(log(), "Stringtable", "nothing is logged")
write_file(mission_folder .. "/StringTable.CSV", "")
open_mission(mission("other.Eden"), true)
open_mission(mission_folder, true)
equal(box.text, "", "an empty file empties the field")

-- a file that cannot be read
local locked = mission("locked.Eden")
write_file(locked .. "/Stringtable.csv", "x")
os.execute("rm '" .. locked .. "/Stringtable.csv' && ln -s /proc/self/mem '" .. locked .. "/Stringtable.csv'")
box.text = "mine"
open_mission(locked, true)
equal(box.text, "", "the field is emptied all the same")
contains(log(), "Nastala chyba při čtení Stringtable.csv ze složky: " .. path(locked) .. "\\Stringtable.csv, ", "and the failure logged")
