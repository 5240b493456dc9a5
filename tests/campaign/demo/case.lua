-- The demo campaign among the examples makes what it says.
dofile(arg[1] .. "/campaign.lua")
local folder = make_folder(work .. "/out")
local first, second, third = mission("Ambush.Eden"), mission("Depot.Eden"), mission("Home.Abel")
local printed = {}
local plain_print = print
print = function(text) printed[#printed + 1] = text end
arg = {[0] = "campaign.lua", folder, first, second, third}
dofile(case_folder .. "/../../../examples/campaign.lua")
print = plain_print

local made = folder .. "/The Road to Levie.Eden"
equal(everything(made), "Description.ext DtaExt/ Missions/ Missions/Ambush.Eden/ Missions/Ambush.Eden/mission.sqm " ..
  "Missions/Depot.Eden/ Missions/Depot.Eden/mission.sqm Missions/Home.Abel/ Missions/Home.Abel/mission.sqm " ..
  "Overview.html Stringtable.csv mission.sqm", "the campaign's folder")
in_order(read_file(made .. "/Description.ext"), {
  "    class Karas\r\n    {\r\n        name = \"Sergeant Karas\";\r\n", "        pitch = 0.95;\r\n",
  "    class Vlkova\r\n    {\r\n        name = \"Jana Vlkov\xe1\";\r\n", "        pitch = 1.1;\r\n",
  "    class Award01\r\n    {\r\n        limit = 500;\r\n        Eden = Ambush.Eden;\r\n",
  "    class PenaltyGameOver\r\n    {\r\n        limit = -200;\r\n", "exitScore = -200;\r\n", "    lives = 3;\r\n",
  "    class PART1\r\n    {\r\n        name = \"The Ambush\";\r\n", "        end1 = PART2;\r\n        end2 = PART1;\r\n",
  "        class Ambush: MissionDefault\r\n", "    class PART2\r\n    {\r\n        name = \"The Way Home\";\r\n",
  "            end1 = Home;\r\n", "            template = Home.Abel;\r\n"}, "the description")
contains(read_file(made .. "/Overview.html"), "Two lorries, one road, and a long way home.\r\n", "the overview")
equal(table.concat(printed, "|"):match("box:"), nil, "no box was shown")
equal(printed[1], "Written to " .. made .. "/", "it tells where")
equal(#printed, 5, "and names four files")
