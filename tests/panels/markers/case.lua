-- Paging through the markers of the mission, and through its sensors in the editor of the endings.
start()
local m, d = frmmain, frmdebrief

local function class(name, items)
  local text = "class " .. name .. "\n{\nitems=" .. #items .. ";\n"
  for i, item in ipairs(items) do text = text .. "class Item" .. i - 1 .. "\n{\n" .. item .. "};\n" end
  return text .. "};\n"
end

local function open(name, markers, sensors)
  open_mission(mission(name, "class Mission\n{\n" .. class("Markers", markers) .. class("Sensors", sensors) .. "};\n"))
end

local function marker()
  return table.concat({m.lblcisloznacky.caption, m.lblJmenoZnacky.caption, m.lblPopisZnacky.caption,
    m.lbltypZnacky.caption, m.cmdPrev.enabled and "<" or "", m.cmdnext.enabled and ">" or ""}, " ")
end

local function sensor()
  return table.concat({d.lblpocetkoncu.caption, d.lbltyp.caption, d.lbltext.caption, d.lblpodminka.caption,
    d.cmdprev.enabled and "<" or "", d.cmdnext.enabled and ">" or ""}, " ")
end

open("three", {'name="a";\ntext="A x";\ntype="Dot";\n', 'name="b";\ntype="Flag";\n', 'name="c";\ntext="C";\n'},
  {'type="END1";\ntext="s1";\nexpCond="true";\n', 'type="LOOSE";\nexpCond="x";\n'})
equal(marker(), '1 "a" "A x" "Dot"  >', "the first")
m.cmdnext:click()
equal(marker(), '2/3 "b"  "Flag" < >', "the second")
equal(shared.AktualniZnacka, 1, "index on show")
m.cmdnext:click()
equal(marker(), '3/3 "c" "C"  < ', "the last")
fails(function() m.cmdnext:click() end, "is disabled", "there is no next one")
m.cmdPrev:click()
m.cmdPrev:click()
equal(marker(), '1/3 "a" "A x" "Dot"  >', "back at the first")
equal(shared.AktualniZnacka, 0, "index on show")

equal(sensor(), '2 "END1" "s1" "true"  >', "the first sensor")
d.cmdnext:click()
equal(sensor(), '2/2 "LOOSE"  "x" < ', "the second sensor")
equal(shared.AktualniSenzor, 1, "index of the sensor on show")
d.cmdprev:click()
equal(sensor(), '1/2 "END1" "s1" "true"  >', "back at the first sensor")
equal(shared.AktualniZnacka, 0, "the markers have their own index")

-- the count of the file is wrong: the steps go no further than what is there
open("short", {'name="only";\n', 'name="two";\n'}, {})
shared.PocetZnacek = 5
shared.Znacky[2].Name = "spare"
m.cmdnext:click()
m.cmdnext:click()
equal(marker(), '3/5 spare   < >', "the spare record")
m.cmdnext:click()
equal(marker(), '4/5 spare   < >', "no such record: the labels stay")
shared.PocetZnacek = 1
m.cmdnext:click()
equal(marker(), '1/1 "only"    ', "it stops at the last one")

-- no marker, no sensor
open("none", {}, {})
equal(marker(), "1     ", "no marker")
fails(function() m.cmdnext:click() end, "is disabled", "no next marker")
fails(function() d.cmdprev:click() end, "is disabled", "no sensor before")
