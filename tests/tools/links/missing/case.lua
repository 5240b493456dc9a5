-- Without the catalogue the list is empty and nobody is told.
os.remove(home .. "/Bfdata/ofpsites.dat")
start()
frmmain.mnunet:click()
equal(#Form4.List1, 0, "no links")
equal(Form4.visible, true, "the form is shown all the same")
lacks(log(), "ofpsites", "nothing is logged")
