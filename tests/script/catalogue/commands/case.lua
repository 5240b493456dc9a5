-- The command catalogue as a tree: headings, sub-headings, commands; what has nothing to hang on is dropped.
write_file(home .. "/Bfdata/commands.dat", crlf([[
orphan
#homeless
another
@Units
early
#Orders
doMove
  doStop 
doMove

@World @ Time
#A#B
skipTime
both # and @Heading
#Late
date
@
nobody
@Units
#Orders
doFollow
#
lost
]]))
start()
local tree = frmmain.prikazy
equal(table.concat(tree:keys(), "|"), "Units|UnitsOrders|UnitsOrdersdoMove|UnitsOrders  doStop |UnitsOrdersdoFollow|" ..
  "World @ Time|World @ TimeA#B|World @ TimeA#BskipTime|Heading|HeadingLate|HeadingLatedate", "keys in display order")
local node = tree:node("UnitsOrdersdoMove")
equal(node.text, "doMove", "text of a command")
equal(node.parent, "UnitsOrders", "it hangs on its sub-heading")
equal(tree:node("UnitsOrders  doStop ").text, "  doStop ", "a command is the whole line")
equal(tree:node("World @ Time").text, "World @ Time", "a heading is all behind the first @")
equal(tree:node("World @ TimeA#B").text, "A#B", "a sub-heading is all behind the first #")
equal(tree:node("Heading").parent, nil, "a line with both marks is a heading")
local file = path(home) .. "\\bfdata\\commands.dat"
local text = log()
in_order(text, { "Načítání souboru s příkazy\r\n", "Nastala chyba při načítání souboru s příkazy z: ", ", 35601, ",
  "Konec načítání souboru s příkazy\r\n" }, "the log tells of the reading")
local _, orphans = text:gsub("Nastala chyba při načítání souboru s příkazy z: [^\r]*, 35601, [^\r]+\r\n", "")
equal(orphans, 7, "a line for each that hangs on nothing")
local _, repeated = text:gsub("Nastala chyba při načítání souboru s příkazy z: [^\r]*, 35602, [^\r]+\r\n", "")
equal(repeated, 4, "a line for each repeated key")
contains(text, "souboru s příkazy z: " .. file .. ", ", "the lines name the file")
