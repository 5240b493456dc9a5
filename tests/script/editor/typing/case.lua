-- Colouring while the user types: a word when it is closed, a comment at once.
write_file(home .. "/Bfdata/edit.dat", crlf("@OPERATORY\nand\n@PRIKAZY\ndoMove\ngetPos\n"))
start()
local s = frmmain.skript
local function style(i)
  local st = s:style(i)
  return string.format("%06X%s%s", st.color, st.bold and " b" or "", st.italic and " i" or "")
end
s.text = ""
s:type("DOMOVE")
equal(s.text, "DOMOVE", "an open word stays")
equal(style(0), "000000", "and is plain")
s:type(" ")
equal(s.text, "doMove ", "the blank closes it: the spelling of the catalogue")
equal(style(0) .. style(5), "FF0000 bFF0000 b", "and its colour")
equal(style(6), "000000", "the blank is plain")
equal(s.selstart .. "," .. s.sellength, "7,0", "the caret is behind the blank")
s:type("x")
equal(style(7), "000000", "what follows is plain")
s:type(" AND\r")
equal(s.text, "doMove x and\r", "a CR closes a word")
equal(style(9), "0000FF", "with its colour")
equal(style(7), "000000", "an unknown word is plain")
s:type("\nGETPOS;AND DOMOVE")
equal(s.text, "doMove x and\r\ngetPos;AND DOMOVE", "a ; closes the word before it; the comment stays as typed")
equal(style(14) .. style(19), "FF0000 bFF0000 b", "the word before the ;")
equal(style(20) .. style(24) .. style(30), "00FF00 i00FF00 i00FF00 i", "the comment")
s:type("\r\n")
equal(s.text, "doMove x and\r\ngetPos;AND DOMOVE\r\n", "a CR at a comment's end replaces nothing")
equal(style(25), "00FF00 i", "the comment keeps its look")
equal(s.selstart, #s.text, "the caret is at the end")
s:type("AND ")
equal(style(33), "0000FF", "the line after the comment is coloured again")

-- in the middle of a text
s.text = ""
s:type("one GETPOStwo and")
s.selstart = 10
s:type(" ")
equal(s.text, "one getPos two and", "a blank in a word closes what is before it")
equal(s.selstart, 11, "the caret")
equal(style(4), "FF0000 b", "its colour")
s.selstart = 4
s:type(";")
equal(s.text, "one ;getPos two and", "a ; in mid-line")
equal(style(4) .. style(5) .. style(18), "00FF00 i00FF00 i00FF00 i", "makes the rest of the line a comment")
equal(style(0), "000000", "what is before it stays")
equal(s.selstart, 5, "the caret is behind the ;")

-- a line end that comes in one piece
s.text = "DOMOVE\r\n"
equal(s.text, "doMove\r\n", "the word before a whole line end")
equal(s.selstart, 8, "the caret at the end")
s.text = "x ; DOMOVE\r\n"
equal(s.text, "x ; DOMOVE\r\n", "a comment before a whole line end")
s.text = "x DOMOVE"
equal(s.text, "x DOMOVE", "no separator, no word closed")

-- long texts of two-byte letters
s.text = ("žluťoučký kůň\r\n"):rep(200)
s:type("DOMOVE ")
equal(s.text:sub(-9), "\r\ndoMove ", "behind many Czech letters")
equal(style(200 * 15), "FF0000 b", "the style is at its place")

-- switched off
shared.Nastaveni.UkazovatBarvy = 0
s.text = ""
s:type("DOMOVE ")
equal(s.text, "DOMOVE ", "no colouring, no spelling")
shared.Nastaveni.UkazovatBarvy = -1
shared.PovolBarvy = 0
s:type("AND ")
equal(s.text, "DOMOVE AND ", "the program's own changes are left alone")
frmmain.cmdnew:click()
equal(s.text, "", "an empty text does no harm")
