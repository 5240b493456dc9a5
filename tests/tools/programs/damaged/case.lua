-- A damaged programs.dat: what is whole is read, the rest is logged, and the program starts.
local file = home .. "/Bfdata/programs.dat"
local function text(value) return string.pack("<s2", value) end
local first = text("one") .. text("\\bin\\one") .. text("-1")
local second = text("two") .. text("") .. text("<T103>")
local whole = first .. second
local line = "Podprogram LoadPrograms: " .. path(file) .. ", 62, Input past end of file\r\n"
write_file(file, first .. "\xFF\xFFtwo")
start()
local f = frmsettings
contains(log(), line, "logged at the start")
equal(shared.PocetProgramu .. rows(f.seznamprogramu), "0T97 1", "the whole record is there")
equal(frmmain.Picture1.visible, true, "and its icon")

for size = 0, #whole do
  frmload.log.text = ""
  write_file(file, whole:sub(1, size))
  proc.LoadPrograms(path(file))
  local records = (size >= #first and 1 or 0) + (size == #whole and 1 or 0)
  local cut = size ~= 0 and size ~= #first and size ~= #whole
  equal(shared.PocetProgramu, records - 1, "records of " .. size)
  equal(#f.seznamprogramu, records, "rows of " .. size)
  equal(log(), cut and line or "", "the log of " .. size)
  equal(frmmain.Picture1.visible, records > 0, "the bar of " .. size)
end

local state = 12345
local function noise(size)
  local bytes = {}
  for i = 1, size do
    state = (state * 1103515245 + 12345) % 2147483648
    bytes[i] = string.char(state >> 16 & 0xFF)
  end
  return table.concat(bytes)
end
for round = 1, 20 do
  write_file(file, noise(round * 997))
  proc.LoadPrograms(path(file))
  equal(#f.seznamprogramu, shared.PocetProgramu + 1, "as many rows as records " .. round)
end

-- empty records without end: more than the count can hold
write_file(file, ("\0"):rep(6 * 33000))
frmload.log.text = ""
proc.LoadPrograms(path(file))
equal(shared.PocetProgramu, 32767, "as many as the count can hold")
equal(log(), "Podprogram LoadPrograms: " .. path(file) .. ", 6, Overflow\r\n", "and the log tells it")
write_file(file, first)
proc.LoadPrograms(path(file))
equal(shared.PocetProgramu, 0, "and back to a good one")

-- a folder in its place
os.remove(file)
make_folder(file)
proc.LoadPrograms(path(file))
equal(shared.PocetProgramu, -1, "a folder holds no programs")
equal(frmmain.Picture1.visible, false, "no bar")
f.cmdadd:click()
f.cmdsave:click()
contains(log(), "Chyba v UlozitConfig: " .. path(file) .. ", ", "nor can they be kept there")
