-- A page that the program wrote is read back at opening; line ends are lost, the picture's place is not chosen anew.
dofile(arg[1] .. "/pictures.lua")
local folder = mission("m.Eden")
write_file(work .. "/source.jpg", jpeg(256, 64))
start("MISSION=" .. folder .. "/mission.sqm")
frmmain.txtJmenoMise.text = "Žlutý most"
frmmain.txtOverview.text = "Dobyt most.\r\nŘeka je <B>hluboká</B>."
frmmain.Sirka:select(7)
frmmain.Vyska:select(3)
shared.CestaObrazku = path(work) .. "\\source.jpg"
shared.CilObrazku = path(folder) .. "\\pic.jpg"
frmmain.seznamakci:select(1)
frmmain.cmdvytvor:click()
quit()

start()
open_mission(folder, true)
local picture = path(folder) .. "\\\\pic.jpg"
equal(frmmain.txtJmenoMise.text, "Žlutý most", "name")
equal(frmmain.txtOverview.text, "Dobyt most.Řeka je hluboká.", "text outside tags, line ends lost")
equal(frmmain.Sirka.index .. " " .. frmmain.Vyska.index, "7 3", "sizes")
equal(shared.CestaObrazku, picture, "source: two backslashes do no harm")
equal(shared.CilObrazku, "", "the picture has no place yet")
equal(frmmain.lbljmeno.caption, picture, "its path is shown")
equal(frmmain.Picnahled.path, picture, "so is the picture")
equal(frmmain.Picnahled.width .. " x " .. frmmain.Picnahled.height, "256 x 64", "in its size")
equal(frmmain.lblsize.caption, "", "the label of the size is the picker's")
in_order(log(), {"Načítání overview z: " .. path(folder) .. "\\Overview.html, ", "\r\nKonec načítání overview\r\nJméno mise: Žlutý most\r\nText Overview: \r\nDobyt most.Řeka je hluboká.\r\n"}, "log")
check(log():match("Načítání overview z: [^\r]*Overview%.html, %d%d:%d%d:%d%d\r\n"), "the start line has the time")
nothing_failed("nothing failed")
