-- home: fresh
-- Everything cancelled: the settings exist afterwards, with no pack; the next start loads none.
on.modal.frmloadsite = function(form) form.cmdstorno:click() end
start()
equal(exists(home .. "/Tarvinfo.cfg"), true, "the file exists")
equal(shared.Nastaveni.SouborJazyka, "", "no pack")
equal(shared.Nastaveni.UzivatelJmeno, "", "no name")
equal(shared.Nastaveni.CestaPbo, path(home) .. "\\tarvpbou.exe", "the packing tool beside the program")
equal(frmmain.cmdvytvor.caption, "Vytvoř", "the forms speak their own language")
quit()
events = {}
start()
equal(#events, 0, "the next start asks nothing")
equal(shared.Nastaveni.SouborJazyka, "", "and loads no pack")
equal(shared.Texty[1], "", "the tables stay empty")
equal(frmmain.cmdvytvor.caption, "Vytvoř", "captions stay")
