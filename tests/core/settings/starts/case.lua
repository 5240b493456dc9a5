-- The program starts with a settings file of every length and with random ones, asks nothing, and its exit
-- leaves a whole file.
local whole = read_file(home .. "/Tarvinfo.cfg")
local function start_with(bytes, what)
  write_file(home .. "/Tarvinfo.cfg", bytes)
  events = {}
  start()
  if not frmmain.visible or #events > 0 then check(false, what, #events .. " events") end
  contains(log(), "Konec Inicializace programu\r\n", what)
  quit()
  local saved = read_file(home .. "/Tarvinfo.cfg")
  if #saved < 116 then check(false, what, "saved " .. #saved .. " bytes") end
end
for length = 0, #whole do start_with(whole:sub(1, length), "the first " .. length .. " bytes") end
math.randomseed(11)
for round = 1, 30 do
  local bytes = {}
  for i = 1, math.random(48, 300) do bytes[i] = string.char(math.random(0, 255)) end
  start_with(table.concat(bytes), "random bytes, round " .. round)
end
start_with(whole, "whole")
equal(read_file(home .. "/Tarvinfo.cfg"), whole, "a whole file goes through a run unchanged")
