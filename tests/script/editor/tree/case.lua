-- A click in the tree of commands puts the command into the script at the caret.
write_file(home .. "/Bfdata/commands.dat", crlf("@Units\n#Orders\n  doMove  \nother\n#Empty\n@Bare\n"))
write_file(home .. "/Bfdata/edit.dat", crlf("@PRIKAZY\nDoMove\n"))
start()
local s, tree = frmmain.skript, frmmain.prikazy
s.text = "one two"
s.selstart = 4
s.sellength = 3
shared.PovolBarvy = 0
for _, key in ipairs { "Units", "UnitsOrders", "UnitsEmpty", "Bare" } do
  tree:click(key)
  equal(s.text, "one two", "no command: " .. key)
end
equal(shared.PovolBarvy, 0, "a heading does nothing")
tree:click("UnitsOrders  doMove  ")
equal(s.text, "one DoMove ", "trimmed, with a blank, in place of the selection; the blank closes the word")
equal(s:style(4).bold, true, "coloured")
equal(s.selstart, 11, "the caret behind it")
equal(shared.PovolBarvy, -1, "colouring is on")
s.selstart = 0
tree:click("UnitsOrdersother")
equal(s.text, "other one DoMove ", "at the caret")
