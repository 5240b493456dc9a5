-- Two sounds whose names differ in case alone: to the game they are one file, and the later one stays.
local source, folder = make_folder(work .. "/source"), mission("m.Eden")
write_file(source .. "/Hlas.ogg", "large")
write_file(source .. "/hlas.OGG", "small")
make_folder(folder .. "/Sound")
start("MISSION=" .. folder .. "/mission.sqm")
on.modal.frmnactizvuky = function(form)
  form.Dir1.path = path(source)
  for _, name in ipairs{"Hlas.ogg", "hlas.OGG"} do form.File1:select(name) form.cmdadd:click() end
  form.cmdopen:click()
end
frmmain.cmdnacistradio:click()
equal(rows(frmmain.seznamradia), "Hlas.ogg|hlas.OGG", "both can be picked")
proc.KopirujZvuky()
nothing_failed("nothing failed")
equal(listing(folder), "Sound mission.sqm", "the folder that is there is taken")
equal(listing(folder .. "/Sound"), "Hlas.ogg", "one file, under its first name")
equal(read_file(folder .. "/Sound/Hlas.ogg"), "small", "of the later one")
