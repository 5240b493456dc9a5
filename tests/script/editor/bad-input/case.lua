-- Scripts that are none, and places that cannot be written.
local folder = mission("Vstupy.Eden")
write_file(home .. "/Bfdata/edit.dat", crlf("@OPERATORY\nand\n@PRIKAZY\ndoMove\n"))
local all = {}
for byte = 0, 255 do
  if byte ~= 10 and byte ~= 13 then all[#all + 1] = string.char(byte) end
end
local binary = table.concat(all) .. "\r\n"
write_file(folder .. "/binary.sqs", binary:rep(100))
write_file(folder .. "/cr.sqs", "DOMOVE\rand\rx")
write_file(folder .. "/line.sqs", ("DOMOVE x "):rep(560000))
write_file(folder .. "/open.sqs", "hint \"x\"\r\nDOMOVE")
write_file(folder .. "/utf16.sqs", "\xFF\xFEd\0o\0\r\0\n\0")
write_file(folder .. "/utf8.sqs", "; \xC5\xBElu\xC5\xA5\r\nDOMOVE\r\n")
write_file(folder .. "/zero.sqs", "DOMOVE\0 DOMOVE ; \0\r\n\0")
start()
open_mission(folder)
local s, list = frmmain.skript, frmmain.otevreneskripty

-- bytes come back as they were, whatever they mean
local function round_trip(name, read)
  list:select(name)
  equal(shared.PovolBarvy, -1, name .. ": colouring while typing is on")
  frmmain.cmdsave:click()
  same(read_file(folder .. "/" .. name), read .. "\r\n", name)
end
round_trip("binary.sqs", binary:rep(100))
round_trip("utf16.sqs", "\xFF\xFEd\0o\0\r\n\0\r\n\0\r\n")
round_trip("utf8.sqs", "; \xC5\xBElu\xC5\xA5\r\ndoMove\r\n")
round_trip("zero.sqs", "DOMOVE\0 doMove ; \0\r\n\0\r\n")
round_trip("cr.sqs", "doMove\r\nand\r\nx\r\n")
round_trip("open.sqs", "hint \"x\"\r\ndoMove\r\n")
round_trip("line.sqs", ("doMove x "):rep(560000) .. "\r\n")

-- one line of 5 MB can be typed into
s.selstart = 7 * 9
s:type("AND ")
equal(s.text:sub(7 * 9 - 1, 7 * 9 + 6), "x and do", "the word is spelled in its place")
equal(s:style(7 * 9).color, 0x0000FF, "and coloured")
equal(s.selstart, 7 * 9 + 4, "the caret")
s.selstart = #s.text
s:type("; DOMOVE ")
equal(s.text:sub(-11), "\r\n; DOMOVE ", "behind the line")

-- what cannot be written stays in the editor
s.text = "precious"
os.remove(folder .. "/open.sqs")
make_folder(folder .. "/open.sqs")
shared.CestaSkriptu = path(folder) .. "/open.sqs"
frmmain.cmdsave:click()
equal(s.text, "precious", "a folder is in the way")
contains(log(), "Nastala chyba při ukládání skriptu do: " .. path(folder) .. "/open.sqs, ", "the log tells it")
shared.CestaSkriptu = path(folder) .. "/nowhere/x.sqs"
frmmain.cmdsave:click()
equal(s.text, "precious", "a folder that is not there")
contains(log(), "nowhere/x.sqs, 76, ", "its log line")
equal(exists(folder .. "/nowhere"), false, "nothing is made")
on.prompt = function() return "later" end
frmmain.cmdnew:click()
s.text = "precious"
frmmain.cmdsave:click()
equal(read_file(folder .. "/later.sqs"), "precious\r\n", "another name does")

-- what cannot be read
os.remove(folder .. "/cr.sqs")
list:select("cr.sqs")
equal(s.text, "", "a file that is gone is empty")
contains(log(), "Nastala chyba při načítání skriptu z: ", "the log tells it")
equal(shared.PovolBarvy, -1, "colouring is on")
