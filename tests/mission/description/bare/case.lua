-- Everything off and every list empty: no score, no respawn, and all the rest with nothing in it.
start("MISSION=" .. mission_folder .. "/mission.sqm")
local m = frmmain
for _, name in ipairs{"Debrifing", "showGPS", "showMap", "showCompass", "showWatch", "showNotepad"} do m[name].value = 0 end
m.onloadintro.text = ""
m.onloadmission.text = ""
m.seznamakci:select(2)
local from = #log()
m.cmdvytvor:click()
local lines = log():sub(from + 1)
in_order(lines, {"Vytváření: " .. shared.CestaMise .. "Description.ext\r\n",
  "Vytváření: " .. shared.CestaMise .. "Stringtable.csv\r\n"}, "the table follows the description")
lacks(lines, "Nastala chyba", "nothing fails")
local bare = read_file(mission_folder .. "/Description.ext")

-- a second run leaves nothing of the first, and a long file is replaced
write_file(mission_folder .. "/Description.ext", ("older text\r\n"):rep(1000))
m.cmdvytvor:click()
same(read_file(mission_folder .. "/Description.ext"), bare, "written again")
