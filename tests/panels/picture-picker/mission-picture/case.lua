-- The overview's picture is picked.
dofile(arg[1] .. "/pictures.lua")
local folder = mission("m.Eden")
local pictures = make_folder(work .. "/moje obrázky")
write_file(pictures .. "/Žlutá; mapa.Jpg", jpeg(512, 256))
write_file(pictures .. "/Mapa.PAA", "paa")
write_file(pictures .. "/photo.jpeg", jpeg(8, 8))
write_file(pictures .. "/broken.jpg", "no picture")
write_file(pictures .. "/notes.txt", "text")
local game = make_folder(work .. "/game")
install_game(game)
start("MISSION=" .. folder .. "/mission.sqm")
equal(Frmopen.File1.pattern, "*.jpg;*.paa*", "files that are offered")
local picked = path(pictures) .. "\\Žlutá; mapa.Jpg"

on.modal.Frmopen = function(form)
  equal(form.caption, "Načíst obrázek...", "title")
  contains(log(), "Načítání obrázku\r\n", "log of the opening")
  equal(form.Dir1.path, path(game), "it begins in the game's folder")
  form.Dir1.path = path(pictures)
  equal(table.concat(form.File1:names(), "|"), "broken.jpg|Mapa.PAA|Žlutá; mapa.Jpg", "pictures of the folder")
  form.File1:select("Žlutá; mapa.Jpg")
  equal(shared.CestaObrazku, picked, "a click chooses")
  equal(form.imgnahled.path, picked, "and shows")
  equal(shared.CilObrazku, "", "but only OK gives it its place")
  form.cmdOk:click()
  equal(form.visible, false, "OK hides the picker")
end
frmmain.cmdopen:click()
contains(log(), "Načítání obrázku z: " .. picked .. "\r\n", "log of the choice")
equal(shared.CilObrazku, path(folder) .. "\\pic.Jpg", "its place in the mission, with its extension as it stands")
equal(frmmain.lbljmeno.caption, "Žlutá; mapa.Jpg", "name")
equal(frmmain.Picnahled.path, picked, "preview")
equal(tmpfrm.tmppic1.path, picked, "it is measured in the scratch field")
equal(frmmain.lblsize.caption, "512 x 256", "size")

-- a .paa cannot be shown
pick_picture(pictures, "Mapa.PAA")
frmmain.cmdopen:click()
equal(shared.CestaObrazku .. "|" .. shared.CilObrazku, path(pictures) .. "\\Mapa.PAA|" .. path(folder) .. "\\pic.PAA", "a .paa is chosen")
equal(frmmain.lbljmeno.caption, "Mapa.PAA", "its name")
equal(frmmain.Picnahled.path .. "|" .. frmmain.lblsize.caption, picked .. "|512 x 256", "preview and size stay as they were")

-- a .jpg that is none, a .jpg that came later, a long extension
pick_picture(pictures, "broken.jpg")
frmmain.cmdopen:click()
equal(shared.CilObrazku, path(folder) .. "\\pic.jpg", "a broken picture is chosen")
equal(frmmain.Picnahled.path .. "|" .. frmmain.lblsize.caption, picked .. "|512 x 256", "preview and size stay")
write_file(pictures .. "/later.jpg", jpeg(2, 4))
pick_picture(pictures, "later.jpg")
frmmain.cmdopen:click()
equal(frmmain.lblsize.caption, "2 x 4", "a new file is found")
shared.CestaObrazku = ""
on.modal.Frmopen = nil
frmmain.cmdopen:click()
equal(frmmain.lblsize.caption, "2 x 4", "closing the window chooses nothing")

-- no picture
frmmain.cmdnic:click()
equal(shared.CestaObrazku .. shared.CilObrazku .. frmmain.Picnahled.path .. frmmain.lbljmeno.caption, "", "no picture: paths, preview and name are gone")
equal(frmmain.lblsize.caption, "2 x 4", "the size stays")

-- OK without a file, cancel
on.modal.Frmopen = function(form) form.Dir1.path = path(work) form.cmdOk:click() end
frmmain.cmdopen:click()
equal(shared.CilObrazku .. frmmain.lbljmeno.caption, "", "OK without a file gives no picture")
pick_picture(pictures, "later.jpg")
frmmain.cmdopen:click()
pick_picture(pictures, "Mapa.PAA", "cmdstorno")
local from = #log()
frmmain.cmdopen:click()
equal(log():sub(from + 1), "Načítání obrázku\r\nStornování operace Načítání obrázku\r\n", "log of the cancel")
equal(shared.CestaObrazku .. "|" .. shared.CilObrazku, "|" .. path(folder) .. "\\pic.jpg", "cancel empties the source alone")
equal(frmmain.lbljmeno.caption, "later.jpg", "the name stays")
equal(Frmopen.visible, false, "and hides the picker")

-- what is still highlighted at the next showing can be taken at once
frmmain.cmdnic:click()
on.modal.Frmopen = function(form) form.cmdOk:click() end
frmmain.cmdopen:click()
equal(shared.CestaObrazku .. "|" .. frmmain.lbljmeno.caption, path(pictures) .. "\\Mapa.PAA|Mapa.PAA", "OK alone takes the highlighted file")
