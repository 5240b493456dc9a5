-- The four conversions: what the picker offers, and what is started on the chosen file.
local source = make_folder(work .. "/Zdroj zvuků; x")
for _, name in ipairs{"tón.wav", "b.WAV", "c.wss", "d.wss.bak", "e.ogg", "dva tóny \"a\"; b.wav"} do
  write_file(source .. "/" .. name, "data of " .. name)
end
local tools = home .. "/Bfdata/oggwav"
local starts = {}
on.launch = function(program, arguments, folder)
  starts[#starts + 1] = {program = program, arguments = arguments, folder = folder}
  return true
end
start()
equal(frmopen2.caption, "Najít ogg encoder", "title before the first use")
equal(frmopen2.File1.pattern, "*.exe;*.bat;*.com*", "filter before the first use")
for i, case in ipairs{
  {"mnuwavogg", 2, "", "*.wav*", "b.WAV|dva tóny \"a\"; b.wav|tón.wav", "tón.wav", "oggenc.exe"},
  {"mnuwavlip", 3, "T1", "*.wav*", "b.WAV|dva tóny \"a\"; b.wav|tón.wav", "b.WAV", "wavetolip.exe"},
  {"mnuwsswav", 5, "T98", "*.wss*", "c.wss|d.wss.bak", "c.wss", "wssdec.exe"},
  {"mnuwavwss", 6, "T99", "*.wav*", "b.WAV|dva tóny \"a\"; b.wav|tón.wav", "dva tóny \"a\"; b.wav", "wsscod.exe"},
} do
  local menu, mode, title, filter, offered, file, tool = table.unpack(case)
  local function named(what) return menu .. ": " .. what end
  on.modal.frmopen2 = function(form)
    equal(form.modal, true, named("modal"))
    equal(shared.RezimOtevreni, mode, named("mode"))
    equal(form.caption, title, named("title"))
    equal(form.File1.pattern, filter, named("filter"))
    equal(form.File1.enabled, true, named("files can be chosen"))
    if i == 1 then
      equal(form.Dir1.path, path(home), named("it begins in the program's folder"))
      equal(form.File1.path, path(home), named("so do its files"))
    else
      equal(form.Dir1.path, path(source), named("it is where it was left"))
    end
    form.Dir1.path = path(source)
    equal(table.concat(form.File1:names(), "|"), offered, named("files on offer"))
    form.File1:select(file)
    equal(form.Soubor, file, named("Soubor"))
    equal(form.Slozka, path(source), named("Slozka"))
    form.cmdOk:click()
    equal(form.visible, false, named("the form hides"))
  end
  frmmain[menu]:click()
  equal(#starts, i, named("one start"))
  equal(starts[i].program, tool, named("the tool"))
  equal(starts[i].arguments, file, named("with the file's name alone, not quoted"))
  equal(starts[i].folder, path(tools) .. "\\", named("in the tools' folder"))
  equal(read_file(tools .. "/" .. file), "data of " .. file, named("where the copy lies"))
  contains(log(), "Spustena procedura SpustAkci: " .. file .. " z " .. path(source) .. " .\r\n", named("log line"))
end
equal(io.popen("pwd"):read("l"), tools, "the tools' folder is the current one now")

-- the choice stays: a second OK converts the same file again, over the older copy
write_file(source .. "/tón.wav", "changed")
on.modal.frmopen2 = function(form)
  form.File1:select("tón.wav")
  form.cmdOk:click()
end
frmmain.mnuwavogg:click()
on.modal.frmopen2 = function(form) form.cmdOk:click() end
frmmain.mnuwavlip:click()
equal(#starts, 6, "both started")
equal(starts[6].program .. " " .. starts[6].arguments, "wavetolip.exe tón.wav", "the other tool on the same file")
equal(read_file(tools .. "/tón.wav"), "changed", "the copy is the new file")

-- a file of the tools' folder is copied over itself: that fails, and the tool starts
write_file(tools .. "/own.wav", "own")
on.modal.frmopen2 = function(form)
  form.Dir1.path = path(tools)
  form.File1:select("own.wav")
  form.cmdOk:click()
end
frmmain.mnuwavogg:click()
equal(starts[7].arguments, "own.wav", "a file in the tools' folder")
equal(read_file(tools .. "/own.wav"), "own", "it is as it was")

-- any program may be named
proc.SpustAkci("other.exe")
equal(starts[8].program .. " " .. starts[8].arguments, "other.exe own.wav", "SpustAkci takes the choice that is there")

-- a tool that does not start leaves the copy, and nobody is told
on.launch = function() return false end
on.modal.frmopen2 = function(form)
  form.Dir1.path = path(source)
  form.File1:select("b.WAV")
  form.cmdOk:click()
end
os.remove(tools .. "/b.WAV")
frmmain.mnuwavogg:click()
equal(read_file(tools .. "/b.WAV"), "data of b.WAV", "the copy remains")
for _, event in ipairs(events) do check(event.kind ~= "box", "no message", event.text) end
