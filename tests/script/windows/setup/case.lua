-- Colours of the editor: shown from the settings, kept at once.
start()
local f, set = frmeditsetup, shared.Nastaveni
equal(f.Check1.value, 1, "the switch of the colours is right before the window was shown")
f.Check1.value = 0
equal(set.UkazovatBarvy, 0, "and works")
f.Check1.value = 1
frmmain.mnueditskript:click()
equal(f.visible, true, "the menu shows the setup")
local groups = {
  { "Funkce", "BFunkce", "BFT", "BFK", 0xFF0000, 1, 0 },
  { "Vybaveni", "BVyb", "BVT", "BVK", 0x0080FF, 0, 0 },
  { "Konst1", "BKon1", "BK1T", "BK1K", 0x0040C0, 1, 0 },
  { "Konst2", "BKon2", "BK2T", "BK2K", 0x404040, 1, 0 },
  { "Operator", "BOp", "BOT", "BOK", 0x0000FF, 0, 0 },
  { "Komentar", "BKom", "BKT", "BKK", 0x00FF00, 0, 1 },
}
for i, g in ipairs(groups) do
  local name, picture, bold, italic = g[1], f[g[2]], f[g[3]], f[g[4]]
  equal(picture.color, g[5], name .. ": the colour of the settings")
  equal(bold.value, g[6], name .. ": bold")
  equal(italic.value, g[7], name .. ": italic")
  local offered
  on.color = function(current) offered = current end
  picture:click()
  equal(offered, g[5], name .. ": the chooser begins with the colour")
  equal(picture.color, g[5], name .. ": cancelled, the colour stays")
  equal(set[name .. "Barva"], g[5], name .. ": in the settings too")
  on.color = function() return 0x102030 + i end
  picture:click()
  equal(picture.color, 0x102030 + i, name .. ": the chosen colour")
  equal(set[name .. "Barva"], 0x102030 + i, name .. ": kept at once")
  bold:click()
  italic:click()
  equal(set[name .. "Tucne"], g[6] == 1 and 0 or -1, name .. ": the flag of bold")
  equal(set[name .. "Kurziva"], g[7] == 1 and 0 or -1, name .. ": the flag of italic")
  bold:click()
  equal(set[name .. "Tucne"], g[6] == 1 and -1 or 0, name .. ": and back")
end
equal(f.Check1.value, 1, "colouring is on")
f.Check1:click()
equal(set.UkazovatBarvy, 0, "off")
f.Check1:click()
equal(set.UkazovatBarvy, -1, "on")
f.Command1:click()
equal(f.visible, false, "Ok hides")
