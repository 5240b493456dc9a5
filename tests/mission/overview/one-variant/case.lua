-- One language: one file, named after it. The briefing's language is another matter.
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
shared.JazykOverview = "Spanish"
shared.JazykBrifing = "All"
frmmain.seznamakci:select(1)
frmmain.cmdvytvor:click()
equal(listing(folder), "Overview.Spanish.html mission.sqm", "one overview, no briefing")
write_file(folder .. "/Overview.Spanish.html", ("older and longer\r\n"):rep(200))
frmmain.txtJmenoMise.text = "Most"
frmmain.cmdvytvor:click()
local page = read_file(folder .. "/Overview.Spanish.html")
lacks(page, "older", "the older page is gone")
equal(page:sub(-18), "</BODY>\r\n</HTML>\r\n", "the one of the writing")
