-- Checks that set others: only when they are set, never when they are cleared.
start("")
local m = frmmain
local magazines = {"M16zasobniky", "Ak74zasobniky", "Ak47zasobniky", "GrenadeLauncher"}
local function on()
  local names = {}
  for _, name in ipairs(magazines) do
    if m[name].value == 1 then names[#names + 1] = name end
  end
  return table.concat(names, " ")
end
for _, link in ipairs{
  {"M16", "M16zasobniky"}, {"Ak74", "Ak74zasobniky"}, {"Ak47", "Ak47zasobniky"},
  {"M16GrenadeLauncher", "M16zasobniky GrenadeLauncher"},
  {"Ak74GrenadeLauncher", "Ak74zasobniky GrenadeLauncher"},
  {"Ak47GrenadeLauncher", "Ak47zasobniky GrenadeLauncher"},
  {"M4", ""}, {"Ak74SU", ""}, {"Ak47CZ", ""}, {"HandGrenade", ""}, {"SVDDragunov", ""},
} do
  local check, sets = link[1], link[2]
  m[check]:click()
  equal(on(), sets, check .. " set")
  m[check]:click()
  equal(m[check].value, 0, check .. " cleared")
  equal(on(), sets, check .. " cleared: the others stay")
  for _, name in ipairs(magazines) do m[name].value = 0 end
end

-- the magazines of the M16 with launcher bring the grenades while its check is on
m.M16Glnaboje.text = "3/3"
equal(on(), "", "its check is off")
m.M16GrenadeLauncher.value = 1
m.GrenadeLauncher.value = 0
m.M16Glnaboje.text = "2/2"
equal(m.GrenadeLauncher.value, 1, "its check is on")
m.GrenadeLauncher.value = 0
m.Ak74GrenadeLauncher.value = 1
m.GrenadeLauncher.value = 0
m.Ak74GLnaboje.text = "2/2"
m.Ak47GLnaboje.text = "2/2"
equal(m.GrenadeLauncher.value, 0, "the other two do nothing")
m.txtGrenade.text = "7" -- goes to the magazines of the M16 with launcher, too
equal(m.GrenadeLauncher.value, 1, "through the number of grenades")
