-- With the flag set frmtips is shown on top at the start.
local settings = read_file(home .. "/Tarvinfo.cfg")
local _, at = settings:find("T92,T93,2", 1, true)
write_file(home .. "/Tarvinfo.cfg", settings:sub(1, at + 2) .. "\255\255" .. settings:sub(at + 5))
start()
equal(shared.Nastaveni.UkazovatTipy, -1, "the flag")
equal(frmtips.visible, true, "the tips are shown")
equal(frmmain.visible, true, "over the main form")
