-- Language variants multiply the briefing; their texts are the same.
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
frmmain.txtBriefink.text = "plan ž"
frmmain.seznamakci:select(0)
shared.JazykBrifing = "All"
local from = #log()
frmmain.cmdvytvor:click()
local order = {}
for name in log():sub(from + 1):gmatch("Vytváření: [^\r]*\\([^\\\r]+)\r\n") do order[#order + 1] = name end
equal(table.concat(order, " "), "Briefing.html Briefing.German.html Briefing.English.html Briefing.Spanish.html Briefing.Italian.html Briefing.French.html Briefing.Czech.html", "seven files in this order")
local first = read_file(folder .. "/Briefing.html")
contains(first, "\r\nplan \158\r\n", "in the code page")
for _, name in ipairs(order) do equal(read_file(folder .. "/" .. name), first, name .. " is the same") end
os.execute("rm '" .. folder .. "'/*.html")
shared.JazykBrifing = "Czech"
frmmain.cmdvytvor:click()
equal(listing(folder), "Briefing.Czech.html mission.sqm", "one language: one file")
