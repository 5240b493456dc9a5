-- The add-on weapons of addons.dat at the start: those without a title or a class name are dropped, wherever they are.
start("")
local m = frmmain
equal(rows(m.seznamzbrani), 'Žába|b";|Poslední', "list")
equal(marks(m.seznamzbrani), "---", "nothing is marked")
equal(shared.PosledniZbran, 2, "index of the last")
equal(shared.Zbrane.bound, 2, "no spare element")
local function record(i)
  local z = shared.Zbrane[i]
  return table.concat({z.Titulek, z.Jmeno, z.Pocet, z.Zasobniky, z.Granatomet, z.Granaty}, "|")
end
equal(record(0), "Žába|Zaba 1|300|4/8|-1|Gr", "first")
equal(record(1), 'b";|B|32767|0|0|', "second: in the place of the one before it")
equal(record(2), "Poslední|P|-2||0|", "third")
for _, i in ipairs{0, 1, 3, 4, 5} do equal(m.Text1[i].enabled, true, "Text1 " .. i) end
for _, name in ipairs{"cmdpridat", "cmddelweapon", "cmddelall", "cmdsaveaddons", "Check1"} do
  equal(m[name].enabled, true, name)
end
m.seznamzbrani:select(1)
equal(m.Text1[1].text, "B", "shown")
m.cmdaddweapon:click()
equal(m.seznamzbrani[3].text, "T101 4", "the next one")

-- what is saved again has no dropped ones, but the new one
m.cmdsaveaddons:click()
equal(read_file(home .. "/Bfdata/addons.dat"),
  "\4\0\142\225ba\6\0Zaba 1\44\1\3\0004/8\255\255\2\0Gr" .. "\3\0b\";\1\0B\255\127\1\0000\0\0\0\0" ..
  "\8\0Posledn\237\1\0P\254\255\0\0\0\0\0\0" .. ("\0"):rep(12), "saved")
