-- The files of the three lists go into the mission's folders, marked or not, over older ones.
local source = make_folder(work .. "/zdroj; \"x\"")
for _, name in ipairs{"hlas.ogg", "a b;c.ogg", "výstřel.ogg", "píseň.ogg"} do
  write_file(source .. "/" .. name, "data of " .. name .. "\r\n")
end
start("MISSION=" .. mission_folder .. "/mission.sqm")
local function take(command, ...)
  local names = {...}
  on.modal.frmnactizvuky = function(form)
    form.Dir1.path = path(source)
    for _, name in ipairs(names) do form.File1:select(name) form.cmdadd:click() end
    form.cmdopen:click()
  end
  command:click()
end
proc.KopirujZvuky()
check(not exists(mission_folder .. "/music"), "no music, no folder")
take(frmmain.cmdnacistradio, "hlas.ogg", "a b;c.ogg")
frmmain.seznamradia:mark(1, false)
take(frmmain.cmdnacistzvuk, "výstřel.ogg")
take(frmmain.cdmnactihudbu, "píseň.ogg")
for _, store in ipairs{"Radia", "Zvuky", "Hudby"} do shared[store][0].Jmeno = "another name" end
check(not exists(mission_folder .. "/music"), "nothing is copied before the mission is written")
proc.KopirujZvuky()
equal(Form1.visible, false, "the progress window is gone")
nothing_failed("nothing failed")
equal(Form1.prubeh.max, 1, "the last list had one file")
equal(Form1.prubeh.value, 1, "and it is done")
equal(Form1.Label1.caption, "T82 píseň.ogg", "the last file")

-- the campaign's lists have their own way
equal(#frmcamp5.seznamradia, 0, "the campaign has none")
