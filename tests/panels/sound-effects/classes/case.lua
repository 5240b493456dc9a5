-- Classes of sound effects: rows, names, item data, removing with and without a highlighted row.
start()
local f = frmdalsinast
local class_fields = {"cmddel1", "cmddelall1", "txtnazev1", "txjmeno", "cmdadd2"}
local sound_fields = {"cmddel2", "cmddelall2", "txtzvuk", "txthlasitost", "txthloubka", "txtsance", "txtmindelay",
  "txtmaxdelay", "cmdopen", "txtneznamy"}
local function all_enabled(names, want, what)
  for _, name in ipairs(names) do equal(f[name].enabled, want, what .. ": " .. name) end
end
local function tags()
  local text = ""
  for i = 0, #f.List1 - 1 do text = text .. f.List1[i].tag end
  return text
end

all_enabled(class_fields, false, "at the start")
all_enabled(sound_fields, false, "at the start")
f.cmdadd1:click()
equal(rows(f.List1), "T591", "text and number, no blank")
equal(marks(f.List1), "+", "marked")
equal(f.List1.index, -1, "not highlighted")
equal(f.PridavaPolozku, false, "the guard is down again")
equal(shared.PocetSfx .. "/" .. shared.Sfx.bound, "1/1", "count and bound")
equal(shared.Sfx[0].Zvuky.bound, -1, "a new class has no sounds")
all_enabled(class_fields, true, "with a class")
all_enabled(sound_fields, false, "but no sound")

-- sounds with nothing highlighted: a row comes, no record
f.cmdadd2:click()
equal(rows(f.List2), "T106 1", "text, a blank and the number")
equal(shared.Sfx[0].Zvuky.bound, -1, "no class is highlighted, so nothing is dimensioned")
equal(tags(), "0", "nor counted")

-- three classes with 1, 2 and 3 sounds
f.cmdadd1:click()
f.cmdadd1:click()
for i = 0, 2 do
  f.List1:select(i)
  equal(#f.List2, 0, "no sounds yet in " .. i)
  all_enabled(sound_fields, false, "a class without sounds")
  f.txtnazev1.text = "Trida" .. i
  f.txjmeno.text = "Jméno " .. i
  for j = 0, i do
    f.cmdadd2:click()
    f.List2:select(j)
    f.txtzvuk.text = "\\" .. i .. j .. ".ogg"
  end
end
equal(tags(), "123", "item data: number of sounds")
f.List1:select(1)
equal(f.txtnazev1.text .. "/" .. f.txjmeno.text, "Trida1/Jméno 1", "a click loads the class")
equal(rows(f.List2), "T106 1|T106 2", "and its sounds")
equal(f.List2.index, -1, "none of them highlighted")
equal(shared.Sfx[0].Nazev, "Trida0", "other classes are untouched")
equal(f.PocetZvukuTridy, 2, "sounds on show")

-- removing the first: the others keep their own numbers of sounds
f.List1:select(0)
f.cmddel1:click()
equal(rows(f.List1), "T592|T593", "the row is gone")
equal(tags(), "23", "each class has its own number")
equal(shared.Sfx[0].Nazev .. shared.Sfx[1].Nazev, "Trida1Trida2", "records moved")
equal(shared.PocetSfx .. "/" .. shared.Sfx.bound, "2/2", "count and bound")
f.List1:select(1)
equal(#f.List2, 3, "three sounds of the last class")
f.List2:select(2)
equal(f.txtzvuk.text, "\\22.ogg", "with their files")

-- with nothing highlighted: the rows stay, the records move
f.cmdadd1:click()
f.List1:select(2)
f.txtnazev1.text = "Posledni"
f.List1:select(0)
f.cmddel1:click()
equal(rows(f.List1), "T593|T593", "the number of a new one follows the count")
f.cmddel1:click()
equal(#f.List1, 2, "no row goes")
equal(shared.PocetSfx, 1, "the count falls")
equal(shared.Sfx[0].Nazev, "Posledni", "the first record is lost")
equal(f.List1[0].tag, 0, "and the first row has the number of the record that moved there")
f.cmddel1:click()
equal(#f.List1 .. "/" .. shared.PocetSfx .. "/" .. shared.Sfx.bound, "0/0/0", "the last one clears everything")
equal(#f.List2, 0, "sounds as well")
all_enabled(class_fields, false, "none left")
all_enabled(sound_fields, false, "none left")
equal(f.cmdadd1.enabled, true, "but for adding")

-- all at once
f.cmdadd1:click()
f.List1:select(0)
f.cmdadd2:click()
f.cmddelall1:click()
equal(#f.List1 .. "/" .. #f.List2 .. "/" .. shared.PocetSfx .. "/" .. shared.Sfx.bound, "0/0/0/0", "cmddelall1")
all_enabled(class_fields, false, "after cmddelall1")
all_enabled(sound_fields, false, "after cmddelall1")
f.cmdadd1:click()
f.List1:select(0)
equal(f.txtnazev1.text, "", "a new class is empty")
f.cmdadd2:click()
equal(rows(f.List2), "T106 1", "and its sounds are numbered from 1")
