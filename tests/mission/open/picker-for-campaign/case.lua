-- The picker as it works for the campaign: captions, log, what it keeps and what cancelling forgets.
local folder = mission("m.Eden")
start()
local from
-- The mode is set from inside the first showing, as the opening of a mission sets its own before it.
local function nested(act)
  on.modal.frmopenmission = function(form)
    shared.RezimOtevreni = 7
    act(form)
  end
  from = #log()
  frmmain.mnufileopen:click()
  return log():sub(from + 1)
end
local p = path(folder)
local lines = nested(function(form)
  form.Dir1.path = p
  form.File1:select("mission.sqm")
  equal(shared.SouborMise, p .. "\\mission.sqm", "a click names the file")
  equal(shared.VybranaCesta, p, "its folder is kept for the campaign, without a backslash")
  equal(shared.VybranySoubor, "mission.sqm", "and its name")
  form.Command2:click()
  equal(form.visible, false, "cancelling hides")
end)
contains(lines, "Zrušení operace načtení mise\r\n", "log of the cancelling")
equal(shared.VybranaCesta .. shared.VybranySoubor .. shared.SouborMise, "", "cancelling forgets all three")
lines = nested(function(form)
  form.File1:select("mission.sqm")
  form.Command1:click()
  equal(form.visible, false, "OK hides")
end)
in_order(lines, {"Načtení mise do kampaně z: " .. p .. "\\mission.sqm\r\nNačtení mise z: " .. p .. "\\mission.sqm\r\n"}, "two lines of log, the campaign's first")
