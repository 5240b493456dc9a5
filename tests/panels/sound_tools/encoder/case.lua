-- A WAV really becomes an Ogg: the native encoder is found in the place of oggenc.exe and started without a shell.
local source = make_folder(work .. "/source")
local tools = home .. "/Bfdata/oggwav"

-- a quarter of a second of a 440 Hz tone, 16 bits, one channel
local rate, samples = 8000, {}
for i = 0, rate // 4 - 1 do
  samples[#samples + 1] = string.pack("<i2", math.floor(8000 * math.sin(2 * math.pi * 440 * i / rate)))
end
local data = table.concat(samples)
local wav = "RIFF" .. string.pack("<I4", 36 + #data) .. "WAVEfmt " ..
  string.pack("<I4I2I2I4I4I2I2", 16, 1, 1, rate, rate * 2, 2, 16) .. "data" .. string.pack("<I4", #data) .. data
write_file(source .. "/tón.wav", wav)
write_file(source .. "/tone;touch evil.wav", wav)
write_file(source .. "/-$(touch evil).wav", wav)

on.launch = nil
start()
local function convert(name)
  on.modal.frmopen2 = function(form)
    form.Dir1.path = path(source)
    form.File1:select(name)
    form.cmdOk:click()
  end
  frmmain.mnuwavogg:click()
  equal(events[#events].kind, "launch", name .. ": the tool is started")
  equal(events[#events].answer, true, name .. ": it could be")
end

-- whether the last page of an Ogg stream (its flags say so) is in the file
local function finished(bytes)
  local at, last = 1, nil
  while bytes do
    at = bytes:find("OggS\0", at, true)
    if not at then break end
    last = bytes:byte(at + 5)
    at = at + 1
  end
  return last ~= nil and last & 4 ~= 0
end

convert("tón.wav")
local ogg
for _ = 1, 300 do
  ogg = read_file(tools .. "/tón.ogg")
  if finished(ogg) then break end
  os.execute("sleep 0.1")
end
check(finished(ogg), "a whole Ogg stream lies in the tools' folder")
equal(ogg and ogg:sub(1, 4), "OggS", "it begins with a page")
contains(ogg, "\1vorbis", "of Vorbis sound")
equal(ogg and (string.unpack("<I4", ogg, 41)), rate, "at the rate of the WAV")
equal(read_file(tools .. "/tón.wav"), wav, "the WAV lies beside it")
equal(#events, 2, "the program neither asked nor told")

-- a name cannot run anything, nor is it put together again: the tool sees words that name no file
convert("tone;touch evil.wav")
convert("-$(touch evil).wav")
os.execute("sleep 1")
equal(listing(tools), "-$(touch evil).wav tone;touch evil.wav tón.ogg tón.wav", "the folder holds the copies and the Ogg")
