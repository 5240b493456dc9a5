-- Forms and fields by name, ignoring case; values that a form holds beside its fields; errors for what is not there.
start()
equal(FRMMAIN.caption, "Tarvelin", "a form's name ignores case")
equal(form2 == Form2, true, "whatever the case, one form")
equal(frmmain.TXTJMENOMISE == frmmain.txtJmenoMise, true, "a field's name ignores case")
equal(frmmain.txtJmenoMise == frmmain.txtUkol, false, "two fields are two")
equal(frmmain.label1[25].caption, "C1", "a field array by index")
equal(frmmain.Label1[25].name, "Label1(25)", "name of an element")
equal(tmpfrm.caption, "Form1", "every form is a global")
equal(nosuchform, nil, "other globals are nil as ever")
fails(function() return frmmain.nosuchfield end, "no field frmmain.nosuchfield", "a field that does not exist")
fails(function() return frmmain.Label1[999] end, "no field frmmain.Label1(999)", "an element that does not exist")
fails(function() return frmmain.Label1[-1] end, "no field frmmain.Label1(-1)", "an index below 0")
fails(function() frmmain.cmdend = 1 end, "frmmain.cmdend cannot be written", "a field cannot be replaced")
fails(function() return frmmain.cmdend.nosuch end, "no member frmmain.cmdend.nosuch", "a member that does not exist")

equal(frmmain.StranaBrifing, "", "a value of the form")
equal(frmopen2.soubor, "", "ignoring case too")
equal(math.type(frmtips.Aktualni), "integer", "a number")

local names = frmmain:fields()
local seen = {}
for _, name in ipairs(names) do seen[name] = (seen[name] or 0) + 1 end
equal(seen["txtJmenoMise"], 1, "fields() names a field")
equal(seen["Label1(25)"], 1, "and an element of an array")
equal(seen["Label1"], nil, "the array itself is no field")

equal(frmload.visible, false, ".visible")
frmmain.mnuukazlog:click()
equal(frmload.visible, true, ".visible of a shown form")
equal(frmload.modal, false, ".modal")
frmload:close()
equal(frmload.visible, false, ":close() is the window's own button")
