-- Add-ons of a readme: rows behind the first, each once.
start()
local function text(sqm)
  open_mission(mission("m" .. #events .. ".Eden", sqm))
  return proc.AddonyDoTextu()
end
equal(text("version=11;\n"), "", "none")
equal(text [[
class Mission
addOns[]=
{
"tank",
"ship",
"last"
};
class Intro
addOns[]=
{
"TANK",
"jeep",
"last"
};
class OutroWin
addOns[]=
{
"single"
};
]], "tank\r\nship\r\njeep\r\nOutroWin -->", "each once, none with a line end behind the last; the list of one entry gives its header")
equal(#tmpfrm.zasobnik, 4, "the stack holds what was seen")
equal(text [[
class Mission
addOns[]=
{
"single"
};
]], "", "the first row never counts, also when the tag went to it")
equal(proc.AddonyDoTextu(), "", "the stack is cleared each time")
