-- The readme of a mission is written as it stands in the field, over an older one.
start()
open_mission(mission_folder)
local box = frmdalsinast.txtdokument
equal(box.text, "Mission: T53\r\nBy Karel (karel@example.org)\r\nbis_tank\r\nlod\r\nEnd\r\n", "the template, filled")
write_file(mission_folder .. "/README.TXT", ("an older readme that is longer than the new one\r\n"):rep(20))
box.text = "Žluťoučký kůň\r\n<NAME> stays; \"so\" \xE2\x82\xAC \xE6\x97\xA5"
frmdalsinast.Command8:click()
local listed = listing(mission_folder)
equal(listed, "README.TXT mission.sqm", "the older file is replaced under its own name")
os.rename(mission_folder .. "/README.TXT", mission_folder .. "/Readme.txt")

-- one that cannot be written is lost quietly
shared.CestaMise = path(work) .. "\\not there\\"
local before = log()
frmdalsinast.Command8:click()
equal(log(), before, "nothing is logged")
equal(exists(work .. "/not there"), false, "and nothing made")
for _, event in ipairs(events) do check(event.kind ~= "box", "no box") end
