-- A custom face: its picture is picked, the player's folder chosen; creating the mission copies it there.
dofile(arg[1] .. "/pictures.lua")
local game = make_folder(work .. "/game")
local player = make_folder(game .. "/users/Jana Nová")
make_folder(game .. "/users/Karel")
install_game(game)
local faces = make_folder(work .. "/tváře")
write_file(faces .. "/já; 1.jpg", jpeg(64, 64))
write_file(faces .. "/ty.paa", "paa face")
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
Form2.txtnazev.text = "Ja"
Form2.cmdadd:click()
equal(shared.SlozkaUzivatele, "", "no player is chosen")
equal(tostring(Form2.Command1.enabled) .. tostring(Form2.List1.visible) .. tostring(Form2.lbljmeno.visible), "falsefalsefalse", "a stock face needs no picture")
Form2.ksichty:select(3)
equal(tostring(Form2.Command1.enabled) .. tostring(Form2.List1.visible) .. tostring(Form2.lbljmeno.visible), "truetruetrue", "the custom face does")
equal(shared.Identity[0].Oblicej, "Face1", "without one the old face stays")

on.modal.Frmopen = function(form)
  equal(form.caption, "Načíst obrázek obličeje...", "title of the picker")
  equal(form.File1.pattern, "*.jpg;*.paa*", "files that are offered")
  form.Dir1.path = path(faces)
  form.File1:select("já; 1.jpg")
  form.cmdOk:click()
end
local from = #log()
Form2.Command1:click()
local picture = path(faces) .. "\\já; 1.jpg"
equal(log():sub(from + 1), "Načítání obrázku pro obličej\r\nNačítání obrázku z: " .. picture .. "\r\n", "log")
equal(shared.Identity[0].Obrazek .. "|" .. shared.Identity[0].Oblicej, picture .. "|custom", "the record")
equal(Form2.Image1.path .. "|" .. Form2.lbljmeno.caption, picture .. "|" .. picture, "picture and path are shown")
equal(Form2.Image1.width, 64, "the picture itself")
equal(Frmopen.File1.pattern, "*.jpg*", "the picker offers faces in .jpg from now on")
equal(shared.CilObrazku .. frmmain.lbljmeno.caption, "", "the overview has no picture of it")

-- without a player the copy fails in silence
frmmain.seznamakci:select(0)
from = #log()
local at_root = exists("/face.jpg")
frmmain.cmdvytvor:click()
lacks(log():sub(from + 1), "face.jpg", "no player: nothing is said")
equal(exists(player .. "/face.jpg"), false, "and nothing copied")
equal(exists("/face.jpg"), at_root, "not to the disk's root either")

Form2.List1:select(0)
equal(shared.SlozkaUzivatele, path(game) .. "\\users\\Jana Nová", "the chosen player")
equal(shared.CestaProfilu, shared.SlozkaUzivatele, "under both names")
frmmain.cmdvytvor:click()
equal(read_file(player .. "/face.jpg"), jpeg(64, 64), "the face is copied")

-- the second face wins, whatever its format; a protected target gives way
Form2.txtnazev.text = "Ty"
Form2.cmdadd:click()
equal(shared.Identity[1].Obrazek .. shared.Identity[1].Oblicej, "", "a new identity waits for its picture")
pick_picture(faces, "ty.paa")
Form2.Command1:click()
equal(shared.Identity[1].Obrazek, path(faces) .. "\\ty.paa", "a .paa can be chosen")
equal(Form2.Image1.path .. "|" .. Form2.lbljmeno.caption, picture .. "|" .. path(faces) .. "\\ty.paa", "but not shown")
os.execute("chmod a-w '" .. player .. "/face.jpg'")
Form2.seznamidentit:mark(1, false)
frmmain.cmdvytvor:click()
equal(read_file(player .. "/face.jpg"), "paa face", "the last one stays, marked or not")
equal(listing(player), "face.jpg", "there is one file")

-- the face is taken from where it shall go
write_file(player .. "/face.jpg", jpeg(32, 32))
shared.Identity[0].Obrazek = ""
shared.Identity[1].Obrazek = shared.SlozkaUzivatele .. "\\FACE.jpg"
frmmain.cmdvytvor:click()
equal(read_file(player .. "/face.jpg"), jpeg(32, 32), "a face in its own place is left alone")

-- a picture that is gone, a folder that is gone
shared.Identity[1].Obrazek = path(faces) .. "\\já; 1.jpg"
os.execute("rm -r '" .. player .. "'")
frmmain.cmdvytvor:click()
equal(exists(player), false, "the player's folder is not made")

-- the overview's picture is another one
write_file(work .. "/map.jpg", jpeg(8, 8))
pick_picture(work, "map.jpg")
frmmain.cmdopen:click()
for _, command in ipairs{"cmdOk", "cmdstorno"} do
  pick_picture(faces, "ty.paa", command)
  Form2.Command1:click()
  equal(shared.CestaObrazku .. "|" .. frmmain.lbljmeno.caption, path(work) .. "\\map.jpg|map.jpg", command .. " for a face leaves the overview's picture alone")
end
pick_picture(faces, "já; 1.jpg")
Form2.Command1:click()

-- cancelling leaves the face; a stock face drops the picture
pick_picture(faces, "já; 1.jpg", "cmdstorno")
from = #log()
Form2.Command1:click()
equal(shared.Identity[1].Obrazek, picture, "cancel keeps the face")
on.modal.Frmopen = nil
Form2.Command1:click()
equal(shared.Identity[1].Obrazek, picture, "closing the window too")
Form2.seznamidentit:select(1)
equal(Form2.ksichty.text .. "|" .. shared.Identity[1].Oblicej, "T73|custom", "a click keeps it too: it is no stock face")
Form2.ksichty:select(0)
equal(shared.Identity[1].Obrazek .. "|" .. shared.Identity[1].Oblicej, "|Face1", "a stock face drops the picture")
equal(tostring(Form2.Command1.enabled) .. tostring(Form2.List1.visible) .. tostring(Form2.lbljmeno.visible), "falsefalsefalse", "and needs none")

-- the mission's picker is itself again
pick_picture(faces, "já; 1.jpg")
frmmain.cmdopen:click()
equal(Frmopen.caption, "Načíst obrázek...", "title of the picker for the overview")
equal(frmmain.lbljmeno.caption .. "|" .. shared.Identity[1].Obrazek, "já; 1.jpg|", "the overview's picture is no face")
