-- Colours and alpha of a control.
start()
local f = frmdalsinast
local function colour(name, j)
  local c = shared.Tituly[0].Prvky[j or 0][name]
  return table.concat({c.Cervena // 1 | 0, c.Modra // 1 | 0, c.Zelena // 1 | 0}, "/")
end
f.cmdpridat1:click()
f.List3:select(0)
f.cmdpridat2:click()
f.cmdpridat2:click()
f.List4:select(0)
equal(f.picbackcolor.color, 0, "a new control is black")
on.color = function() return 0x102030 end -- blue 0x10, green 0x20, red 0x30
f.picbackcolor:click()
equal(colour("BarvaPozadi"), "192/64/128", "red, blue, green, each four times")
equal(f.picbackcolor.color, 0x102030, "the area shows it")
equal(colour("BarvaTextu"), "0/0/0", "the other colour is untouched")
on.color = function() return 0xFFFFFF end
f.pictextcolor:click()
equal(colour("BarvaTextu"), "1020/1020/1020", "white")
on.color = function() return nil end
f.picbackcolor:click()
equal(colour("BarvaPozadi"), "1020/1020/1020", "a cancel stores the colour chosen last")
equal(f.picbackcolor.color, 0xFFFFFF, "and shows it")
on.color = function() return 0x0000FF end
f.picbackcolor:click()
equal(colour("BarvaPozadi"), "1020/0/0", "red")

local function alpha(name) return shared.Tituly[0].Prvky[0][name].Alfa end
for box, name in pairs {cba = "BarvaPozadi", cta = "BarvaTextu"} do
  for _, case in ipairs {{"50", "50", 50}, {"150", "100", 100}, {"-5", "0", 0}, {"100", "100", 100}, {"12.5", "12.5", 12.5}} do
    f[box].text = case[1]
    equal(f[box].text, case[2], box .. " shows for " .. case[1])
    equal(alpha(name), case[3], box .. " stores for " .. case[1])
  end
  f[box].text = ""
  equal(f[box].text, "", box .. " may be empty")
  equal(alpha(name), 12.5, "which leaves the field")
  f[box].text = "abc"
  equal(alpha(name), 0, "no number is 0")
  f[box].text = "70"
end
f.List4:select(1)
equal(f.picbackcolor.color .. "/" .. f.cba.text, "0/0", "the other control")
f.List4:select(0)
equal(f.picbackcolor.color, 0x0000FF, "the colour comes back")
equal(f.pictextcolor.color, 0xFFFFFF, "both of them")
equal(f.cba.text .. "/" .. f.cta.text, "70/70", "with the alphas")
equal(colour("BarvaPozadi"), "1020/0/0", "and nothing changed")
shared.Tituly[0].Prvky[0].BarvaPozadi.Cervena = 5000
f.List4:select(0)
equal(f.picbackcolor.color, 0x0000FF, "a component beyond the scale is full")
