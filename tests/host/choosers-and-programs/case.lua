-- on.font, on.color, on.launch, on.browse: arguments, events, and what is done without an answer.
local folder = mission("m.Eden")
start("MISSION=" .. folder .. "/mission.sqm")

-- fonts
frmmain.cmdF[0]:click()
equal(events[#events].kind, "font", "the font chooser")
equal(type(events[#events].current), "table", "gets the present font")
equal(events[#events].answer, nil, "without a function it is cancelled")
equal(shared.Nastaveni.Pisma[0].Jmeno, "", "and nothing is stored")
local current
on.font = function(font)
  current = font
  return {name = "Písmo", size = 14, bold = true, italic = false, strikethrough = true, underline = false, color = 0x112233}
end
frmmain.cmdF[0]:click()
equal(type(current), "table", "the function gets it too")
equal(events[#events].answer.name, "Písmo", "the answer is in the event")
local font = frmmain.txtBriefink.font
equal(font.name .. font.size, "Písmo14", "name and size of the choice")
equal(font.bold, true, "bold") equal(font.italic, false, "not italic") equal(font.strikethrough, true, "struck through")
equal(font.underline, false, "not underlined") equal(font.color, 0x112233, "colour")
on.font = function() return nil end
frmmain.cmdF[0]:click()
equal(frmmain.txtBriefink.font.name, "Písmo", "nil is a cancel")

-- colours: of a title's control
frmmain.mnudalsizvuky:click()
local d = frmdalsinast
d.cmdpridat1:click()
d.List3:select(0)
d.cmdpridat2:click()
d.List4:select(0)
on.color = function(now) current = now return 0x0000FF end
d.picbackcolor:click()
equal(events[#events].kind, "color", "the colour chooser")
equal(math.type(events[#events].current), "integer", "gets the present colour")
equal(current, events[#events].current, "and so does the function")
equal(events[#events].answer, 0x0000FF, "the answer")
equal(d.picbackcolor.color, 0x0000FF, "the picture takes it")
on.color = nil
d.pictextcolor:click()
equal(events[#events].answer, nil, "without a function: cancelled")

-- programs: three strings in the program's form, true when it was started
local got
on.launch = function(program, arguments, where) got = {program, arguments, where} return true end
d.Command9:click()
local event = events[#events]
equal(event.kind, "launch", "a program is started")
contains(event.program, "Addscan.exe", "its name")
equal(event.program, got[1], "the function gets the program")
equal(event.arguments, got[2], "its arguments")
equal(event.folder, got[3], "and its folder")
equal(event.folder, path(home), "in the program's form")
equal(event.answer, true, "it was started")
on.launch = function() return false end
d.Command9:click()
equal(events[#events].answer, false, "it was not")
on.launch = nil
d.Command9:click()
equal(events[#events].answer, false, "without a function it is really started, if it is there")

-- addresses
on.browse = function(address) got = address end
frmmain.mnunet:click()
Form4.List1:select(1)
Form4.Command1:click()
equal(got, "http://two.example/", "the address")
equal(events[#events].kind, "browse", "its event")
equal(events[#events].address, "http://two.example/", "with the address")

-- events come in order, those inside of others behind them
local n = #events
on.modal.frmloadsite = function(form) form.List1:select(0) form.Command1:click() end
frmmain.mnusetupLanguage:click()
equal(events[n + 1].kind .. " " .. events[n + 2].kind, "modal box", "the modal form, then the box that it caused")
