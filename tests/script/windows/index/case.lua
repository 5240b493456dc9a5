-- The index of commands: a prefix selects a row, a row tells its class.
write_file(home .. "/Bfdata/edit.dat", crlf("none\n@ZBRANE\nM16\n@OPERATORY\nand\n@PRIKAZY\ndoMove\n@ACTIONKON\nEJECT\n@ANIMACE\nCombat\n"))
start()
frmmain.cmdsearch:click()
local f = frmrejstrik
equal(f.visible, true, "cmdsearch shows the index")
equal(rows(f.seznam), "and|Combat|doMove|EJECT|M16|none", "the words")
for i, want in pairs { [0] = "Operátor", "Animační konstanta", "Příkaz nebo funkce", "Konstanta příkazu Action", "Zbraně", "" } do
  f.seznam:select(i)
  equal(f.lbltyp.caption, want, "class of row " .. i)
end
f.nazev.text = "DO"
equal(f.seznam.index, 2, "a prefix in any case selects its row")
equal(f.lbltyp.caption, "Příkaz nebo funkce", "and the class is told")
f.nazev.text = "xyz"
equal(f.seznam.index, 2, "no such word: the row stays")
f.nazev.text = ""
equal(f.seznam.index, 2, "nothing typed: the row stays")
f.Command1:click()
equal(f.visible, false, "Ok hides")
