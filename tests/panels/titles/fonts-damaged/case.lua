-- A damaged list of fonts: its lines are taken as they are, and nothing else suffers.
local file = home .. "/Bfdata/fonts.dat"
local function fonts(bytes)
  write_file(file, bytes)
  start()
  local all, index = rows(frmdalsinast.pisma), frmdalsinast.pisma.index
  lacks(log(), "fonts.dat", "nothing is logged")
  quit()
  return all .. "/" .. index
end
equal(fonts "", "/-1", "an empty file")
equal(fonts "\r\n\r\nTahomaB24", "||TahomaB24/0", "empty lines")
equal(fonts "b\na\r\nc\rd", "b|a|c|d/0", "any line ends, in the file's order")
equal(fonts "\0\xFF\x81\x8Dx\n", "\0\u{2d9}\u{81}\u{164}x/0", "odd bytes")
equal(fonts(("F"):rep(100000)), ("F"):rep(100000) .. "/0", "a long line")
write_file(file, ("Tahoma\r\n"):rep(20000))
start()
equal(#frmdalsinast.pisma, 20000, "a long list")
quit()

os.remove(file)
make_folder(file)
start()
contains(log(), "Chybí soubor: " .. path(file) .. "\r\n", "a folder is no file")
equal(#frmdalsinast.pisma, 0, "no fonts")

-- a control whose font is in no list keeps it
local f = frmdalsinast
f.cmdpridat1:click()
f.List3:select(0)
f.cmdpridat2:click()
shared.Tituly[0].Prvky[0].Pismo = "\"Kept; one\""
f.List4:select(0)
equal(shared.Tituly[0].Prvky[0].Pismo, "\"Kept; one\"", "its font stays")
