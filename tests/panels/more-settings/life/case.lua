-- The menu command, the form's closing and what stays.
start()
local f = frmdalsinast
frmmain.mnudalsizvuky:click()
equal(f.visible, false, "with no mission open the form stays away")
equal(#events, 1, "a box instead")
equal(events[1].kind .. "/" .. events[1].text .. "/" .. events[1].buttons .. "/" .. events[1].icon, "box/H14/ok/information", "which says why")
equal(rows(f.pisma), "TahomaB24|CourierNewB64|SteelfishB64", "the fonts are there from the start, in the file's order")
equal(f.pisma.index, 0, "the first is chosen")
lacks(log(), "Chybí soubor: ", "nothing is missing")

open_mission(mission("a.Eden"))
frmmain.mnudalsizvuky:click()
equal(f.visible, true, "with a mission it is shown")
equal(f.modal, false, "beside the main window")
f.Command2:click()
f.cmdadd1:click()
f.cmdpridat1:click()
f.txtstringtable.text = "radek"
f.txtdokument.text = "readme"
f.SSTab1.tab = 3
f.Command1:click()
equal(f.visible, false, "Command1 hides it")
frmmain.mnudalsizvuky:click()
equal(f.txtstringtable.text .. f.txtdokument.text .. f.SSTab1.tab, "radekreadme3", "everything is as it was left")
equal(#f.pisma, 3, "the fonts too, once")
f:close()
equal(f.visible, false, "the window's button hides it as well")

-- another mission keeps the records, the readme is that of the template again
open_mission(mission("b.Eden"))
equal(#f.seznamrozzvuku .. "/" .. #f.List1 .. "/" .. #f.List3, "1/1/1", "the records stay as long as the program runs")
equal(shared.PocetOkoli .. "/" .. shared.PocetSfx .. "/" .. shared.PocetTitulu, "1/1/1", "with their counts")
equal(f.txtstringtable.text, "radek", "the rows as well")
contains(f.txtdokument.text, "By Karel (karel@example.org)\r\n", "a new readme")
