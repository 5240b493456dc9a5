-- home: fresh
-- A first start asks for the language, the name and the address, and writes the settings at once, byte for byte.
local order = {}
on.modal.frmloadsite = function(form)
  order[#order + 1] = "chooser"
  equal(form.caption, "Vyberte jazyk/Choose language", "caption of the chooser")
  equal(form.cmdstorno.visible, true, "it can be cancelled")
  equal(rows(form.List1), "Test.lng", "the packs")
  equal(frmstart.visible, true, "the splash stands behind it")
  equal(exists(home .. "/Tarvinfo.cfg"), false, "no settings file yet")
  form.List1:select(0)
  form.Command1:click()
end
on.prompt = function(text)
  order[#order + 1] = text
  return text == "T110" and "Žofie" or "zofie@example.org"
end
start()
equal(table.concat(order, " "), "chooser T110 T111", "chooser, then the two prompts in the chosen language")
local p = path(home)
local function s2(text) return string.pack("<s2", text) end
local pack = p .. "\\Bfdata\\languages\\Tv\\Test.lng"
local want = string.pack("<I4hh", 0xFF0000, -1, 0) .. string.pack("<I4hh", 0x00FF00, 0, -1) .. string.pack("<I4hh", 0x0040C0, -1, 0)
  .. string.pack("<I4hh", 0x404040, -1, 0) .. string.pack("<I4hh", 0x0000FF, 0, 0) .. string.pack("<I4hh", 0x0080FF, 0, 0)
  .. s2(pack) .. s2(p .. "\\tarvpbou.exe") .. s2("T92,T93,2") .. string.pack("<hh", -1, -1) .. s2("\142ofie") .. s2("zofie@example.org")
  .. ("\0"):rep(3 * 18)
equal(read_file(home .. "/Tarvinfo.cfg"), want, "the file")
equal(frmmain.cmdvytvor.caption, "C2", "the pack is in force")
equal(#frmmain.strany3, 8, "the sides were filled by the choice and by the start")
equal(#frmmain.strany, 4, "the other combos are cleared each time")
equal(frmloadsite.RezimJazyka, false, "the chooser is no longer for languages")
quit()
-- the next start reads what the first wrote
events = {}
start()
equal(#events, 0, "nothing is asked again")
equal(shared.Nastaveni.UzivatelJmeno, "Žofie", "the name")
equal(shared.Nastaveni.UzivatelMail, "zofie@example.org", "the address")
