-- Icons out of executables: a 2 by 2 icon of four colours in a made-up executable becomes a bitmap.
local function dib()
  local head = string.pack("<I4i4i4I2I2I4I4i4i4I4I4", 40, 2, 4, 1, 24, 0, 0, 0, 0, 0, 0)
  local function pixel(r, g, b) return string.char(b, g, r) end
  local below = pixel(255, 0, 0) .. pixel(0, 255, 0) .. "\0\0"
  local above = pixel(0, 0, 255) .. pixel(1, 2, 3) .. "\0\0"
  return head .. below .. above .. "\x40\0\0\0" .. "\0\0\0\0" -- below right is transparent
end
local function executable(icon)
  local base, raw = 0x1000, 0x200
  local group = string.pack("<I2I2I2", 0, 1, 1) .. string.pack("<BBBBI2I2I4I2", 2, 2, 0, 0, 1, 24, #icon, 7)
  local function folder(id, target) return string.pack("<I4I4I2I2I2I2", 0, 0, 0, 0, 0, 1) .. string.pack("<I4I4", id, target) end
  local sub = 0x80000000
  -- root with two kinds, then name and language folders, then two data entries, then the data
  local root = string.pack("<I4I4I2I2I2I2", 0, 0, 0, 0, 0, 2) .. string.pack("<I4I4I4I4", 3, sub + 32, 14, sub + 80)
  local icons = folder(7, sub + 56) .. folder(1033, 128)
  local groups = folder(1, sub + 104) .. folder(1033, 144)
  local data = 160
  local entries = string.pack("<I4I4I4I4", base + data, #icon, 0, 0) .. string.pack("<I4I4I4I4", base + data + #icon, #group, 0, 0)
  local resources = root .. icons .. groups .. entries .. icon .. group
  local head = "MZ" .. ("\0"):rep(58) .. string.pack("<I4", 64)
  local pe = "PE\0\0" .. string.pack("<I2I2I4I4I4I2I2", 0x14C, 1, 0, 0, 0, 224, 0)
  local optional = string.pack("<I2", 0x10B) .. ("\0"):rep(110) .. string.pack("<I4I4", base, #resources) .. ("\0"):rep(104)
  local section = ".rsrc\0\0\0" .. string.pack("<I4I4I4I4", #resources, base, #resources, raw) .. ("\0"):rep(16)
  local all = head .. pe .. optional .. section
  return all .. ("\0"):rep(raw - #all) .. resources
end
local exe = executable(dib())
write_file(work .. "/with icon.exe", exe)
write_file(work .. "/script.bat", "echo off\r\n")
start()
local f = frmsettings
f.cmdadd:click()
f.seznamprogramu:select(0)
f.txtnazev.text = "Žlutý nástroj"
f.txtcesta.text = path(work) .. "\\with icon.exe"
f.cmdadd:click()
f.seznamprogramu:select(1)
f.txtnazev.text = "batch"
f.txtcesta.text = path(work) .. "\\script.bat"
equal(exists(home .. "/Bfdata/programIcons"), false, "no folder of icons yet")
f.cmdsave:click()
local want = "BM" .. string.pack("<I4I4I4", 70, 0, 54) .. string.pack("<I4i4i4I2I2I4I4i4i4I4I4", 40, 2, 2, 1, 24, 0, 16, 0, 0, 0, 0) ..
  "\0\0\xFF\xFF\xFF\xFF\0\0" .. "\xFF\0\0\3\2\1\0\0"
equal(read_file(home .. "/Bfdata/programIcons/Žlutý nástroj.bmp"), want, "the picture; what is transparent is white")
equal(frmmain.Image1[1].path, path(home) .. "\\Bfdata\\programIcons\\Žlutý nástroj.bmp", "on the bar")
equal(frmmain.Image1[1].width .. "x" .. frmmain.Image1[1].height, "2x2", "its size")
equal(tmpfrm.Image1.path, frmmain.Image1[1].path, "drawn in the scratch field")
equal(frmmain.Image1[2].path, "", "a batch file has no icon")
contains(log(), "Chyba v LoadAndSaveIcons: 481, ", "it is logged")
equal(listing(home .. "/Bfdata/programIcons"), "Žlutý nástroj.bmp", "nothing else is made")

-- damaged and missing ones
local before = log()
proc.LoadAndSaveIcons(path(work) .. "\\missing.exe", "x")
contains(log():sub(#before + 1), "Chyba v LoadAndSaveIcons: 53, ", "a missing program")
local good = "Chyba v LoadAndSaveIcons: 481, Invalid picture\r\n"
for size = 0, #exe - 1 do
  write_file(work .. "/cut.exe", exe:sub(1, size))
  frmload.log.text = ""
  proc.LoadAndSaveIcons(path(work) .. "\\cut.exe", "cut")
  equal(log(), good, "cut off at " .. size)
end
for at = 65, #exe, 3 do -- whatever is damaged does no harm
  write_file(work .. "/odd.exe", exe:sub(1, at - 1) .. "\xFF" .. exe:sub(at + 1))
  proc.LoadAndSaveIcons(path(work) .. "\\odd.exe", "odd")
end
before = log()
proc.LoadAndSaveIcons(path(work) .. "\\with icon.exe", "no/such/name")
contains(log():sub(#before + 1), "Chyba v LoadAndSaveIcons: 76, ", "a name that no file can have")

-- a picture packed as PNG: one pixel of colour, one transparent
local png = ("89504e470d0a1a0a0000000d49484452000000020000000108020000007b40e8dd0000000674524e53000400050006748ec6" ..
  "8f0000000f4944415478da636064626661650300003f001698c168130000000049454e44ae426082"):gsub("..", function(hex)
  return string.char(tonumber(hex, 16)) end)
want = "BM" .. string.pack("<I4I4I4", 62, 0, 54) .. string.pack("<I4i4i4I2I2I4I4i4i4I4I4", 40, 2, 1, 1, 24, 0, 8, 0, 0, 0, 0) ..
  "\3\2\1\xFF\xFF\xFF\0\0"
local packed = executable(png)
write_file(work .. "/packed.exe", packed)
proc.LoadAndSaveIcons(path(work) .. "\\packed.exe", "packed")
equal(read_file(home .. "/Bfdata/programIcons/packed.bmp"), want, "the packed picture")
for size = #packed - #png - 20, #packed - 1 do
  write_file(work .. "/cut.exe", packed:sub(1, size))
  frmload.log.text = ""
  proc.LoadAndSaveIcons(path(work) .. "\\cut.exe", "cut")
  equal(log(), good, "a packed one cut off at " .. size)
end

-- a native program: the icon that the desktop shows for it
local share = make_folder(os.getenv("HOME") .. "/.local/share")
make_folder(share .. "/applications")
make_folder(share .. "/icons/hicolor/32x32/apps")
write_file(work .. "/my tool", "#!/bin/sh\n")
os.execute("chmod 755 '" .. work .. "/my tool'")
write_file(share .. "/applications/mine.desktop", "[Desktop Entry]\nExec=\"" .. work .. "/my tool\" %F\nIcon=picture\n")
write_file(share .. "/icons/hicolor/32x32/apps/picture.png", png)
for i, name in ipairs {"my tool", "my tool.exe"} do
  proc.LoadAndSaveIcons(path(work) .. "\\" .. name, "native" .. i)
  equal(read_file(home .. "/Bfdata/programIcons/native" .. i .. ".bmp"), want, "of " .. name)
end
