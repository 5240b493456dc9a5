-- The environment sounds: adding, editing live, the fixed widths, removing with and without a highlighted row.
start()
local f = frmdalsinast
local list = f.seznamrozzvuku
local editors = {"Command3", "Command4", "txtnazev", "txtzvukroz", "txtzvuk2roz", "txtrozname", "txthlasitost1",
  "txthlasitost2", "txthloubka1", "txthloubka2", "cmdopen1", "Command5"}
local function all_enabled(want, what)
  for _, name in ipairs(editors) do equal(f[name].enabled, want, what .. ": " .. name) end
end
local function pad(text) return text .. (" "):rep(255 - utf8.len(text)) end
local blank = (" "):rep(255)

all_enabled(false, "nothing to edit at the start")
equal(shared.Okoli.bound, -1, "never dimensioned")
f.Command2:click()
equal(rows(list), "T591", "text and number, no blank")
equal(list.index, -1, "a new row is not highlighted")
equal(marks(list), "+", "it is marked")
equal(shared.PocetOkoli, 1, "counted")
equal(shared.Okoli.bound, 1, "one spare element")
equal(shared.Okoli[0].Nazev, blank, "a new class name is as wide as any")
all_enabled(true, "with a sound")
f.txtzvukroz.text = "\\lost.ogg"
equal(shared.Okoli[0].Den, "", "with nothing highlighted an editor writes nothing")

f.Command2:click()
f.Command2:click()
equal(rows(list), "T591|T592|T593", "rows")
local values = {txtzvukroz = "Den", txthlasitost1 = "DenHlasitost", txthloubka1 = "DenHloubka", txtzvuk2roz = "Noc",
  txthlasitost2 = "NocHlasitost", txthloubka2 = "NocHloubka"}
for i = 0, 2 do
  list:select(i)
  equal(f.txtzvukroz.text, "", "a click on an empty record empties the box " .. i)
  equal(f.txtnazev.text, blank, "and shows the fixed text " .. i)
  f.txtnazev.text = "Třída" .. i
  f.txtrozname.text = "Žluťoučký \"kůň\"; " .. i
  for box, value in pairs(values) do f[box].text = value .. i end
end
for i = 0, 2 do
  equal(shared.Okoli[i].Nazev, pad("Třída" .. i), "class name padded to characters, not bytes " .. i)
  equal(shared.Okoli[i].Jmeno, pad("Žluťoučký \"kůň\"; " .. i), "name padded " .. i)
  for _, value in pairs(values) do equal(shared.Okoli[i][value], value .. i, value .. " of " .. i) end
end
list:select(1)
equal(f.txtrozname.text, pad("Žluťoučký \"kůň\"; 1"), "the box shows the padded text")
for box, value in pairs(values) do equal(f[box].text, value .. 1, box .. " loaded") end
f.txtnazev.text = ("ř"):rep(400)
equal(shared.Okoli[1].Nazev, ("ř"):rep(255), "longer input is cut")
list:mark(1, false)
equal(marks(list), "+-+", "marks are the user's")
equal(shared.Okoli[1].Noc, "Noc1", "a click on the mark loads and changes nothing")

-- removing the first
list:select(0)
f.Command3:click()
equal(rows(list), "T592|T593", "the row is gone")
equal(list.index, -1, "nothing is highlighted")
equal(shared.PocetOkoli, 2, "counted down")
equal(shared.Okoli[0].Den, "Den1", "later records moved down")
equal(shared.Okoli[1].Den, "Den2", "all of them")
f.Command2:click()
equal(rows(list), "T592|T593|T593", "numbers follow the count, not the names in use")
equal(shared.Okoli[2].Den, "", "the new record is empty")
equal(shared.Okoli.bound, 3, "one spare element again")

-- removing with nothing highlighted: the rows stay, the records move
f.Command3:click()
equal(#list, 3, "no row goes")
equal(shared.PocetOkoli, 2, "the count falls all the same")
equal(shared.Okoli[0].Den, "Den2", "and the first record is lost")
f.Command3:click()
equal(shared.PocetOkoli, 1, "once more")
all_enabled(true, "still one")
f.Command3:click()
equal(#list, 0, "the last one takes all rows along")
equal(shared.PocetOkoli, 0, "none left")
equal(shared.Okoli.bound, 0, "the array is reset")
all_enabled(false, "none left")

-- all at once
f.Command2:click()
f.Command2:click()
f.Command4:click()
equal(#list .. "/" .. shared.PocetOkoli .. "/" .. shared.Okoli.bound, "0/0/0", "Command4 empties everything")
all_enabled(false, "after Command4")
shared.PocetOkoli = 2
proc.Tlacitka()
all_enabled(true, "Tlacitka looks at the count")
shared.PocetOkoli = 0
proc.Tlacitka()
all_enabled(false, "and again")
