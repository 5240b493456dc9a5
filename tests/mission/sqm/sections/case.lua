-- What depends on the section of the file, and on lines that belong to several things at once.
start()
local function scan(text) proc.NactiSqm(path(mission("m", text) .. "/mission.sqm")) end
local function markers(...)
  local text = "class Markers\n{\nitems=" .. select("#", ...) .. ";\n"
  for i, name in ipairs{...} do text = text .. "class Item" .. i - 1 .. "\n{\nname=\"" .. name .. "\";\n};\n" end
  return text .. "};\n"
end
local function sensors(kind) return "class Sensors\n{\nitems=1;\nclass Item0\n{\ntype=\"" .. kind .. "\";\n};\n};\n" end

scan("class Mission\n{\n" .. markers("a", "b", "c") .. "};\nclass Intro\n{\n" .. markers("x") .. "};\n")
equal(shared.PocetZnacek, 1, "of two sections with markers the later one's remain")
equal(shared.Znacky.bound, 1, "alone")
equal(shared.Znacky[0].Name, '"x"', "with their names")
equal(frmmain.lblznackypocet.caption, "1", "and their number")

for _, class in ipairs{"Intro", "OutroWin", "OutroLoose"} do
  shared.PocetSenzoru = 0
  scan("class Mission\n{\n};\nclass " .. class .. "\n{\n" .. markers(class) .. sensors("END2") .. "};\n")
  equal(shared.Znacky[0].Name, '"' .. class .. '"', "markers of " .. class .. " are read")
  equal(shared.PocetSenzoru, 0, "its sensors are not")
end
scan("class Intro\n{\n};\nCLASS MISSION\n{\n" .. sensors("END3") .. "};\n")
equal(shared.Senzory[0].Type, '"END3"', "those of the mission are, wherever it stands")

-- allies: the last line of either kind decides
for _, row in ipairs{
  {"resistanceEast=1;", "T33"}, {"resistanceWest=1;", "T34"}, {"resistanceEast=0;", "T107"}, {"resistanceWest=0;", "T107"},
  {"resistanceEast=1;\nresistanceWest=0;", "T107"}, {"resistanceWest=1;\nresistanceEast=1;", "T33"},
  {"resistanceEast=1.000000;", "T33"}, {"resistanceWest = 1x ;", "T34"}, {"resistanceWest=2;", "T107"}, {"resistanceEast=\"1\";", "T107"},
} do
  scan(row[1] .. "\n")
  equal(shared.Spojenci, row[2], (row[1]:gsub("\n", " ")))
  equal(frmmain.txtSpojenci.text, row[2], "shown for " .. row[1]:gsub("\n", " "))
end

-- values inside of the items are not those of the mission
shared.Mesic = "kept"
scan("class Markers\n{\nitems=1;\nclass Item0\n{\nmonth=3;\nname=\"x\";\n};\n};\n")
equal(shared.Mesic, "kept", "a key among the items is the items' alone")

-- sensors with counts that lie
for _, row in ipairs{{"30000", 30000, 30000}, {"abc", 0, 0}} do
  scan("class Mission\n{\nclass Sensors\n{\nitems=" .. row[1] .. ";\nclass Item0\n{\ntype=\"E\";\n};\n};\nmonth=8;\n")
  equal(shared.PocetSenzoru, row[2], "count of items=" .. row[1])
  equal(shared.Senzory.bound, row[3], "bound of items=" .. row[1])
end
scan("class Mission\n{\nclass Sensors\n{\nitems=-3;\nclass Item0\n{\ntype=\"E\";\n};\n};\n")
equal(shared.PocetSenzoru, -3, "a negative count") equal(shared.Senzory.bound, 0, "cannot dimension the array")

-- a class without items takes one more line and ends
shared.Hodina = ""
scan("class Markers\n{\nitems=0;\n};\nhour=4;\n")
equal(shared.Hodina, "4", "what follows an empty class is read")
scan("class Markers\n{\nitems=0;\nhour=5;\nhour=6;\n")
equal(shared.Hodina, "6", "the one line is the class's")
