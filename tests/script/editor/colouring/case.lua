-- A whole script coloured: spelling, classes, comments, the last word, the caret.
write_file(home .. "/Bfdata/edit.dat", crlf("unknownClass\n@ZBRANE\nM16\n@OPERATORY\nand\n@PRIKAZY\ndoMove\ngetPos\n@ACTIONKON\nEJECT\n@ANIMACE\nCombatToStand\n"))
start()
local s = frmmain.skript
local function style(i)
  local st = s:style(i)
  return string.format("%06X%s%s", st.color, st.bold and " b" or "", st.italic and " i" or "")
end
local function colour(text)
  shared.PovolBarvy = 0
  s.text = text
  shared.PovolBarvy = -1
  frmmain.cmdrefresh:click()
end
local function at(part, what, want)
  local from = s.text:find(part, 1, true)
  equal(style(from - 1), want, what)
  equal(style(from + #part - 2), want, what .. ", its end")
end

colour("m16 AND domove eject combattostand nothing UNKNOWNCLASS\r\n")
equal(s.text, "M16 and doMove EJECT CombatToStand nothing unknownClass\r\n", "the spelling of the catalogue")
at("M16", "equipment", "0080FF")
at("and", "operator", "0000FF")
at("doMove", "function", "FF0000 b")
at("EJECT", "action constant", "0040C0 b")
at("CombatToStand", "animation constant", "404040 b")
at("nothing", "another word", "000000")
at("unknownClass", "a word without a class", "000000")
equal(style(3), "000000", "a blank")

colour("GETPOS;DOMOVE \"x\"\r\nDOMOVE")
equal(s.text, "getPos;DOMOVE \"x\"\r\ndoMove", "a ; closes the word before it, nothing in a comment is spelled")
at("getPos", "the word before the ;", "FF0000 b")
at(";DOMOVE \"x\"\r", "the comment with its CR", "00FF00 i")
equal(style(18), "000000", "the LF is behind the comment")
at("doMove", "the last word, with nothing behind it", "FF0000 b")

colour("\"a ; DOMOVE\" and\r\nx")
at("; DOMOVE\" and\r", "a ; inside a string begins a comment as well", "00FF00 i")
at("x", "the next line", "000000")

colour(";;a\r\n;b\n AND")
equal(s.text, ";;a\r\n;b\n and", "a comment ends with its line, also at a lone LF")
at("and", "behind the LF", "0000FF")

colour("žluť AND žluť ;kůň AND\r\nDOMOVE")
equal(s.text, "žluť and žluť ;kůň AND\r\ndoMove", "Czech letters")
equal(style(5) .. style(7), "0000FF0000FF", "places are counted in characters")
equal(style(14), "00FF00 i", "the ; behind them")
equal(style(24), "FF0000 b", "the next line")
equal(style(29), "FF0000 b", "its last letter")

colour("DOMOVE\tAND")
equal(s.text, "DOMOVE\tAND", "a tab is no separator")
colour("")
equal(s.text, "", "an empty text")
colour(";")
equal(style(0), "00FF00 i", "a comment of one character")

-- a word that is no longer one loses its look
colour("DOMOVE")
shared.PovolBarvy = 0
s.text = "doMovex doMove"
s.selstart = 3
frmmain.cmdrefresh:click()
equal(style(0), "000000", "the longer word is plain")
equal(style(8), "FF0000 b", "the other has its class")
equal(s.selstart, 3, "the caret stays")
equal(shared.PovolBarvy, -1, "colouring while typing is on again")

-- proc.ObarviSkript works on any rich text
tmpfrm.tmptxt.text = "GETPOS"
proc.ObarviSkript(tmpfrm.tmptxt)
equal(tmpfrm.tmptxt.text, "getPos", "another field is coloured alike")
equal(tmpfrm.tmptxt:style(5).bold, true, "with its styles")
shared.Nastaveni.FunkceBarva = 0x123456
shared.Nastaveni.FunkceTucne = 0
shared.Nastaveni.FunkceKurziva = -1
colour("doMove")
equal(style(0), "123456 i", "the colours of the settings")
