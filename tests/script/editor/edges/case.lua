-- Words at the ends of a text, and colouring that is off.
local folder = mission("Okraje.Eden")
write_file(folder .. "/a.sqs", "DOMOVE AND ; x\r\n")
write_file(home .. "/Bfdata/edit.dat", crlf("@OPERATORY\nand\n@PRIKAZY\ndoMove\n"))
start()
open_mission(folder)
local s, list = frmmain.skript, frmmain.otevreneskripty
shared.Nastaveni.UkazovatBarvy = 0
list:select("a.sqs")
equal(s.text, "DOMOVE AND ; x\r\n", "with colouring off words keep their spelling")
for i = 0, 13 do equal(s:style(i).color, 0, "and are plain") end
frmmain.cmdrefresh:click()
equal(s.text, "DOMOVE AND ; x\r\n", "cmdrefresh does nothing then")
shared.Nastaveni.UkazovatBarvy = -1
frmmain.cmdrefresh:click()
equal(s.text, "doMove and ; x\r\n", "and everything when it is on")
frmmain.cmdnew:click()
s:type("DOMOVE")
frmmain.cmdrefresh:click()
equal(s.text, "doMove", "a text of one word with nothing behind it")
equal(s.selstart, 6, "the caret is behind it")
equal(s:style(0).bold, true, "its colour")
s:type("x")
equal(s:style(6).bold, false, "what is typed behind it is plain")
s.selstart = 0
s:type(" ")
equal(s.text, " doMovex", "a separator at the start closes nothing")
equal(s.selstart, 1, "the caret is behind it")
s.text = ""
s:type("  AND  \r\n\r\n;")
equal(s.text, "  and  \r\n\r\n;", "separators in a row")
equal(s:style(2).color, 0x0000FF, "the word between them")
equal(s:style(11).italic, true, "a ; alone on the last line")
s.selstart = 11
s:type("AND")
equal(s.text, "  and  \r\n\r\nAND;", "a word before a ; that stands already is open")
s:type(" ")
equal(s.text, "  and  \r\n\r\nand ;", "until it is closed")
