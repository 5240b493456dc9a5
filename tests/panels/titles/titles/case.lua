-- Titles: rows, editors, removing with and without a highlighted row.
start()
local f = frmdalsinast
local title_fields = {"txtnazev3", "txtjmeno", "pohyb", "txtdoba", "cmdodebrat1", "cmdelvse1", "cmdpridat2"}
local control_fields = {"cmdodebrat2", "cmdelvse2", "Option1", "Option2", "txtnazev2", "txtstyl", "txttext", "x", "y",
  "w", "h", "picbackcolor", "pictextcolor", "txtvelikost", "pisma", "cba", "cta"}
local function all_enabled(names, want, what)
  for _, name in ipairs(names) do equal(f[name].enabled, want, what .. ": " .. name) end
end
local function tags()
  local text = ""
  for i = 0, #f.List3 - 1 do text = text .. f.List3[i].tag end
  return text
end

all_enabled(title_fields, false, "at the start")
all_enabled(control_fields, false, "at the start")
f.cmdpridat1:click()
equal(rows(f.List3), "T108 1", "text, a blank and the number")
equal(marks(f.List3), "+", "marked")
equal(f.List3.index, -1, "not highlighted")
equal(f.PridavaPolozku, false, "the guard is down again")
equal(shared.PocetTitulu .. "/" .. shared.Tituly.bound, "1/1", "count and bound")
all_enabled(title_fields, true, "with a title")
all_enabled(control_fields, false, "but no control")
f.txtnazev3.text = "Nikam"
equal(shared.Tituly[0].Trida, "", "with nothing highlighted an editor writes nothing")

f.cmdpridat1:click()
f.cmdpridat1:click()
for i = 0, 2 do
  f.List3:select(i)
  equal(f.txtnazev3.text, "", "an empty title")
  equal(f.txtdoba.text, "0", "lasts no time")
  equal(f.pohyb.value, 0, "and does not move")
  f.txtnazev3.text = "Titul" .. i
  f.txtjmeno.text = "Závěr \"" .. i .. "\""
  f.txtdoba.text = i .. ".25"
  f.pohyb.value = i % 2
  for _ = 0, i do f.cmdpridat2:click() end
  if i < 2 then f.pohyb.value = 1 end
  f.pohyb.value = i % 2
end
for i = 0, 2 do
  local title = shared.Tituly[i]
  equal(title.Trida .. "/" .. title.Nazev, "Titul" .. i .. "/Závěr \"" .. i .. "\"", "texts of " .. i)
  equal(title.Doba, i + 0.25, "duration of " .. i)
  equal(title.Pohyb, i % 2, "movement of " .. i)
end
equal(tags(), "123", "item data: number of controls")
f.List3:select(1)
equal(f.txtnazev3.text .. "/" .. f.txtdoba.text .. "/" .. f.pohyb.value, "Titul1/1.25/1", "a click loads")
equal(rows(f.List4), "T109 1|T109 2", "with its controls")
equal(shared.Tituly[1].Doba, 1.25, "and changes nothing")
for typed, stored in pairs {["0.1"] = "0.1", ["abc"] = "0", [""] = "0", ["7 s"] = "7", ["-2"] = "-2"} do
  f.txtdoba.text = typed
  f.List3:select(2)
  f.List3:select(1)
  equal(f.txtdoba.text, stored, "duration " .. typed .. " comes back")
end
f.txtdoba.text = "5"
f.txtdoba.text = "1e300"
equal(shared.Tituly[1].Doba, 5, "a number out of range leaves the field")

f.List3:select(0)
f.cmdodebrat1:click()
equal(rows(f.List3), "T108 2|T108 3", "the row is gone")
equal(tags(), "23", "each title has its own number")
equal(shared.Tituly[0].Trida .. shared.Tituly[1].Trida, "Titul1Titul2", "records moved")
equal(shared.PocetTitulu .. "/" .. shared.Tituly.bound, "2/2", "count and bound")
f.cmdodebrat1:click()
equal(#f.List3, 2, "with nothing highlighted no row goes")
equal(shared.PocetTitulu, 1, "the count falls")
equal(shared.Tituly[0].Trida, "Titul2", "the first record is lost")
equal(f.List3[0].tag, 3, "the row has the number of the record that moved there")
f.cmdodebrat1:click()
equal(#f.List3 .. "/" .. #f.List4 .. "/" .. shared.PocetTitulu .. "/" .. shared.Tituly.bound, "0/0/0/0", "the last one clears everything")
all_enabled(title_fields, false, "none left")
all_enabled(control_fields, false, "none left")

f.cmdpridat1:click()
f.List3:select(0)
f.cmdpridat2:click()
f.cmdelvse1:click()
equal(#f.List3 .. "/" .. #f.List4 .. "/" .. shared.PocetTitulu .. "/" .. shared.Tituly.bound, "0/0/0/0", "cmdelvse1")
all_enabled(title_fields, false, "after cmdelvse1")
all_enabled(control_fields, false, "after cmdelvse1")
f.cmdpridat1:click()
f.List3:select(0)
f.cmdpridat2:click()
equal(rows(f.List4), "T109 1", "controls of a new title are numbered from 1")
