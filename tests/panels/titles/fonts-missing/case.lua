-- Without fonts.dat the form works with an empty list of fonts, and the log says so.
os.remove(home .. "/Bfdata/fonts.dat")
start()
local f = frmdalsinast
contains(log(), "Chybí soubor: " .. path(home) .. "\\Bfdata\\fonts.dat\r\n", "logged")
equal(#f.pisma, 0, "no fonts")
f.cmdpridat1:click()
f.List3:select(0)
f.cmdpridat2:click()
f.List4:select(0)
f.txttext.text = "a"
equal(shared.Tituly[0].Prvky[0].Text, "a", "controls are edited all the same")
equal(shared.Tituly[0].Prvky[0].Pismo, "", "without a font")
