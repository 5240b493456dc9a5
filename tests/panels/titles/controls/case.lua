-- Controls of a title: kinds and styles, sliders, font, picture, removing.
start()
local f = frmdalsinast
local function control(j) return shared.Tituly[0].Prvky[j or 0] end
local function all_enabled(names, want, what)
  for name in names:gmatch("%S+") do equal(f[name].enabled, want, what .. ": " .. name) end
end
local fields = "cmdodebrat2 cmdelvse2 Option1 Option2 txtstyl txttext x y w h picbackcolor pictextcolor txtvelikost pisma cba cta"

-- a JPEG of 16 by 8, its head alone
local picture = work .. "/obr ázek.jpg"
write_file(picture, "\xFF\xD8\xFF\xC0\0\x0B\8\0\8\0\16\1\1\x11\0\xFF\xD9")
write_file(work .. "/bad.jpg", "no picture")

f.cmdpridat1:click()
f.List3:select(0)
f.cmdpridat2:click()
equal(rows(f.List4), "T109 1", "row")
equal(marks(f.List4), "+", "marked")
equal(shared.Tituly[0].Prvky.bound, 1, "one control and one spare element")
equal(control().Zapnuto, -1, "a marked control is on")
all_enabled(fields .. " txtnazev2", true, "with a control")
equal(f.cmdopen3.enabled, false, "a picture is chosen for pictures alone")
f.txttext.text = "nikam"
equal(control().Text, "", "with nothing highlighted an editor writes nothing")
f.cmdpridat2:click()
f.cmdpridat2:click()

f.List4:select(0)
equal(f.Option1.value, true, "a new control is a text")
equal(f.txtstyl.text .. control().Styl, "00", "with the style of texts")
equal(f.pisma.text, control().Pismo, "the font on show is stored")
f.txtnazev2.text = "Napis"
f.txttext.text = "Ahoj \"světe\"; ," .. crlf("\nb")
f.txtstyl.text = "16"
f.List4:select(1)
equal(f.txtstyl.text .. control(1).Styl, "00", "the next new one too")
f.Option2.value = true
equal(control(1).Druh .. "/" .. control(1).Styl .. "/" .. f.txtstyl.text, "1/48/48", "a picture has its style")
equal(f.cmdopen3.enabled, true, "and can be chosen")
f.txtstyl.text = "2"
f.txttext.text = path(picture)
equal(f.picnahled.path, "", "typing a path shows nothing")
f.List4:select(2)
f.Option2.value = true
f.txttext.text = path(work .. "/bad.jpg")

-- showing a control changes nothing of it
f.List4:select(0)
equal(control().Druh .. "/" .. control().Styl .. "/" .. f.txtstyl.text, "0/16/16", "a text keeps its style")
equal(control().Text, "Ahoj \"světe\"; ," .. "\r\nb", "and its text")
equal(f.picnahled.path, "", "a text has no preview")
equal(f.cmdopen3.enabled, false, "nor a picture to choose")
f.List4:select(1)
equal(control(1).Druh .. "/" .. control(1).Styl .. "/" .. f.txtstyl.text, "1/2/2", "a picture keeps its style")
equal(f.picnahled.path .. f.picnahled.width .. "x" .. f.picnahled.height, path(picture) .. "16x8", "and is shown")
equal(f.cmdopen3.enabled, true, "and can be chosen")
f.List4:select(2)
equal(f.picnahled.path, path(picture), "one that cannot be loaded leaves the preview")
f.Option1.value = true
equal(control(2).Druh .. "/" .. control(2).Styl, "0/0", "back to text")

-- styles
for typed, stored in pairs {["7"] = "7", ["-1"] = "0", ["12abc"] = "12", ["1.50"] = "1.5", ["abc"] = "0"} do
  f.txtstyl.text = typed
  equal(control(2).Styl, stored, "style " .. typed)
end
f.txtstyl.text = "3"
f.txtstyl.text = ""
equal(control(2).Styl, "3", "an empty box leaves the style")
equal(f.txtstyl.text, "", "and stays empty")

-- sliders, by value and by dragging
for box, value in pairs {x = "X", y = "Y", w = "W", h = "H"} do
  f[box].value = 250
  equal(control(2)[value], 0.25, "slider " .. box)
  f[box]:scroll(1000)
  equal(control(2)[value], 1, "dragged to the end " .. box)
end
f.x.value = 1
f.List4:select(0)
equal(f.x.value .. "/" .. f.w.value, "0/0", "sliders of the other control")
f.List4:select(2)
equal(f.x.value .. "/" .. f.y.value, "1/1000", "and back, also the smallest step")
f.txtvelikost.text = "0.025"
f.pisma:select(1)
equal(control(2).Pismo, "CourierNewB64", "a chosen font is stored")
f.List4:select(0)
f.List4:select(2)
equal(f.txtvelikost.text, "0.025", "the size comes back as it was typed")

-- fonts are searched by their beginning, in a list that should be sorted
shared.Tituly[0].Prvky[0].Pismo = "steel"
f.List4:select(0)
equal(f.pisma.text, "SteelfishB64", "found by its beginning")
shared.Tituly[0].Prvky[0].Pismo = "Zapf"
f.List4:select(0)
equal(f.pisma.index, -1, "one that is not in the list shows none")
equal(control().Pismo, "Zapf", "and is kept")

-- marks and removing
f.List4:mark(1, false)
equal(control(1).Zapnuto, 0, "a mark taken off")
f.cmdpridat1:click()
f.List3:select(1)
all_enabled(fields .. " txtnazev2 cmdopen3", false, "a title without controls")
f.List3:select(0)
equal(rows(f.List4) .. marks(f.List4), "T109 1|T109 2|T109 3+-+", "rows and marks from the records")
f.List4:select(1)
equal(f.cmdopen3.enabled, true, "the picture can be chosen again")
f.List4:select(0)
f.cmdodebrat2:click()
equal(rows(f.List4), "T109 2|T109 3", "the row is gone")
equal(control(0).Text, path(picture), "later controls moved down")
equal(f.List3[0].tag .. "/" .. shared.Tituly[0].Prvky.bound, "2/2", "count and bound")
f.cmdodebrat2:click()
equal(#f.List4, 2, "with nothing highlighted no row goes")
equal(control(0).Text, path(work .. "/bad.jpg"), "but the first record does")
f.cmdodebrat2:click()
equal(#f.List4 .. "/" .. f.List3[0].tag .. "/" .. shared.Tituly[0].Prvky.bound, "0/0/0", "the last one clears all")

-- clearing the controls turns off the class name of the environment sounds, not that of the control
f.Command2:click()
f.cmdpridat2:click()
equal(rows(f.List4), "T109 1", "numbered from 1")
f.List4:select(0)
f.Option2.value = true
equal(f.txtnazev.enabled, true, "the environment sounds are edited")
f.cmdelvse2:click()
equal(#f.List4 .. "/" .. f.List3[0].tag .. "/" .. shared.Tituly[0].Prvky.bound, "0/0/0", "cmdelvse2")
all_enabled(fields .. " cmdopen3", false, "after cmdelvse2")
equal(f.txtnazev.enabled, false, "the wrong name")
equal(f.txtnazev2.enabled, true, "and the right one is left on")
