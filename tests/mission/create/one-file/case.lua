-- The one-file procedures write single variants under lower-case names, whatever variants are chosen.
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
shared.JazykBrifing, shared.JazykOverview = "All", "All"
frmmain.txtBriefink.text = "plan"
proc.createBriefing()
equal(listing(folder), "briefing.html mission.sqm", "one briefing")
contains(read_file(folder .. "/briefing.html"), "\r\nplan\r\n", "of the field's text")
os.remove(folder .. "/briefing.html")
proc.createDescription()
contains(listing(folder), "description.ext", "the description")
os.execute("rm '" .. folder .. "'/*.ext '" .. folder .. "'/*.csv")
proc.createOverview()
equal(listing(folder), "mission.sqm overview.html", "one overview")
