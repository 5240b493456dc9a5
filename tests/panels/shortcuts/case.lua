-- Markup by keys: at the end of the text, with Ctrl alone.
start()
local fields = {frmmain.txtBriefink, frmmain.txtPoznamky, frmmain.txtOverview, frmmain.txtUkol, frmdebrief.txtdebrief}
local markup = {b = "<BR>", i = "<I></I>", t = "<B></B>", u = "<U></U>", p = "<P></P>"}

for _, field in ipairs(fields) do
  local name = tostring(field)
  for key, text in pairs(markup) do
    field.text = "začátek"
    field.selstart = 2
    field.sellength = 3
    field:key("ctrl+" .. key)
    equal(field.text, "začátek" .. text, name .. " ctrl+" .. key)
  end
  field.text = "text"
  for _, keys in ipairs{"b", "shift+b", "alt+b", "ctrl+shift+b", "ctrl+alt+b", "ctrl+x", "ctrl+1", "ctrl+shift+a"} do
    field:key(keys)
    equal(field.text, "text", name .. " " .. keys)
  end
  field:key("ctrl+a")
  equal(field.text, 'text<A href="marker:"></A>', name .. ": both prompts cancelled")
end
equal(#events, 2 * #fields, "two prompts each")
equal(events[1].kind .. events[1].text .. events[1].title .. events[1].default, "promptT95T94", "the marker's name")
equal(events[2].kind .. events[2].text .. events[2].title .. events[2].default, "promptT96T94", "the link's text")

local answers = {"start 1", "k řece; \"tam\"", "end", nil}
on.prompt = function() return table.remove(answers, 1) end
frmmain.txtBriefink.text = ""
frmmain.txtBriefink:key("ctrl+a")
frmmain.txtBriefink:key("ctrl+b")
frmmain.txtBriefink:key("ctrl+a")
equal(frmmain.txtBriefink.text, '<A href="marker:start 1">k řece; "tam"</A><BR><A href="marker:end"></A>', "links")

-- the change handlers run
frmmain.chkvicestran.value = 1
frmmain.txtBriefink:key("ctrl+p")
equal(shared.PlanZapad, frmmain.txtBriefink.text, "what is added is kept for the side")
frmmain.txtUkol.text = ""
frmmain.txtUkol:key("ctrl+t")
equal(frmmain.cmdpridat.enabled, true, "an objective may begin with markup")
