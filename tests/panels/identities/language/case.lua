-- Another language: the form speaks it, the identities keep what they have.
local pack = {}
for i = 1, 121 do pack[i] = "N" .. i end
for i = 122, 462 do pack[i] = "x" .. i end
write_file(home .. "/Bfdata/languages/Tv/Other.lng", table.concat(pack, "\r\n") .. "\r\n")
start("MISSION=" .. mission("m.Eden") .. "/mission.sqm")
Form2.txtnazev.text = "Hrdina"
Form2.cmdadd:click()
Form2.ksichty:select(1)
Form2.bryle:select(2)
Form2.hlasy:select(1)
on.modal.frmloadsite = function(form) form.List1:select(0) form.Command1:click() end
frmmain.mnusetupLanguage:click()
equal(rows(Form2.bryle) .. "/" .. Form2.bryle.index, "N70|N71|N72/0", "glasses, the first one shown")
equal(rows(Form2.ksichty) .. "/" .. Form2.ksichty.index, "Adam|Bruno|Cyril|N73/0", "the custom face in the new words")
equal(Form2.txtnazev.text, "N", "the suggested name")
local r = shared.Identity[0]
equal(table.concat({r.Oblicej, r.Bryle, r.Hlas}, "|"), "Face2|spectacles|Dan", "the identity keeps its values")
Form2.seznamidentit:select(0)
equal(Form2.ksichty.text .. "/" .. Form2.bryle.text, "Bruno/N72", "and shows them again")
Form2.ksichty:select(3)
equal(Form2.Command1.enabled, true, "the custom face is known by its new words")
proc.brejle()
equal(#Form2.ksichty .. "/" .. #Form2.bryle, "4/3", "each run leaves one row of each")
