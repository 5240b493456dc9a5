-- Programs start by themselves, not through a shell: whatever stands in the parameters is handed over as it is.
local folder = mission("m $(touch bad) `touch bad`; č.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
on.launch = nil -- the system's own start
local out = work .. "/out"
write_file(work .. "/my tool; x", "#!/bin/sh\nfor word in \"$@\"; do printf '%s\\n' \"$word\"; done >'" .. out .. ".new'\nmv '" .. out ..
  ".new' '" .. out .. "'\n")
os.execute("chmod 755 '" .. work .. "/my tool; x'")
local f = frmsettings
f.cmdadd:click()
f.seznamprogramu:select(0)
f.txtnazev.text = "tool"
f.txtcesta.text = path(work) .. "\\my tool; x.exe"
f.cmdsave:click()

local function started(parameters)
  os.remove(out)
  f.txtparams.text = parameters
  frmmain.Image1[1]:click()
  for _ = 1, 200 do
    if exists(out) then return read_file(out) end
    os.execute("sleep 0.05")
  end
end
equal(started '-m "<T103>" end', "-m\n" .. folder .. "/\nend\n", "the mission's folder as one word of the system's")
equal(started "a; touch bad | b >bad $HOME * <other>&& touch bad", "a;\ntouch\nbad\n|\nb\n>bad\n$HOME\n*\n&&\ntouch\nbad\n",
  "nothing of it is run")
equal(started "", "", "no parameters")
equal(exists(work .. "/bad") or exists(folder .. "/bad") or exists(home .. "/bad"), false, "nothing was made")
