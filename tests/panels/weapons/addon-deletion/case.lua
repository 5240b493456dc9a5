-- Deleting add-on weapons one by one, with nothing highlighted, and all at once.
start("")
local m = frmmain
local cells = {0, 1, 3, 4, 5}
local function add(title, class)
  m.cmdaddweapon:click()
  local row = #m.seznamzbrani - 1
  m.seznamzbrani:select(row)
  m.Text1[0].text = title
  m.Text1[1].text = class
end
local function classes()
  local names = {}
  for i = 0, shared.Zbrane.bound do names[#names + 1] = shared.Zbrane[i].Jmeno end
  return table.concat(names, "|")
end
local function empty_panel(what)
  for _, i in ipairs(cells) do
    equal(m.Text1[i].enabled, false, what .. ": Text1 " .. i)
    equal(m.Text1[i].text, "", what .. ": text of Text1 " .. i)
  end
  for _, name in ipairs{"Check1", "cmddelweapon", "cmddelall", "cmdsaveaddons"} do
    equal(m[name].enabled, false, what .. ": " .. name)
  end
  equal(m.cmdaddweapon.enabled, true, what .. ": cmdaddweapon")
  equal(#m.seznamzbrani, 0, what .. ": list")
  equal(shared.PosledniZbran, -1, what .. ": PosledniZbran")
end
add("Alfa", "A")
add("Beta", "B")
add("", "C")
m.cmdaddweapon:click()
m.seznamzbrani:mark(3, true)
equal(rows(m.seznamzbrani), "Alfa|Beta|T101 3|T101 4", "four weapons")
m.seznamzbrani:select(1)
m.cmddelweapon:click()
equal(rows(m.seznamzbrani), "Alfa||", "untitled weapons show an empty line after a deletion")
equal(marks(m.seznamzbrani), "--+", "marks go with their items")
equal(classes(), "A|C|", "records")
equal(shared.PosledniZbran, 2, "PosledniZbran")
equal(m.seznamzbrani.index, -1, "nothing is highlighted")

-- nothing highlighted: every record moves one place down, the list stays
m.cmddelweapon:click()
equal(#m.seznamzbrani, 3, "no item is removed")
equal(classes(), "C|", "every record moved")
equal(rows(m.seznamzbrani), "||", "labels from the records; the item without one keeps its own")
equal(shared.PosledniZbran, 1, "PosledniZbran fell")
m.cmdaddweapon:click()
equal(m.seznamzbrani[3].text, "T101 3", "numbers follow the records")

-- down to the last
m.seznamzbrani:select(0)
m.cmddelweapon:click()
m.seznamzbrani:select(0)
m.cmddelweapon:click()
equal(m.cmddelweapon.enabled, true, "one record is left")
m.seznamzbrani:select(0)
m.cmddelweapon:click()
empty_panel("the last record")

m.cmdaddweapon:click()
equal(rows(m.seznamzbrani), "T101 1", "numbers begin again")
m.seznamzbrani:select(0)
m.Text1[1].text = "D"
m.Check1.value = 1
equal(m.cmdadd.enabled, false, "cmdadd of the sounds")
m.cmddelall:click()
empty_panel("all deleted")
equal(m.cmdadd.enabled, true, "cmdadd of the sounds is enabled by it")
equal(m.Check1.value, 1, "the check keeps its value")
m.cmdaddweapon:click()
equal(shared.Zbrane[0].Jmeno, "", "the records are gone")
for _, i in ipairs(cells) do equal(m.Text1[i].enabled, true, "enabled again: Text1 " .. i) end

-- the only item, not highlighted
m.cmddelweapon:click()
empty_panel("the only one, not highlighted")
