-- The same picker for the picture of a title (mode 9): the mission's overview is not touched.
dofile(arg[1] .. "/pictures.lua")
local folder = mission("m.Eden")
write_file(work .. "/one.jpg", jpeg(8, 8))
write_file(work .. "/two.paa", "paa")
start("MISSION=" .. folder .. "/mission.sqm")
pick_picture(work, "one.jpg")
frmmain.cmdopen:click()

-- a title: its caller takes the path alone
shared.RezimOtevreni = 9
Frmopen.File1:select("two.paa")
local from = #log()
Frmopen.cmdOk:click()
equal(log():sub(from + 1), "Načítání obrázku z: " .. path(work) .. "\\two.paa\r\n", "log of the choice")
equal(shared.CestaObrazku, path(work) .. "\\two.paa", "the path is the caller's")
equal(shared.CilObrazku .. "|" .. frmmain.lbljmeno.caption, path(folder) .. "\\pic.jpg|one.jpg", "the overview keeps its place and name")

-- the main form's command picks for the mission again
pick_picture(work, "two.paa")
frmmain.cmdopen:click()
equal(shared.RezimOtevreni, 0, "the mode is the mission's")
equal(shared.CilObrazku .. "|" .. frmmain.lbljmeno.caption, path(folder) .. "\\pic.paa|two.paa", "and so is the picture")
equal(shared.ObrazekKampane, "", "the campaign has none")
