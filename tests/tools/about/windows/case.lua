-- The windows about the program and about the installed game.
start()
frmmain.mnuabout2:click()
equal(frmabout.visible, true, "about the program")
frmabout:close()
equal(frmabout.visible, false, "its window button hides it")
frmmain.mnuabout2:click()
equal(frmabout.visible, true, "and it can be shown again")
frmmain.mnuaboutflashpoint:click()
equal(frmabout2.visible, true, "about the game")
equal(frmabout2.lblcesta.caption .. frmabout2.lblCD.caption, "", "no game is installed")
frmabout2.Command1:click()
equal(frmabout2.visible, false, "Ok hides it")
contains(log(), "Nastala chyba při čtení registru: Software\\Codemasters\\Operation Flashpoint, 53, File not found\r\n", "a missing game is logged")
for _, event in ipairs(events) do check(event.kind ~= "box", "and no box is shown") end
shared.CestaHry = "C:\\Hry\\Flashpoint"
shared.MechanikaCD = "D:"
frmmain.mnuaboutflashpoint:click()
equal(frmabout2.lblcesta.caption .. "|" .. frmabout2.lblCD.caption, "C:\\Hry\\Flashpoint|D:", "folder and drive")
