-- Identities are added, edited, looked at again and dropped.
dofile(arg[1] .. "/pictures.lua")
local folder = mission("m.Eden")
for i = 1, 3 do write_file(home .. "/Bfdata/dtface/Face" .. i .. ".jpg", jpeg(i, i)) end
start("MISSION=" .. folder .. "/mission.sqm")
frmmain.mnuksicht:click()
equal(Form2.visible, true, "the menu shows the form")
equal(Form2.caption .. "/" .. tostring(Form2.cmdPrev.visible), "T65/false", "as the mission's")
equal(shared.KampanMod, 0, "it works for the mission")
local function one(i)
  local r = shared.Identity[i]
  return table.concat({r.Obrazek, r.Oblicej, r.Jmeno, r.Bryle, r.Hlas, r.VyskaHlasu}, "|")
end
local function enabled()
  local text = ""
  for _, name in ipairs{"Text1", "Text2", "ksichty", "bryle", "hlasy", "List1", "cmdelall"} do text = text .. (Form2[name].enabled and "+" or "-") end
  return text
end
equal(enabled(), "-------", "nothing to edit yet")
Form2.txtnazev.text = "Hrdina"
Form2.cmdadd:click()
equal(rows(Form2.seznamidentit) .. marks(Form2.seznamidentit), "Hrdina+", "a marked row")
equal(Form2.seznamidentit.index, -1, "not highlighted")
equal(shared.PocetIdentit .. "/" .. shared.AktualniIdentita .. "/" .. shared.Identity.bound, "1/0/1", "counted, current, one spare element")
equal(one(0), "|Face1|Vanderlin|none|Adam|1", "it takes what the fields show")
equal(enabled(), "+++++++", "the fields turn on")

-- each field writes at once
Form2.Text1.text = 'Jan "Žižka"; z Trocnova'
Form2.bryle:select(1)
Form2.hlasy:select(2)
Form2.ksichty:select(2)
equal(Form2.Image1.path, path(home) .. "\\Bfdata\\dtface\\Face3.jpg", "picture of the face")
for _, r in ipairs{{"1,5", "1"}, {"1.25", "1.25"}, {"abc", "0"}, {"", "0"}, {" +2x", "2"}, {"-.5", "-0.5"}, {"1e2", "100"}} do
  Form2.Text2.text = r[1]
  equal(shared.Identity[0].VyskaHlasu, r[2], "pitch " .. r[1])
end
equal(one(0), '|Face3|Jan "Žižka"; z Trocnova|sunglasses|Zed|100', "the record")
Form2.Text2.text = "1e999"
equal(shared.Identity[0].VyskaHlasu, "100", "a number beyond all bounds is skipped")

-- the next one takes the fields as they are; names may repeat and be empty
Form2.Text2.text = "0.9"
Form2.cmdadd:click()
Form2.txtnazev.text = ""
Form2.cmdadd:click()
equal(rows(Form2.seznamidentit) .. "/" .. marks(Form2.seznamidentit), "Hrdina|Hrdina|/+++", "the same name, no name")
equal(one(1), '|Face3|Jan "Žižka"; z Trocnova|sunglasses|Zed|0.9', "the second")
equal(shared.AktualniIdentita, 2, "the newest is current")
Form2.Text1.text = "Eva"
Form2.bryle:select(2)
Form2.hlasy:select(0)
Form2.ksichty:select(1)
Form2.Text2.text = "2"

-- a click shows a record and changes none
local before = {one(0), one(1), one(2)}
Form2.seznamidentit:select(0)
equal(shared.AktualniIdentita, 0, "the clicked one is current")
equal(table.concat({Form2.Text1.text, Form2.Text2.text, Form2.ksichty.text, Form2.bryle.text, Form2.hlasy.text}, "|"), 'Jan "Žižka"; z Trocnova|0.9|Cyril|T71|Zed', "its values")
Form2.seznamidentit:mark(2, false)
equal(shared.AktualniIdentita, 2, "so is one whose mark was clicked")
equal(table.concat({Form2.Text1.text, Form2.Text2.text, Form2.ksichty.text, Form2.bryle.text, Form2.hlasy.text}, "|"), "Eva|2|Bruno|T72|Adam", "its values")
Form2.seznamidentit:select(1)
for i = 0, 2 do equal(one(i), before[i + 1], "looking changes nothing in " .. i) end

-- values that no row has leave the combos as they were, and the record as it is
shared.Identity[1].Oblicej = "Face99"
shared.Identity[1].Bryle = "monocle"
shared.Identity[1].Hlas = "Nobody"
Form2.seznamidentit:select(2)
Form2.seznamidentit:select(1)
equal(Form2.ksichty.text .. "/" .. Form2.bryle.text .. "/" .. Form2.hlasy.index, "Bruno/T72/-1", "unknown values: the combos")
equal(one(1), '|Face99|Jan "Žižka"; z Trocnova|monocle|Nobody|0.9', "and the record")
shared.Identity[1].Bryle = "SunGlasses"
shared.Identity[1].Hlas = "dAN"
Form2.seznamidentit:select(1)
equal(Form2.bryle.index .. "/" .. Form2.hlasy.text, "1/Dan", "case does not count")

-- hiding keeps all, deleting drops all
Form2.cmdOk:click()
equal(Form2.visible, false, "OK hides the form")
frmmain.mnuksicht:click()
equal(#Form2.seznamidentit .. enabled(), "3+++++++", "the next showing finds all")
Form2.cmdelall:click()
equal(#Form2.seznamidentit .. enabled(), "0-------", "the list is empty, the fields turn off")
equal(shared.PocetIdentit .. "/" .. shared.AktualniIdentita .. "/" .. shared.Identity.bound, "0/0/0", "and the store too")
equal(one(0), "|||||", "without a trace")
Form2.txtnazev.text = "Znovu"
Form2.cmdadd:click()
equal(one(0):match("|Jan"), "|Jan", "a new one takes what the fields still show")

-- another mission: the list is emptied, the form follows at its next showing
open_mission(mission("other.Eden"), false)
equal(#Form2.seznamidentit .. "/" .. shared.PocetIdentit, "0/0", "no identity")
frmmain.mnuksicht:click()
equal(enabled(), "-------", "nothing to edit")
