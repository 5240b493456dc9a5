-- home: fresh
-- At a first start the language is chosen before the catalogues are read: the faces stand at their codes nevertheless.
on.modal.frmloadsite = function(form) form.List1:select(0) form.Command1:click() end
start()
equal(rows(Form2.ksichty), "Adam|Bruno|Cyril|T73", "one row for the custom face, at the end")
equal(shared.KodyObliceju[0] .. shared.KodyObliceju[2], "Face1Face3", "codes at the places of their rows")
equal(rows(Form2.bryle), "T70|T71|T72", "glasses once")
