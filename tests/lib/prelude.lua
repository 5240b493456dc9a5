-- What every case.lua finds: where it works, and its checks. Each failing check prints a line; the case fails at the
-- end when there was one. arg: 1 folder of this file, 2 scratch folder, 3 program folder, 4 the case's own folder.
work, home, case_folder = arg[2], arg[3], arg[4]

local failures = 0

local function shown(value)
  if type(value) == "string" then
    return (string.format("%q", value):gsub("\\\n", "\\n"):gsub("\\13", "\\r"))
  end
  return tostring(value)
end

local function fail(what, text)
  failures = failures + 1
  local where = debug.getinfo(3, "Sl")
  print("FAILED line " .. where.currentline .. ": " .. what .. ": " .. text)
end

function equal(got, want, what)
  if got ~= want then fail(what, "got " .. shown(got) .. ", want " .. shown(want)) end
end

function check(truth, what, detail)
  if not truth then fail(what, detail or "not so") end
end

-- `text` holds `part`, plainly
function contains(text, part, what)
  if not (text and text:find(part, 1, true)) then fail(what, shown(part) .. " is not in " .. shown(text and text:sub(-300))) end
end

function lacks(text, part, what)
  if text and text:find(part, 1, true) then fail(what, "it holds " .. shown(part)) end
end

-- the log tells no failure but the one of every start without an installed game
function nothing_failed(what)
  local text = log():gsub("Nastala chyba při čtení registru: [^\n]*\n", "", 1)
  if text:find("Nastala chyba", 1, true) then fail(what, "the log ends in " .. shown(text:sub(-300))) end
end

-- parts stand in the text one behind the other
function in_order(text, parts, what)
  local from = 1
  for _, part in ipairs(parts) do
    local _, last = text:find(part, from, true)
    if not last then return fail(what, shown(part) .. " is not behind the part before it") end
    from = last + 1
  end
end

-- `action` raises an error that holds `part`
function fails(action, part, what)
  local good, message = pcall(action)
  if good then return fail(what, "no error") end
  if not tostring(message):find(part, 1, true) then fail(what, "the error is " .. tostring(message)) end
end

-- two texts by lines, for whole files
function same(got, want, what)
  if got == want then return end
  if not got then return fail(what, "there is no file") end
  local a, b, n = (got .. "\n"):gmatch("(.-)\n"), (want .. "\n"):gmatch("(.-)\n"), 0
  while true do
    local x, y = a(), b()
    n = n + 1
    if x ~= y then return fail(what, "line " .. n .. " is " .. shown(x) .. ", want " .. shown(y)) end
  end
end

function write_file(native_path, bytes)
  local file = assert(io.open(native_path, "wb"))
  file:write(bytes)
  file:close()
end

local looked_at = 0

function read_file(native_path)
  local file = io.open(native_path, "rb")
  if not file then return nil end
  local bytes = file:read("a")
  file:close()
  -- a later step of the case may write it anew: its syntax is checked when the case is over
  if native_path:lower():match("/description%.ext$") and native_path:sub(1, #work) == work then
    looked_at = looked_at + 1
    write_file(string.format("%s/../descriptions/%03d.ext", work, looked_at), bytes)
  end
  return bytes
end

function make_folder(native_path)
  assert(os.execute("mkdir -p '" .. native_path:gsub("'", "'\\''") .. "'"))
  return native_path
end

function exists(native_path)
  return os.rename(native_path, native_path) and true or false
end

-- LF made CR LF
function crlf(text) return (text:gsub("\r?\n", "\r\n")) end

-- names of a folder, sorted, joined by blanks
function listing(native_path)
  local names = {}
  for name in io.popen("ls -1A '" .. native_path .. "'"):lines() do names[#names + 1] = name end
  table.sort(names)
  return table.concat(names, " ")
end

-- every path below a folder, folders with "/" behind
function paths(folder)
  local names = {}
  local command = "cd '" .. folder .. "' && find . -mindepth 1 \\( -type d -printf '%P/\\n' -o -printf '%P\\n' \\)"
  for name in io.popen(command):lines() do names[#names + 1] = name end
  return names
end

-- the same, sorted by bytes, joined by blanks
function everything(folder)
  local names = paths(folder)
  table.sort(names)
  return table.concat(names, " ")
end

-- a folder work/NAME with a mission.sqm (LF is made CR LF); its native path
function mission(name, sqm)
  local folder = make_folder(work .. "/" .. name)
  write_file(folder .. "/mission.sqm", crlf(sqm or "version=11;\nclass Mission\n{\n};\n"))
  return folder
end

-- the mission folder of the case, copied to work/mission.Eden before; its native path
mission_folder = work .. "/mission.Eden"

-- rows of a list or combo as one text
function rows(list) return table.concat(list:texts(), "|") end

-- check marks of a list as a text of + and -
function marks(list)
  local text = ""
  for i = 0, #list - 1 do text = text .. (list[i].marked and "+" or "-") end
  return text
end

-- opens the mission of a native folder by the menu, as the user does
function open_mission(folder, read_companions)
  on.modal.frmopenmission = function(form)
    form.Dir1.path = path(folder)
    form.File1:select("mission.sqm")
    form.chknacist.value = read_companions and 1 or 0
    form.Command1:click()
  end
  frmmain.mnufileopen:click()
  on.modal.frmopenmission = nil
end

-- nothing outside is ever started by a test that does not say so
on.launch = function() return true end
on.browse = function() end

dofile(case_folder .. "/case.lua")
if failures > 0 then
  print(failures .. " checks failed")
  os.exit(1)
end
