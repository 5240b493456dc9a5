-- home: fresh
-- The demo among the examples writes what it says, from a first start on: four files, two sounds and a picture.
local examples = case_folder .. "/../../../examples"
local data = examples .. "/../Bfdata" -- the demo answers the language chooser in the shipped language's name
for _, name in ipairs(paths(data)) do
  if name:sub(-1) == "/" then make_folder(home .. "/Bfdata/" .. name) else write_file(home .. "/Bfdata/" .. name, read_file(data .. "/" .. name)) end
end
local folder = make_folder(work .. "/Demo.Eden")
write_file(folder .. "/mission.sqm", read_file(examples .. "/Demo.Eden/mission.sqm"))

local printed = {}
local plain_print = print
print = function(text) printed[#printed + 1] = text end
arg = {[0] = examples .. "/demo.lua", folder .. "/mission.sqm"}
dofile(examples .. "/demo.lua")
print = plain_print

equal(everything(folder), "Briefing.html Description.ext Overview.html Stringtable.csv mission.sqm music/ " ..
  "music/nocturne.ogg pic.jpg sound/ sound/callsign.ogg", "the mission's folder")
for _, name in ipairs{"Briefing.html", "Description.ext", "Overview.html", "Stringtable.csv"} do
  same(read_file(folder .. "/" .. name), read_file(case_folder .. "/written/" .. name), name)
end
for copy, original in pairs{["music/nocturne.ogg"] = "nocturne.ogg", ["sound/callsign.ogg"] = "callsign.ogg", ["pic.jpg"] = "levie.jpg"} do
  equal(read_file(folder .. "/" .. copy), read_file(examples .. "/media/" .. original), copy)
end
equal(read_file(folder .. "/mission.sqm"), read_file(examples .. "/Demo.Eden/mission.sqm"), "the mission itself")
equal(table.concat(printed, "|"):match("box:"), nil, "no box was shown")
equal(printed[1], "Objectives: 2 west, 1 east", "the objectives that it tells of")
equal(printed[2], "Written to " .. folder .. "/", "it tells where")
