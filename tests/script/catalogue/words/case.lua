-- The words of the script language: classes by heading, sorted ignoring case, tags of the rows.
write_file(home .. "/Bfdata/edit.dat", crlf([[
stray
  @  zbrane  
M16
  AK74  

@OPERATORY
and
@Nonsense
OR
@before @PRIKAZY
not
@PRIKAZY
doMove
#getPos
@ACTIONKON
EJECT
@ANIMACE
combat
Zebra
]]))
os.remove(home .. "/Bfdata/commands.dat")
start()
local list = frmrejstrik.seznam
local got = {}
for i = 0, #list - 1 do got[#got + 1] = list[i].text .. "=" .. list[i].tag end
equal(table.concat(got, " "), "#getPos=3 AK74=1 and=2 combat=5 doMove=3 EJECT=4 M16=1 not=2 OR=2 stray=0 Zebra=5",
  "rows by upper-case text, each with its class")
equal(#frmmain.prikazy, 0, "no catalogue, no commands")
contains(log(), "Chybí: " .. path(home) .. "\\bfdata\\commands.dat\r\n", "the missing catalogue is named")
lacks(log(), "Načítání souboru s příkazy", "it is not read")
lacks(log(), "druhého souboru", "no failure")
