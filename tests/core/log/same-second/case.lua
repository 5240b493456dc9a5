-- Two exits within one second write the same file; the later one stays.
local logs = home .. "/Bfdata/LogFiles"
local function run(mark)
  start()
  proc.ZapisLog(mark .. "\r\n")
  quit()
  return log():match("Konec programu: ([^\r]*)\r\n")
end
local met = false
for attempt = 1, 20 do
  os.execute("rm -rf '" .. logs .. "'")
  local first, second = run("first run"), run("second run")
  local names = {}
  for name in listing(logs):gmatch("%S+") do names[#names + 1] = name end
  if first == second and #names == 1 then
    met = true
    local saved = read_file(logs .. "/" .. names[1])
    contains(saved, "second run\r\n", "the later log")
    lacks(saved, "first run", "in place of the earlier one")
    break
  end
end
check(met, "two exits within one second share a file")
