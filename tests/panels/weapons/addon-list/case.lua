-- Adding and editing add-on weapons: fields are live editors of the highlighted record.
start("")
local m = frmmain
local cells = {0, 1, 3, 4, 5}
local function enabled()
  local text = ""
  for _, i in ipairs(cells) do text = text .. (m.Text1[i].enabled and "+" or "-") end
  for _, name in ipairs{"Check1", "cmddelweapon", "cmddelall", "cmdsaveaddons", "cmdaddweapon"} do
    text = text .. (m[name].enabled and "+" or "-")
  end
  return text
end
local function record(i)
  local z = shared.Zbrane[i]
  return table.concat({z.Titulek, z.Jmeno, z.Pocet, z.Zasobniky, z.Granatomet, z.Granaty}, "|")
end
equal(enabled(), "---------+", "without weapons")
equal(shared.PosledniZbran, -1, "no addons.dat")
m.cmdaddweapon:click()
equal(enabled(), "++++++++++", "with the first weapon")
equal(rows(m.seznamzbrani), "T101 1", "its label")
equal(marks(m.seznamzbrani), "-", "it is not marked")
equal(m.seznamzbrani.index, -1, "and not highlighted")
equal(shared.PosledniZbran, 0, "index of the last")
equal(shared.Zbrane.bound, 0, "no spare element")
equal(record(0), "||0||0|", "an empty record")

-- with nothing highlighted nothing is stored
m.Text1[0].text = "Nikam"
m.Text1[1].text = "Nikam"
m.Text1[3].text = "Nikam"
m.Text1[4].text = "12"
m.Check1.value = 1
m.Text1[5].text = "Nikam"
equal(record(0), "||0||0|", "nothing is highlighted")
equal(rows(m.seznamzbrani), "T101 1", "the label stays")

-- the record shows: the empty one clears the fields
m.seznamzbrani:select(0)
equal(m.Text1[0].text .. m.Text1[1].text .. m.Text1[3].text .. m.Text1[5].text, "", "shown")
equal(m.Text1[4].text, "0", "pieces")
equal(m.Check1.value, 0, "launcher")
equal(m.Text1[5].enabled, false, "no launcher, no grenades")
equal(record(0), "||0||0|", "showing stores what was there")

-- editing
m.Text1[0].text = 'Česká "vz. 58"; samopal'
equal(rows(m.seznamzbrani), 'Česká "vz. 58"; samopal', "the title is the label")
m.Text1[1].text = "vz58 x"
m.Text1[3].text = "4/8 ž"
m.Text1[4].text = "12x"
equal(m.Text1[4].text, "12", "pieces are a number")
equal(record(0), 'Česká "vz. 58"; samopal|vz58 x|12|4/8 ž|0|', "stored")
m.Text1[0].text = ""
equal(rows(m.seznamzbrani), 'Česká "vz. 58"; samopal', "an emptied title leaves the label")
equal(shared.Zbrane[0].Titulek, "", "and empties the record")
m.Check1:click()
equal(shared.Zbrane[0].Granatomet, -1, "launcher on")
equal(m.Text1[5].enabled, true, "grenades on")
m.Text1[5].text = "Granát"
equal(shared.Zbrane[0].Granaty, "Granát", "grenades")

-- pieces beyond the range leave the record
for _, case in ipairs{{"32767", 32767}, {"32768", 32767}, {"99999999999999999999", 32767}, {"", 0}, {"  7", 7}} do
  m.Text1[4].text = case[1]
  equal(shared.Zbrane[0].Pocet, case[2], "pieces " .. case[1])
end

-- a second one; each shows its own
m.cmdaddweapon:click()
equal(m.seznamzbrani[1].text, "T101 2", "second label")
m.seznamzbrani:select(1)
equal(m.Check1.value, 0, "second: no launcher")
equal(record(1), "||0||0|", "second: still empty")
m.Text1[0].text = "Druhá"
m.seznamzbrani:select(0)
equal(m.Text1[0].text .. "|" .. m.Text1[1].text .. "|" .. m.Text1[3].text .. "|" .. m.Text1[4].text .. "|" ..
  m.Text1[5].text, "|vz58 x|4/8 ž|7|Granát", "first shown")
equal(m.Check1.value, 1, "first: launcher")
equal(record(0), "|vz58 x|7|4/8 ž|-1|Granát", "first: unchanged")
equal(record(1), "Druhá||0||0|", "second: unchanged")

-- launcher off: the record keeps the grenades until it is shown again
m.Check1:click()
equal(shared.Zbrane[0].Granatomet, 0, "launcher off")
equal(m.Text1[5].enabled, false, "grenades off")
equal(shared.Zbrane[0].Granaty, "Granát", "the grenades stay")
m.seznamzbrani:select(0)
equal(m.Text1[5].text, "", "shown without a launcher")
equal(shared.Zbrane[0].Granaty, "", "and emptied")

-- another mission does not touch the list
open_mission(mission("jina.Eden"))
equal(rows(m.seznamzbrani), 'Česká "vz. 58"; samopal|Druhá', "after opening a mission")
equal(shared.PosledniZbran, 1, "records after opening a mission")
