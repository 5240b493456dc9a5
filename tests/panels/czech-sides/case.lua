-- Deleting all objectives of a side goes by the sides' Czech names.
local pack = home .. "/Bfdata/languages/Tv/Test.lng"
local text = read_file(pack)
for number, name in pairs{[33] = "Z\xe1pad", [34] = "V\xfdchod", [35] = "Partyz\xe1ni", [36] = "Civilist\xe9"} do
  text = text:gsub("\nT" .. number .. "\r", "\n" .. name .. "\r")
end
write_file(pack, text)
start()
local m = frmmain
equal(rows(m.strany), "Západ|Východ|Partyzáni|Civilisté", "the sides of the Czech pack")
m.chkvicestran.value = 1
local counts = {"PocetUkoluZapad", "PocetUkoluVychod", "PocetUkoluPartyzani", "PocetUkoluCivilisti"}
for side = 0, 3 do
  m.strany:select(side)
  m.txtUkol.text = "a"
  m.cmdpridat:click()
  m.txtUkol.text = "b"
  m.cmdpridat:click()
end
for side = 0, 3 do
  m.strany:select(side)
  equal(#m.List1, 2, "objectives of side " .. side)
  m.txtUkol.text = "x"
  m.cmdsmazvse:click()
  equal(#m.List1, 0, "list of side " .. side)
  for other = 0, 3 do
    equal(shared[counts[other + 1]], other <= side and 0 or 2, "count of side " .. other .. " behind side " .. side)
  end
end
m.txtUkol.text = "anew"
m.cmdpridat:click()
equal(rows(m.List1), "T112 1", "the first again")
equal(shared.UkolyCivilisti[0].Text, "anew", "in the first place")
equal(shared.UkolyCivilisti.bound, 1, "one spare record")
