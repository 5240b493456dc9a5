-- What Vytvoř writes by the chosen tag, in which order, and what it leaves alone.
start("MISSION=" .. mission("m.Eden") .. "/mission.sqm")
local folder = work .. "/m.Eden"
local function create(row)
  os.execute("rm -f '" .. folder .. "'/*.html '" .. folder .. "'/*.ext '" .. folder .. "'/*.csv")
  local from = #log()
  frmmain.seznamakci:select(row)
  frmmain.cmdvytvor:click()
  local order = {}
  for name in log():sub(from + 1):gmatch("Vytváření: [^\r]*\\([^\\\r]+)\r\n") do order[#order + 1] = name end
  return table.concat(order, " ")
end
equal(create(0), "Briefing.html", "tag 1: the briefing")
equal(listing(folder), "Briefing.html mission.sqm", "alone")
equal(create(2):match("^Description.ext"), "Description.ext", "tag 3: the description")
equal(exists(folder .. "/Briefing.html"), false, "the briefing is not touched")
equal(create(3):match("^Briefing.html Description.ext"), "Briefing.html Description.ext", "tag 4: all, the briefing first")
equal(read_file(folder .. "/mission.sqm"), crlf("version=11;\nclass Mission\n{\n};\n"), "the mission itself is never written")
equal(frmmain.cmdvytvor.enabled, true, "it may be pressed again")
