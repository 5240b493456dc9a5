-- Catalogues that are missing, cut off, empty, binary; NactiObliceje by itself.
os.remove(home .. "/Bfdata/Faces.dat")
os.remove(home .. "/Bfdata/Speakers.dat")
start()
local data = path(home) .. "\\Bfdata\\"
in_order(log(), {"Chybí: " .. data .. "Faces.dat\r\n", "Chybí: " .. data .. "Speakers.dat\r\n"}, "missing catalogues are logged")
lacks(log(), "Začíná načítání Obliceju", "and not read")
equal(rows(Form2.ksichty) .. "/" .. #Form2.hlasy, "T73/0", "the custom face alone, no voice")
equal(Form2.Command1.enabled, false, "its picture waits for an identity")
Form2.cmdadd:click()
local one = shared.Identity[0]
equal(one.Jmeno .. "|" .. one.Oblicej .. "|" .. one.Bryle .. "|" .. one.Hlas .. "|" .. one.VyskaHlasu, "Vanderlin||none||1", "the form is usable")
equal(Form2.Command1.enabled, true, "a custom face can be chosen")

local function read(bytes, codes)
  if bytes then write_file(work .. "/list.dat", bytes) end
  local before, from = #Form2.hlasy, #log()
  proc.NactiObliceje(path(work) .. "\\list.dat", Form2.hlasy, codes or false)
  return #Form2.hlasy - before, log():sub(from + 1)
end
local count, lines = read(nil)
equal(count, 0, "no file")
equal(lines, "Začíná načítání Obliceju\r\nNastala chyba při načítání obličejů z: " .. path(work) .. "\\list.dat, 53, File not found\r\nNačteno: 0 obličejů\r\nKonec načítání obličejů\r\n", "log of a file that is not there")
count, lines = read("")
equal(count .. lines, "0Začíná načítání Obliceju\r\nNačteno: 0 obličejů\r\nKonec načítání obličejů\r\n", "an empty file")
count, lines = read("a\r\n\142ofie \"K\"; x\r\nb\r\n")
equal(count, 1, "a file that ends in the middle of a pair: the whole ones count")
contains(lines, "list.dat, 62, Input past end of file\r\nNačteno: 1 obličejů\r\n", "the cut one is logged")
equal(Form2.hlasy[0].text, "Žofie \"K\"; x", "names as they stand")
fails(function() return shared.KodyObliceju[0] end, "run-time error 9", "voices leave no codes")
equal(read("one\ntwo\rthree\r\nfour"), 2, "any line end, none at the end")
local bytes = {}
for i = 0, 255 do bytes[#bytes + 1] = string.char(i) end
check(read(table.concat(bytes):rep(20)) > 0, "a binary file ends too")
count = read(("code\r\nname\r\n"):rep(40000))
equal(count, 40000, "a huge file")
