-- Addon lists: headers by section, names, the last entry that is lost, tags.
start()
local function scan(text)
  proc.NactiSqm(path(mission("m", text) .. "/mission.sqm"))
  local all = {}
  for i = 0, #frmdalsinast.addony - 1 do all[#all + 1] = frmdalsinast.addony[i].text .. ":" .. frmdalsinast.addony[i].tag end
  return table.concat(all, "|")
end
local function list(...) local s = "\taddOns[]=\n\t{\n" for i, n in ipairs{...} do s = s .. '\t\t"' .. n .. '"' .. (i < select("#", ...) and "," or "") .. "\n" end return s .. "\t};\n" end
equal(scan("class Mission\n{\n" .. list("bis", "apac", "g36a") .. "};\n"), "Mission -->:0|bis:1|apac:1", "the last entry of a list gets no row")
equal(scan("class Mission\n{\n" .. list("bis", "apac") .. "};\nclass Intro\n{\n" .. list("a", "b") .. "};\nclass OutroWin\n{\n" .. list("c", "d") .. "};\nclass OutroLoose\n{\n" .. list("e", "f") .. "};\n"),
  "Mission -->:0|bis:1|Intro -->:0|a:1|OutroWin -->:0|c:1|OutroLoose -->:0|e:1", "a header for each section")
equal(scan("class Mission\n{\n\taddOns[]={};\n};\n"), "", "an empty list adds no header")
equal(scan("class Mission\n{\n\taddOns[]=\n\t{\n\t};\n};\n"), "Mission -->:0", "a list with nothing in it has its header")
equal(scan("class Mission\n{\n" .. list("only") .. "};\n"), "Mission -->:1", "one entry: the tag falls on the header")
equal(scan("class Mission\n{\n\tADDONS[] =\n\t{\n\t\t  \"x\" , \"y\",\n\t\t'z'\n\t};\n};\n"), "Mission -->:0|x:1|x:1", "up to the first comma; a line without a quote repeats the last name")
equal(scan(list("a", "b")), "a:1", "before any section there is no header")
equal(scan("class Mission\n{\n\taddOns[]={\"a\",\"b\"};\n\t\t\"c\",\n\t};\n"), "Mission -->:0|c:1", "a list on one line is read from the next line on")
equal(scan("class Mission\n{\n\taddOns[]=\n\t{\n\t\t\"a\",\n\t\t\"b\",\n"), "Mission -->:0|a:1|b:1", "a list that never ends, ends with the file")
equal(scan("addOnsAuto[]=\n{\n\"a\",\n};\n"), "", "the automatic list is another one")
