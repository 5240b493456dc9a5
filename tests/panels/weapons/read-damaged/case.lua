-- addons.dat cut off, empty, missing, and no such file at all.
start("")
local m = frmmain
equal(shared.PosledniZbran, -1, "no file")
equal(m.cmddelweapon.enabled, false, "no file: nothing to delete")
local file = work .. "/addons.dat"
local whole = "\1\0A\1\0a\7\0\1\0009\255\255\2\0Gr" .. "\1\0B\1\0b\8\0\1\0009\255\255\2\0Gr"
local function read(bytes)
  if #m.seznamzbrani > 0 then m.cmddelall:click() end
  write_file(file, bytes)
  local from = #log()
  proc.NactiAddony(path(file))
  equal(log():sub(from + 1), "", "nothing is logged")
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
equal(read(whole:sub(1, -2)), "A/a/7/9/-1/Gr B/b/8/9/-1/", "the last byte is missing")
equal(read(whole:sub(1, -5)), "A/a/7/9/-1/Gr B/b/8/9/-1/", "the last text is missing")
equal(read(whole:sub(1, -7)), "A/a/7/9/-1/Gr B/b/8/9/0/", "the launcher is missing")
equal(read(whole:sub(1, -12)), "A/a/7/9/-1/Gr B/b/0//0/", "the pieces are missing")
equal(read(whole:sub(1, -13)), "A/a/7/9/-1/Gr", "the class name is missing")
equal(read(whole:sub(1, 1)), "", "one byte")
equal(read(""), "", "empty")
equal(m.cmddelweapon.enabled, false, "empty: nothing is enabled")
equal(read(("\0"):rep(100000)), "", "nothing but zeros")
equal(read(("\255"):rep(5000)), "", "lengths beyond the end")
equal(read("\255\255" .. ("x"):rep(65535) .. "\1\0c\1\0"), ("x"):rep(65535) .. "/c/1//0/", "the longest title")

local from = #log()
local nowhere = path(work .. "/není/addons.dat")
proc.NactiAddony(nowhere)
check(log():sub(from + 1):find("Chyba pri nacitani: " .. nowhere .. ", ", 1, true) == 1, "missing", log():sub(from + 1))
equal(shared.PosledniZbran, -1, "missing: no weapon")
equal(#events, 0, "nobody is asked")
