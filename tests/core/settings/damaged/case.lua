-- Damaged settings: lengths that lie, random bytes, a folder in place of the file.
start()
local function load(bytes)
  write_file(work .. "/d.cfg", bytes)
  proc.NactiNastaveni(path(work .. "/d.cfg"))
  return shared.Nastaveni
end
local head = ("\1"):rep(48)
equal(load(head .. "\255\255abc").SouborJazyka, "", "a length past the end: no text")
equal(shared.Nastaveni.FunkceBarva, 0x01010101, "what stands before it is read")
equal(shared.Nastaveni.UkazovatTipy, 0, "nothing behind it is")
equal(load(head .. "\3\0abc").SouborJazyka, "abc", "a whole text at the end")
math.randomseed(7)
for _ = 1, 200 do
  local bytes = {}
  for i = 1, math.random(0, 400) do bytes[i] = string.char(math.random(0, 255)) end
  load(table.concat(bytes))
end
equal(shared.Nastaveni.Pisma.bound, 2, "three fonts, whatever was read")
fails(function() proc.NactiNastaveni(path(work .. "/missing.cfg")) end, "run-time error 53: File not found", "a missing file")
quit()
write_file(home .. "/Tarvinfo.cfg", "")
start()
equal(#events, 0, "an empty file is no first start")
equal(frmmain.visible, true, "the program runs")
