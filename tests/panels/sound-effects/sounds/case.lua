-- Sounds of a class: live editors, chance, delays, marks, removing.
start()
local f = frmdalsinast
local fields = {"cmddel2", "cmddelall2", "txtzvuk", "txthlasitost", "txthloubka", "txtsance", "txtmindelay",
  "txtmaxdelay", "cmdopen", "txtneznamy"}
local function all_enabled(want, what)
  for _, name in ipairs(fields) do equal(f[name].enabled, want, what .. ": " .. name) end
end
local function sound(i) return shared.Sfx[0].Zvuky[i] end
f.cmdadd1:click()
f.List1:select(0)
f.cmdadd2:click()
equal(rows(f.List2), "T106 1", "row")
equal(marks(f.List2), "+", "marked")
equal(shared.Sfx[0].Zvuky.bound, 1, "one sound and one spare element")
equal(sound(0).Zapnuto, -1, "a marked sound is on")
all_enabled(true, "with a sound")
f.txtzvuk.text = "\\lost.ogg"
equal(sound(0).Soubor, "", "with nothing highlighted an editor writes nothing")
f.cmdadd2:click()
f.cmdadd2:click()
equal(rows(f.List2), "T106 1|T106 2|T106 3", "rows")

local values = {txtzvuk = "Soubor", txthlasitost = "Hlasitost", txthloubka = "Hloubka", txtneznamy = "Neznamy"}
for i = 0, 2 do
  f.List2:select(i)
  equal(f.txtzvuk.text, "", "an empty record empties the box " .. i)
  equal(f.txtmindelay.text, "0", "a delay of nothing is 0")
  for box, value in pairs(values) do f[box].text = value .. " č. " .. i end
  f.txtsance.text = "0." .. i
  f.txtmindelay.text = tostring(10 + i)
  f.txtmaxdelay.text = tostring(20 + i)
end
for i = 0, 2 do
  for _, value in pairs(values) do equal(sound(i)[value], value .. " č. " .. i, value .. " of " .. i) end
  equal(sound(i).Sance .. "/" .. sound(i).MinDelay .. "/" .. sound(i).MaxDelay, "0." .. i .. "/1" .. i .. "/2" .. i, "numbers")
end
f.List2:select(1)
equal(f.txtneznamy.text .. "/" .. f.txtmaxdelay.text, "Neznamy č. 1/21", "a click loads")
equal(sound(1).Hloubka, "Hloubka č. 1", "and changes nothing")

-- chance: the first comma alone turns into a point, the box keeps what was typed
for typed, stored in pairs {["0,5"] = "0.5", ["0.5"] = "0.5", ["1,2,3"] = "1.2,3", [","] = ".", [""] = ""} do
  f.txtsance.text = typed
  equal(sound(1).Sance, stored, "chance " .. typed)
  equal(f.txtsance.text, typed, "the box keeps " .. typed)
end
-- delays: whole 16-bit numbers, what is none leaves the field
f.txtmindelay.text = "-7"
equal(sound(1).MinDelay, -7, "a negative delay")
for _, typed in ipairs {"abc", "", "7s", "40000", "-40000"} do
  f.txtmindelay.text = typed
  equal(sound(1).MinDelay, -7, "no delay: " .. typed)
end
f.txtmindelay.text = "32767"
equal(sound(1).MinDelay, 32767, "the longest delay")
f.txtmaxdelay.text = "2.5"
equal(sound(1).MaxDelay, 2, "a half goes to the even number")

-- marks
f.List2:mark(0, false)
equal(sound(0).Zapnuto, 0, "a mark taken off")
f.cmdadd1:click()
f.List1:select(1)
equal(#f.List2, 0, "the other class has none")
all_enabled(false, "nothing to edit there")
f.List1:select(0)
equal(marks(f.List2), "-++", "marks come from the records")
all_enabled(true, "back")
equal(sound(0).Zapnuto, 0, "and stay there")

-- removing
f.List2:select(0)
f.cmddel2:click()
equal(rows(f.List2), "T106 2|T106 3", "the row is gone")
equal(sound(0).Soubor .. "/" .. sound(1).Soubor, "Soubor č. 1/Soubor č. 2", "later sounds moved down")
equal(f.List1[0].tag .. "/" .. shared.Sfx[0].Zvuky.bound, "2/2", "count and bound")
f.cmddel2:click()
equal(#f.List2, 2, "with nothing highlighted no row goes")
equal(sound(0).Soubor, "Soubor č. 2", "but the first record does")
equal(f.List1[0].tag, 1, "and the count falls")
f.cmddel2:click()
equal(#f.List2, 0, "the last one clears the list")
equal(f.List1[0].tag .. "/" .. shared.Sfx[0].Zvuky.bound, "0/0", "count and bound")
all_enabled(false, "none left")
f.cmdadd2:click()
equal(rows(f.List2), "T106 1", "numbered from 1 again")
f.cmdadd2:click()
f.cmddelall2:click()
equal(#f.List2, 0, "cmddelall2 clears the list")
equal(f.List1[0].tag .. "/" .. shared.Sfx[0].Zvuky.bound, "0/0", "and the record")
all_enabled(false, "after cmddelall2")
f.cmdadd2:click()
equal(rows(f.List2), "T106 1", "a sound added after it is number 1")
equal(f.List1[0].tag, 1, "counted")
