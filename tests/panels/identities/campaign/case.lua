-- The same form as a step of the campaign wizard: the campaign's own store, other commands.
start("MISSION=" .. mission("m.Eden") .. "/mission.sqm")
frmmain.mnuksicht:click()
Form2.txtnazev.text = "Mise"
Form2.cmdadd:click()
Form2.cmdPrev:click()
equal(tostring(Form2.visible) .. tostring(frmcamp2.visible), "truefalse", "there is no step back from the mission's")
Form2.cmdOk:click()
equal(tostring(Form2.visible) .. tostring(frmcamp3.visible), "falsefalse", "OK leads nowhere")

shared.KampanMod = -1
equal(shared.ProfilyKampane, -1, "one flag under two names")
Form2.txtnazev.text = "Kampan"
Form2.cmdadd:click()
equal(shared.PocetIdentit .. "/" .. shared.PocetIdentitKampane .. "/" .. shared.IdentityKampane.bound, "1/1/1", "the campaign's own count")
equal(rows(Form2.seznamidentit), "Kampan", "its own rows")
equal(shared.AktualniIdentitaKampane, 0, "its current is the row of the list")
Form2.seznamidentit:select(0)
Form2.Text1.text = "Velitel"
Form2.Text2.text = "0.8"
Form2.hlasy:select(1)
Form2.bryle:select(2)
Form2.ksichty:select(1)
local r, m = shared.IdentityKampane[0], shared.Identity[0]
equal(table.concat({r.Obrazek, r.Oblicej, r.Jmeno, r.Bryle, r.Hlas, r.VyskaHlasu}, "|"), "|Face2|Velitel|spectacles|Dan|0.8", "its records")
equal(table.concat({m.Obrazek, m.Oblicej, m.Jmeno, m.Bryle, m.Hlas, m.VyskaHlasu}, "|"), "|Face1|Vanderlin|none|Adam|1", "the mission's stay")

write_file(work .. "/face.jpg", "no picture")
dofile(arg[1] .. "/pictures.lua")
pick_picture(work, "face.jpg")
Form2.ksichty:select(3)
Form2.Command1:click()
equal(shared.IdentityKampane[0].Obrazek .. "|" .. shared.IdentityKampane[0].Oblicej, path(work) .. "\\face.jpg|custom", "a custom face goes to the campaign's")
equal(shared.Identity[0].Oblicej, "Face1", "not to the mission's")

Form2.cmdOk:click()
equal(frmcamp3.visible, true, "OK is the next step")
Form2.cmdPrev:click()
equal(frmcamp2.visible, true, "and there is one back")
Form2.cmdelall:click()
equal(shared.PocetIdentitKampane .. "/" .. shared.IdentityKampane.bound .. "/" .. shared.PocetIdentit, "0/0/1", "deleting empties the campaign's store alone")

frmmain.mnuksicht:click()
equal(shared.KampanMod, 0, "the menu is the mission's way in")
equal(Form2.caption .. "/" .. tostring(Form2.cmdPrev.visible), "T65/false", "its title, no step back")
