-- addons.dat cut off, empty, missing, and no such file at all.
start("")
local m = frmmain
equal(shared.PosledniZbran, -1, "no file")
equal(m.cmddelweapon.enabled, false, "no file: nothing to delete")
local file = work .. "/addons.dat"
local whole = "\1\0A\1\0a\7\0\1\0009\255\255\2\0Gr" .. "\1\0B\1\0b\8\0\1\0009\255\255\2\0Gr"
local torn = "Chyba pri nacitani: " .. path(file) .. ", 62, Input past end of file\r\n"
local function read(bytes, logged)
  if #m.seznamzbrani > 0 then m.cmddelall:click() end
  write_file(file, bytes)
  local from = #log()
  proc.NactiAddony(path(file))
  equal(log():sub(from + 1), logged or "", "what is logged")
  local text = {}
  for i = 0, shared.PosledniZbran do
    local z = shared.Zbrane[i]
    text[#text + 1] = table.concat({z.Titulek, z.Jmeno, z.Pocet, z.Zasobniky, z.Granatomet, z.Granaty}, "/")
  end
  equal(#m.seznamzbrani, shared.PosledniZbran + 1, "an item for each record")
  return table.concat(text, " ")
end
equal(read(whole), "A/a/7/9/-1/Gr B/b/8/9/-1/Gr", "whole")
equal(m.cmddelweapon.enabled, true, "whole: the commands")

-- a record that is cut off anywhere goes, and only that one
for cut = 2, #whole / 2 do
  equal(read(whole:sub(1, -cut), torn), "A/a/7/9/-1/Gr", cut - 1 .. " bytes are missing")
end
equal(read(whole:sub(1, #whole // 2)), "A/a/7/9/-1/Gr", "cut between two records")
equal(read(whole:sub(1, 1), torn), "", "one byte")
equal(m.cmddelweapon.enabled, false, "none: nothing is enabled")
equal(read(""), "", "empty")
equal(m.cmddelweapon.enabled, false, "empty: nothing is enabled")
equal(read(("\0"):rep(12 * 8000)), "", "nothing but zeros")
equal(read(("\255"):rep(5000), torn), "", "a length beyond the end")
local title = ("x"):rep(65535)
equal(read("\255\255" .. title .. "\1\0c\1\0\0\0\0\0\0\0"), title .. "/c/1//0/", "the longest title")

local from = #log()
local nowhere = path(work .. "/není/addons.dat")
proc.NactiAddony(nowhere)
check(log():sub(from + 1):find("Chyba pri nacitani: " .. nowhere .. ", ", 1, true) == 1, "missing", log():sub(from + 1))
equal(shared.PosledniZbran, -1, "missing: no weapon")
equal(#events, 0, "nobody is asked")
