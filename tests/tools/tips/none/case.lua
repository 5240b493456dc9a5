-- home: fresh
-- A first start shows the first tip of the language that was chosen; Command1 hides the window.
on.modal.frmloadsite = function(form)
  form.List1:select(0)
  form.Command1:click()
end
start()
equal(frmtips.visible, true, "a first start shows tips")
equal(frmtips.WebBrowser1.address, path(home) .. "\\Bfdata\\tips\\Test\\a.html", "the first one")
frmtips.Command2:click()
equal(frmtips.WebBrowser1.address, path(home) .. "\\Bfdata\\tips\\Test\\b.html", "then the second")
frmtips.Command1:click()
equal(frmtips.visible, false, "Command1 hides it")
