-- The general settings: what they show and keep.
start()
local f, set = frmsettings, shared.Nastaveni
frmmain.mnusetobec:click()
equal(f.txtpbopath.text, "\\tools\\tarvpbou.exe", "the PBO utility")
equal(f.txtparametry.text, "T92,T93,2", "its parameters")
equal(f.Text1.text .. "|" .. f.Text2.text, "Karel|karel@example.org", "the user")
equal(f.Check1.value, 0, "tips are off")
f.txtpbopath.text = "c:\\other pbo.exe"
f.txtparametry.text = "T92,x"
equal(set.CestaPbo .. "|" .. set.ParametryPbo, "c:\\other pbo.exe|T92,x", "kept")
f.Text1.text = "Žaneta \"Z\""
f.Text2.text = "z@example.org"
f.Command4:click()
equal(set.UzivatelJmeno .. "|" .. set.UzivatelMail, "Žaneta \"Z\"|z@example.org", "applied")
f.Check1:click()
equal(set.UkazovatTipy, -1, "tips on")
f.Check1:click()
equal(set.UkazovatTipy, 0, "tips off")
f.Text1.text = "Jan"
f.Command2:click()
equal(f.visible, false, "Ok hides")
equal(set.UzivatelJmeno, "Jan", "and applies")

-- what the settings are when the window is shown again
set.UzivatelJmeno = "Eva"
frmmain.mnusetobec:click()
equal(f.Text1.text, "Eva", "shown anew")
f.Text1.text = "Iva"
quit()
contains(read_file(home .. "/Tarvinfo.cfg"), string.pack("<s2", "Iva"), "in the file after the end")
