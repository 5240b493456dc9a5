-- The game's folder and drive out of the Wine prefix; with one of them missing both stay empty and the log tells it.
local wine = make_folder(os.getenv("HOME") .. "/.wine")
local key = "[Software\\\\Wow6432Node\\\\CODEMASTERS\\\\Operation Flashpoint] 1700000000\n#time=1da1122334455660\n"
local line = "Nastala chyba při čtení registru: Software\\Codemasters\\Operation Flashpoint, 53, File not found\r\n"
local function read(values)
  write_file(wine .. "/system.reg", "WINE REGISTRY Version 2\n;; All keys relative to \\\\Machine\n\n#arch=win64\n\n" ..
    "[Software\\\\Codemasters] 1700000000\n\n" .. key .. values .. "\n[Software\\\\Other] 1700000000\n\"MAIN\"=\"no\"\n")
  start()
  local told = log():find(line, 1, true) ~= nil
  local found = shared.CestaHry .. "|" .. shared.MechanikaCD .. "|" .. (told and "told" or "")
  quit()
  return found
end

equal(read '"CDDRIVE"="E:"\n"MAIN"="C:\\\\Hry\\\\Opera\\x010dn\\x00ed \\"F\\""\n', "C:\\Hry\\Operační \"F\"|E:|", "folder and drive")
equal(read '"main"="C:\\\\x"\n"cddrive"="D:"\n', "C:\\x|D:|", "in any order and case")
equal(read '"MAIN"=""\n"CDDRIVE"=""\n', "||", "empty ones are no failure")
equal(read '"MAIN"="C:\\\\x"\n', "||told", "no drive")
equal(read '"CDDRIVE"="D:"\n', "||told", "no folder")
equal(read '"CDDRIVE"="D:"\n"MAIN"=dword:00000001\n', "||told", "the folder is no text")
equal(read '"CDDRIVE"="D:"\n"MAIN"="C:\\\\x', "||told", "the file ends within a value")
os.remove(wine .. "/system.reg")
start()
contains(log(), line, "no registry")
_, count = log():gsub("při čtení registru", "")
equal(count, 1, "told once")
for _, event in ipairs(events) do check(event.kind ~= "box", "no box") end

-- with no game the pickers begin in the current folder
on.modal.frmopenmission = function(form) opened = form.Dir1.path form.Command2:click() end
frmmain.mnufileopen:click()
equal(opened, path(work), "the picker of missions")
