-- Find and replace in the script.
write_file(home .. "/Bfdata/edit.dat", crlf("@PRIKAZY\ndoMove\n"))
start()
local s, f = frmmain.skript, frmnajit
local boxes = {}
on.box = function(text) boxes[#boxes + 1] = text return "ok" end
frmmain.cmdsearch2:click()
equal(f.visible, true, "cmdsearch2 shows the window")
equal(f.cmdnahradit.enabled, false, "nothing to replace yet")
shared.PovolBarvy = 0
local function find(text, needle)
  s.text = text
  f.txthledane.text = needle
  f.cmdnajdi:click()
  return s.selstart, s.sellength
end
local function again() f.cmdnajdi:click() return s.selstart end

local at, size = find("abc Abc xabc abc", "abc")
equal(at .. "," .. size, "0,3", "the first character can be hit")
equal(f.pozice, 0, "the place is kept")
equal(f.cmdnahradit.enabled, true, "a hit can be replaced")
equal(again(), 4, "ignoring case")
equal(again(), 9, "inside a word")
equal(again(), 13, "and further")
f.cmdnajdi:click()
equal(#boxes, 1, "no more: a box")
equal(boxes[1], "Hledaný text nenalezen", "its text")
equal(f.cmdnahradit.enabled, false, "nothing to replace")
equal(f.pozice, -1, "the next search begins at the start")
equal(s.text, "abc Abc xabc abc", "the text is as it was")

f.chkmv.value, f.chkcela.value = 1, 1
equal(find("xabc Abc abc_ abc", "abc"), 14, "whole words in this case")
f.cmdnajdi:click()
f.chkmv.value = 0
equal(find("xabc abcž Abc.", "ABC"), 10, "whole words in any case; a Czech letter belongs to a word")
f.cmdnajdi:click()
f.chkcela.value = 0
equal(find("žluť kůň KŮŇ", "KŮŇ"), 5, "Czech letters in any case, counted in characters")
equal(again(), 9, "the next one")
f.cmdnajdi:click()
local before = #boxes
find("abc", "")
equal(#boxes, before + 1, "nothing is searched, nothing is found")

-- far into a long script
s.text = ("x"):rep(70000) .. "needle" .. ("x"):rep(10) .. "needle"
f.txthledane.text = "needle"
f.cmdnajdi:click()
equal(f.pozice, 70000, "behind the 32767th character")
equal(again(), 70016, "and on from there")
f.cmdnajdi:click()

-- replacing
s.text = "go DOMOVE go"
f.txthledane.text = "go"
f.txtnahradit.text = "stop"
f.cmdnajdi:click()
f.cmdnahradit:click()
equal(s.text, "stop doMove go", "replaced, and the script is coloured")
equal(s:style(5).bold, true, "coloured")
equal(s.selstart, 4, "the caret is behind what came in")
shared.Nastaveni.UkazovatBarvy = 0
f.cmdnajdi:click()
f.cmdnahradit:click()
equal(s.text, "stop doMove stop", "the next")
s.text = "DOMOVE x"
f.txthledane.text = "x"
f.cmdnajdi:click()
f.cmdnajdi:click()
f.txtnahradit.text = ""
f.cmdnahradit:click()
equal(s.text, "DOMOVE ", "with colouring off nothing is spelled; nothing replaces the hit")
f.Command4:click()
equal(f.visible, false, "Ok hides")
