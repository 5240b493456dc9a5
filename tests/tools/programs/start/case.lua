-- A click on an icon starts its program; the sibling editor.
local folder = mission("m; č.Eden")
start("MISSION=" .. folder .. "/mission.sqm")
local f = frmsettings
local launched
on.launch = function(program, arguments, where) launched = program .. "|" .. arguments .. "|" .. where return true end
for i = 1, 2 do
  f.cmdadd:click()
  f.seznamprogramu:select(i - 1)
  f.txtnazev.text = "p" .. i
  f.txtcesta.text = "c:\\p " .. i .. ".exe"
end
f.cmdsave:click()
local function started(parameters)
  launched = nil
  f.txtparams.text = parameters
  frmmain.Image1[2]:click()
  return launched
end
local M = shared.CestaMise
equal(started("-a"), "c:\\p 2.exe|-a|", "path and parameters")
for parameters, want in pairs {
  [""] = "", ["<T103>"] = M, ["-m <T103> -x"] = "-m " .. M .. " -x", ["<T103>a<T103>"] = M .. "a" .. M,
  ["a<other>b"] = "ab", ["a<>b"] = "ab", ["<t103>x"] = "x", ["ab<T103"] = "ab", ["<"] = "", ["a>b"] = "a>b",
  ["<x<T103>y"] = "y", ["; rm -r"] = "; rm -r", ["<ž>č"] = "č",
} do equal(started(parameters), "c:\\p 2.exe|" .. want .. "|", "parameters " .. parameters) end
started("second")
f.seznamprogramu:select(0)
equal(started("first"), "c:\\p 2.exe|second|", "the other program has its own parameters")
launched = nil
frmmain.Image1[1]:click()
equal(launched, "c:\\p 1.exe|first|", "the first icon")
on.launch = function() return false end
frmmain.Image1[1]:click()
equal(#events > 0, true, "a program that does not start does no harm")

-- many programs: the strip is wider than the bar
for _ = 1, 40 do f.cmdadd:click() end
f.cmdsave:click()
equal(frmmain.HScroll1.visible, true, "the strip can be scrolled")
check(frmmain.HScroll1.max > 0, "through to its end")
frmmain.HScroll1:scroll(frmmain.HScroll1.max)
equal(frmmain.HScroll1.value, frmmain.HScroll1.max, "scrolled")
while shared.PocetProgramu > 1 do
  f.seznamprogramu:select(2)
  f.cmddel:click()
end
f.cmdsave:click()
equal(frmmain.HScroll1.value, 0, "a shorter strip begins at its start")
equal(frmmain.HScroll1.visible, false, "and needs no scrolling")

-- the sibling editor
local told
on.box = function(text, buttons, icon) told = text .. "|" .. icon return "ok" end
frmmain.mnucinfigcpp:click()
equal(told, path(home) .. "\\Cfgforge.exe H23|information", "a missing editor")
write_file(home .. "/Cfgforge.exe", "MZ")
told = nil
on.launch = function(program, arguments, where) launched = program .. "|" .. arguments .. "|" .. where return true end
frmmain.mnucinfigcpp:click()
equal(launched, path(home) .. "\\Cfgforge.exe||" .. path(home), "the editor")
equal(told, nil, "no box")
