-- The picker of executables for the programs and for the PBO utility: it fills the field that asked, and no other.
start()
local f, set = frmsettings, shared.Nastaveni
frmmain.mnusetobec:click()
f.cmdadd:click()
f.seznamprogramu:select(0)
make_folder(work .. "/my tools")
write_file(work .. "/my tools/run; it.exe", "MZ")
write_file(work .. "/my tools/native tool", "#!/bin/sh\n")
write_file(work .. "/my tools/notes.exe.txt", "no program")
os.execute("chmod 755 '" .. work .. "/my tools/native tool'; mkdir '" .. work .. "/my tools/folder'")
local shown
on.modal.frmopen2 = function(form)
  shown = shared.RezimOtevreni
  form.Dir1.path = path(work .. "/my tools")
  equal(form.File1.pattern, "*.exe;*.bat;*.com*", "the filter")
  equal(table.concat(form.File1:names(), "|"), "native tool|run; it.exe", "what may be run, by its name or its permissions")
  form.File1:select("run; it.exe")
  form.cmdOk:click()
end
f.Command3:click()
equal(shown, 7, "the picker's mode")
local want = path(work .. "/my tools") .. "\\run; it.exe"
equal(f.txtcesta.text, want, "the choice")
equal(shared.Programy[0].Cesta, want, "in the record too")
equal(set.UzivatelJmeno, "Karel", "the user's name is as it was")
f.Command4:click()
equal(set.UzivatelJmeno, "Karel", "also after Apply")
on.modal.frmopen2 = function(form) form.Command1:click() end
f.Command3:click()
equal(f.txtcesta.text, "", "Storno empties the field that asked")
equal(shared.Programy[0].Cesta, "", "and its record")
equal(set.UzivatelJmeno, "Karel", "and the user's name")

-- the PBO utility by the picker
write_file(work .. "/pbo.exe", "MZ")
on.modal.frmopen2 = function(form)
  form.Dir1.path = path(work)
  form.File1:select("pbo.exe")
  form.cmdOk:click()
end
f.Command1:click()
equal(f.txtpbopath.text, path(work) .. "\\pbo.exe", "the choice")
equal(set.CestaPbo, path(work) .. "\\pbo.exe", "is kept")
equal(f.Text1.text .. set.UzivatelJmeno, "KarelKarel", "the user's name stays")
on.modal.frmopen2 = nil
f.Command1:click()
equal(set.CestaPbo, path(work) .. "\\pbo.exe", "closed without a choice")

-- a name typed afterwards is one again
f.Text1.text = "Jan"
f.Command4:click()
equal(set.UzivatelJmeno, "Jan", "typed and applied")
