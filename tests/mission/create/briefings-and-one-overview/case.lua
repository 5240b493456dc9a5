-- All variants of the briefing with the overview's alone: seven briefings, one overview, in their order around the
-- description.
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
shared.JazykBrifing, shared.JazykOverview = "All", ""
frmmain.seznamakci:select(3)
local from = #log()
frmmain.cmdvytvor:click()
local order = {}
for name in log():sub(from + 1):gmatch("Vytváření: [^\r]*\\([^\\\r]+%.%a+)\r\n") do order[#order + 1] = name end
equal(table.concat(order, " "), "Briefing.html Briefing.German.html Briefing.English.html Briefing.Spanish.html Briefing.Italian.html Briefing.French.html Briefing.Czech.html "
  .. "Description.ext Stringtable.csv Overview.html", "the files in their order")
equal(listing(folder), "Briefing.Czech.html Briefing.English.html Briefing.French.html Briefing.German.html Briefing.Italian.html Briefing.Spanish.html Briefing.html "
  .. "Description.ext Overview.html Stringtable.csv mission.sqm", "and nothing else")
