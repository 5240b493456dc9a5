-- Saving the add-on weapons: the bytes of addons.dat, records with empty fields too; marks are not saved.
start("")
local m = frmmain
local file = home .. "/Bfdata/addons.dat"
local function add(title, class, pieces, magazines, grenades)
  m.cmdaddweapon:click()
  m.seznamzbrani:select(#m.seznamzbrani - 1)
  m.Text1[0].text = title
  m.Text1[1].text = class
  m.Text1[3].text = magazines
  m.Text1[4].text = pieces
  if grenades then
    m.Check1.value = 1
    m.Text1[5].text = grenades
  end
  m.seznamzbrani:mark(#m.seznamzbrani - 1, true)
end
add("Žába", "Zaba 1", "300", "4/8", "Gr")
m.cmdaddweapon:click()
add('b";', "B", "32767", "0")
local bytes = "\4\0\142\225ba" .. "\6\0Zaba 1" .. "\44\1" .. "\3\0004/8" .. "\255\255" .. "\2\0Gr" ..
  "\0\0" .. "\0\0" .. "\0\0" .. "\0\0" .. "\0\0" .. "\0\0" ..
  "\3\0b\";" .. "\1\0B" .. "\255\127" .. "\1\0000" .. "\0\0" .. "\0\0"
local from = #log()
m.cmdsaveaddons:click()
equal(read_file(file), bytes, "addons.dat")
equal(log():sub(from + 1), "", "nothing is logged")

-- a longer file is replaced
write_file(file, ("x"):rep(1000))
m.cmdsaveaddons:click()
equal(read_file(file), bytes, "written again")

-- a folder in the way
os.remove(file)
make_folder(file .. "/in it")
m.cmdsaveaddons:click()
local line = log():sub(from + 1)
check(line:match("^Chyba pri ukladani: [^\r]+addons%.dat, %d+, %a[^\r]*\r\n$"), "the failure is logged", line)
contains(line, "Chyba pri ukladani: " .. path(home) .. "\\Bfdata\\addons.dat, ", "with the path")
equal(#events, 0, "nobody is asked")
equal(rows(m.seznamzbrani), 'Žába|T101 2|b";', "the list stays")
