-- A description over a longer one of another spelling, and its log.
local folder = mission("m.Eden")
write_file(folder .. "/DESCRIPTION.EXT", ("old\r\n"):rep(5000))
start("MISSION=" .. folder .. "/mission.sqm")
local from = #log()
proc.UlozDescription(path(folder) .. "\\description.ext")
check(log():sub(from + 1):find("Vytváření: " .. path(folder) .. "\\description.ext\r\n", 1, true) == 1, "its start is logged")
lacks(read_file(folder .. "/DESCRIPTION.EXT"), "old", "the file is replaced under its own spelling")
equal(exists(folder .. "/description.ext"), false, "there is no second one")
