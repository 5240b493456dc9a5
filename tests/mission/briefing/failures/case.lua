-- An end whose record is gone, a page that cannot be written, all under one name in the log.
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
local page = path(work) .. "\\page.html"
local from = #log()
proc.UlozBriefing(page, "p", "n")
equal(log():sub(from + 1), "Vytváření: " .. page .. "\r\n", "a good page logs its start alone")
from = #log()
proc.UlozBriefing(path(work) .. "\\nowhere\\page.html", "p", "n")
local failure = "Nastala chyba při ukládání Briefing.html : 76 ,Path not found\r\n"
equal(log():sub(from + 1), "Vytváření: " .. path(work) .. "\\nowhere\\page.html\r\n" .. failure .. failure, "a folder that is not there: neither emptied nor written")
shared.PocetUkolu = 3 -- counts that lie: the array has no such elements
from = #log()
proc.UlozBriefing(page, "p", "n")
contains(log():sub(from + 1), "Nastala chyba při ukládání Briefing.html : 9 ,Subscript out of range\r\n", "a missing record is logged")
contains(read_file(work .. "/page.html"), "</HTML>\r\n\r\n", "and the page is written all the same")
