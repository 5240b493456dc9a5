-- A failed copy is logged and costs that file only.
local source = make_folder(work .. "/source")
for _, name in ipairs{"a", "b", "c", "d"} do write_file(source .. "/" .. name .. ".ogg", name) end
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
local line = "Nastala chyba při kopírování zvuku do složky: " .. path(folder) .. "\\, "
local function failures()
  local found, from = {}, 1
  while true do
    local _, last = log():find(line, from, true)
    if not last then return table.concat(found, "|") end
    found[#found + 1] = log():match("^(.-)\r\n", last + 1)
    from = last
  end
end
local function take(command, native, ...)
  local names = {...}
  on.modal.frmnactizvuky = function(form)
    for i = 0, #form.seznamsouboru - 1 do form.seznamsouboru:mark(i, false) end
    form.Dir1.path = path(native)
    for _, name in ipairs(names) do form.File1:select(name) form.cmdadd:click() end
    form.cmdopen:click()
  end
  command:click()
end
take(frmmain.cmdnacistradio, source, "a.ogg", "b.ogg", "c.ogg")
os.remove(source .. "/b.ogg")
proc.KopirujZvuky()
equal(failures(), "53, File not found", "a missing source is logged once")
equal(listing(folder .. "/sound"), "a.ogg c.ogg", "the others are copied")
equal(Form1.prubeh.value, 3, "all three are done")
equal(Form1.visible, false, "the window goes all the same")
equal(#events, 1, "the user sees nothing but the intake")

-- a file that lies in the mission's folder already
take(frmmain.cmdnacistzvuk, folder .. "/sound", "c.ogg")
equal(shared.Zvuky[0].Cesta, path(folder) .. "\\sound", "its record names the mission's folder")
proc.KopirujZvuky()
equal(failures(), "53, File not found|53, File not found|70, Permission denied", "a copy over itself is refused")
equal(read_file(folder .. "/sound/c.ogg"), "c", "the file is as it was")

-- a name that cannot become a folder
write_file(folder .. "/music", "a file")
take(frmmain.cdmnactihudbu, source, "d.ogg")
proc.KopirujZvuky()
contains(failures(), "75, Path/File access error", "a file stands in the folder's place")
equal(read_file(folder .. "/music"), "a file", "it is left alone")

-- a read-only file in the way stays
assert(os.execute("chmod 444 '" .. folder .. "/sound/a.ogg'"))
write_file(source .. "/a.ogg", "another a")
local before = #failures()
proc.KopirujZvuky()
contains(failures():sub(before), "70, Permission denied|53", "it is refused")
equal(read_file(folder .. "/sound/a.ogg"), "a", "it is left alone")

-- rows without records
for _ = 1, 3 do frmmain.cmdodebratradio:click() end
equal(#frmmain.seznamradia, 3, "with nothing highlighted the rows stay")
before = #failures()
proc.KopirujZvuky()
contains(failures():sub(before), "9, Subscript out of range|9, Subscript out of range", "two rows are beyond the array")
equal(Form1.visible, false, "and still to the end")
