-- Members of trees, pictures, sliders, progress bars, disk lists, tab strips and browsers.
local folder = mission("m.Eden")
make_folder(folder .. "/sub b")
make_folder(folder .. "/Aaa")
write_file(folder .. "/Žluť.sqm", "x")
write_file(folder .. "/readme.txt", "x")
start("MISSION=" .. folder .. "/mission.sqm")

local tree = frmcamp4.campfiles
equal(tree.kind, "tree", "kind of a tree")
equal(#tree, 0, "no nodes")
equal(#tree:keys(), 0, "no keys")
equal(tree:node("X"), nil, "no node")
equal(tree.selected, nil, "nothing selected")
fails(function() tree:click("X") end, "frmcamp4.campfiles has no node X", "a click on a node that is not there")

local picture = frmmain.Picnahled
equal(picture.kind, "picture", "kind of a picture")
equal(picture.path, "", "no picture")
equal(picture.width, 0, "no width")
equal(picture.height, 0, "no height")
equal(math.type(picture.color), "integer", "a colour")

local slider = frmdalsinast.x
equal(frmcamp7.souborylist.kind, "slider", "kind of a slider")
equal(frmcamp7.souborylist.min, 0, "lower limit")
equal(frmcamp7.souborylist.max, 2, "upper limit")
frmcamp7.souborylist:scroll(2)
equal(frmcamp7.souborylist.value, 2, "dragged")
frmcamp7.souborylist:scroll(50)
equal(frmcamp7.souborylist.value, 2, "never past the limit")
frmcamp7.souborylist.value = 1
equal(frmcamp7.souborylist.value, 1, "written")
equal(slider.max, 1000, "another slider")

local progress = Form1.prubeh
equal(progress.kind, "progress", "kind of a progress bar")
equal(progress.value, 0, "its value")
fails(function() progress.value = 1 end, "cannot be written", "the user moves no progress bar")

on.modal.frmopenmission = function(form)
  form.Dir1.path = path(folder)
  equal(form.Dir1.kind, "folderlist", "kind of a folder list")
  equal(form.Dir1.path, path(folder), "the folder")
  equal(table.concat(form.Dir1:names(), "|"), "Aaa|sub b", "its subfolders, by name ignoring case")
  fails(function() form.Dir1.path = path(folder) .. "\\nowhere" end, "no folder", "a folder that is not there")
  equal(form.File1.kind, "filelist", "kind of a file list")
  equal(form.File1.path, path(folder), "it follows the folder")
  equal(form.File1.pattern, "*.sqm*", "the pattern")
  equal(table.concat(form.File1:names(), "|"), "mission.sqm|Žluť.sqm", "its files")
  equal(form.File1.selected, "", "none is highlighted")
  form.File1:select("Žluť.sqm")
  equal(form.File1.selected, "Žluť.sqm", "the user clicks one")
  equal(shared.SouborMise, path(folder) .. "\\Žluť.sqm", "the handler ran")
  fails(function() form.File1:select("readme.txt") end, "has no file readme.txt", "a file that does not match")
  write_file(folder .. "/later.sqm", "x")
  form.File1:select("later.sqm")
  equal(form.File1.selected, "later.sqm", "a file that came later is found")
  equal(form.Drive1.kind, "drivelist", "kind of a drive list")
  equal(form.Drive1:names()[1], "\\", "the root is a drive")
  form.Drive1.drive = "\\"
  equal(form.Drive1.drive, "\\", "the drive")
  fails(function() form.Drive1.drive = "q:" end, "no drive q:", "a drive that is not there")
  form.Command2:click()
end
frmmain.mnufileopen:click()

local tabs = frmmain.SSTab1
equal(tabs.kind, "tabstrip", "kind of a tab strip")
equal(#tabs, 8, "tabs")
equal(tabs.tab, 0, "the tab on top")
tabs.tab = 7
equal(tabs.tab, 7, "another one")
equal(tabs:caption(0), "C22", "caption of a tab")
fails(function() tabs.tab = 8 end, "frmmain.SSTab1 has no tab 8", "a tab that is not there")

equal(frmnahled.nahledbrowser.kind, "browser", "kind of a browser")
equal(frmmain.CommonDialog1.kind, "dialog", "kind of a dialog")
equal(frmmain.mnufile.kind, "menu", "kind of a menu")
equal(frmmain.Frame1.kind, "group", "kind of a group")
equal(frmmain.cmdend.kind, "command", "kind of a command")
equal(frmmain.lblx.kind, "label", "kind of a label")
equal(frmmain.lblx.caption, "s", "caption of a label")
fails(function() frmmain.lblx.caption = "x" end, "cannot be written", "the user writes no caption")
fails(function() return #frmmain.lblx end, "has no length", "a label has no rows")
