-- home: fresh
-- No folder of packs at all: the chooser is empty, OK without a choice changes nothing, the start goes on.
os.execute("rm -r '" .. home .. "/Bfdata/languages'")
on.modal.frmloadsite = function(form)
  equal(#form.List1, 0, "no packs")
  form.Command1:click()
  equal(form.visible, false, "OK closes it")
end
start()
contains(log(), "Chyba v podprogramu NactiStranky , 76 , Path not found\r\n", "the missing folder is logged")
equal(shared.Nastaveni.SouborJazyka, "", "no pack")
equal(frmmain.visible, true, "the program runs")
