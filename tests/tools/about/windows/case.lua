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
contains(log(), "Hra nebyla v registru nalezena", "a missing game is logged")
shared.CestaHry = "C:\\Hry\\Flashpoint"
shared.MechanikaCD = "D:"
frmmain.mnuaboutflashpoint:click()
equal(frmabout2.lblcesta.caption .. "|" .. frmabout2.lblCD.caption, "C:\\Hry\\Flashpoint|D:", "folder and drive")
