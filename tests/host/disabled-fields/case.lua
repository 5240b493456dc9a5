-- A disabled field can be read but not used; fields on a disabled tab strip are not disabled themselves.
start()
equal(frmmain.cmdvytvor.enabled, false, "no mission: Vytvoř is disabled")
fails(function() frmmain.cmdvytvor:click() end, "frmmain.cmdvytvor is disabled", "a click")
fails(function() frmmain.Text1[0].text = "x" end, "frmmain.Text1(0) is disabled", "a write")
fails(function() frmmain.Text1[0]:type("x") end, "frmmain.Text1(0) is disabled", "typing")
fails(function() frmmain.seznamakci:select(0) end, "frmmain.seznamakci is disabled", "a selection")
equal(frmmain.seznamakci.index, 3, "reading goes on")
equal(#frmmain.seznamakci, 4, "rows too")
equal(frmmain.SSTab1.enabled, false, "the tab strip is disabled")
fails(function() frmmain.SSTab1.tab = 1 end, "frmmain.SSTab1 is disabled", "turning a tab")
frmmain.txtBriefink.text = "a field on it is not"
equal(frmmain.txtBriefink.text, "a field on it is not", "and takes what the user writes")
-- every kind that a form disables at first
local d = frmdalsinast
for what, use in pairs{
  ["Form2.List1"] = function() Form2.List1:select(0) end,
  ["Form2.List1 "] = function() Form2.List1:mark(0, true) end,
  [" Form2.List1"] = function() Form2.List1:press("left") end,
  ["frmmain.Check1"] = function() frmmain.Check1.value = 1 end,
  [" frmmain.Check1"] = function() frmmain.Check1:click() end,
  ["frmdalsinast.Option2"] = function() d.Option2.value = true end,
  [" frmdalsinast.Option2"] = function() d.Option2:click() end,
  ["frmdalsinast.picbackcolor"] = function() d.picbackcolor:click() end,
  ["frmdalsinast.x"] = function() d.x:scroll(5) end,
  [" frmdalsinast.x"] = function() d.x.value = 5 end,
  ["frmdalsinast.pisma"] = function() d.pisma:select(0) end,
  ["frmdalsinast.txttext"] = function() d.txttext.text = "x" end,
  [" frmdalsinast.txttext"] = function() d.txttext:type("x") end,
  ["  frmdalsinast.txttext"] = function() d.txttext:key("ctrl+b") end,
  ["frmdalsinast.txttext "] = function() d.txttext.selstart = 0 end,
  ["frmdalsinast.txttext  "] = function() d.txttext.sellength = 0 end,
} do fails(use, what:match("%S+") .. " is disabled", what) end
equal(frmmain.Check1.value, 0, "none of it was done: the check")
equal(d.Option2.value, false, "the option")
equal(d.x.value, 0, "the slider")
equal(#events, 0, "the picture asked for no colour")
for _, name in ipairs{"kind", "name", "enabled", "visible", "text", "selstart", "sellength", "font"} do
  check(d.txttext[name] ~= nil, "a disabled text tells its " .. name)
end
fails(function() frmmain.txtUkol.enabled = false end, "cannot be written", "the script cannot enable or disable")
equal(frmmain.strany.visible, false, "a field that is not on screen")
frmmain.strany:select(2)
equal(frmmain.strany.index, 2, "can be used")
