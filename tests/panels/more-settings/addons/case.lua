-- The add-on searcher: each name once, a comma behind all but the last row, headers left out.
local searcher
on.launch = function(program, arguments, folder)
  searcher = {program = program, arguments = arguments, folder = folder}
  return false -- it is not there, and nobody is told
end
local function search(sqm)
  open_mission(mission("m" .. #events .. ".Eden", sqm))
  searcher = nil
  frmdalsinast.Command9:click()
  equal(#tmpfrm.zasobnik, 0, "the stack is left empty")
  return searcher.arguments
end
start()
equal(search("version=11;\n"), "", "an empty list starts it with no parameters")
equal(searcher.program, path(home) .. "\\Addscan.exe", "the searcher beside the program")
equal(searcher.folder, path(home), "in the program's folder")
equal(search(([[
class Mission
{
addOns[]=
{
"bis_tank",
"ship, big",
"KUN",
"last"
};
};
class Intro
{
addOns[]=
{
"BIS_TANK",
"intro_only",
"last"
};
};
]]):gsub("KUN", "\x8Elut\xFD k\xF9\xF2")), "bis_tank,ship,Žlutý kůň,intro_only", "two parts that name one add-on give it once")
equal(search [[
class Mission
addOns[]=
{
"a",
"x"
};
class Intro
addOns[]=
{
"b",
"a",
"x"
};
]], "a,b,", "a last row that is left out leaves the comma before it")
equal(search [[
class Mission
addOns[]=
{
"only"
};
]], "Mission -->", "a list of one entry has no row for it, and its header is taken for one")
equal(search [[
class Mission
addOns[]=
{
"shipyard",
"ship",
"x"
};
]], "shipyard,", "a name that another one begins with counts as named")
lacks(log(), "Addscan", "nothing is logged")
for _, event in ipairs(events) do check(event.kind ~= "box", "no box is shown") end
