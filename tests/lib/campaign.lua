-- What the cases of the campaign wizard share; loaded with dofile(arg[1] .. "/campaign.lua").

-- a known state: cancelling the first step resets the wizard, then the menu shows it
function begin_campaign(commandline)
  start(commandline or "")
  frmcamp1.cmdstorno:click()
  frmmain.mnucampaignedit:click()
end

-- what the mission picker will do: take mission.sqm of this native folder; nil presses its cancel command
function pick(folder)
  on.modal.frmopenmission = function(form)
    if not folder then return form.Command2:click() end
    form.Dir1.path = path(folder)
    form.File1:select("mission.sqm")
    form.Command1:click()
  end
end

function chapter(name)
  frmcamp4.cmdaddpart:click()
  frmcamp4.txtpartname.text = name
  frmcamp4.cmdaddpart:click()
end

function add_mission(chapter_key, folder)
  frmcamp4.campfiles:click(chapter_key)
  pick(folder)
  frmcamp4.cmdaddmission:click()
end

-- the link editor on one node: pairs of tag and text
function links(key, list)
  frmcamp4.campfiles:click(key)
  frmcamp4.cmdmissionedit:click()
  for _, link in ipairs(list) do
    frmcamp4.seznamakci:select(link[1] - 1)
    frmcamp4.txtdalsimise.text = link[2]
  end
  frmcamp4.cmdmissionedit:click()
end

-- folder (native) and name by the first step: a typed folder is taken when the step is shown again
function name_campaign(folder, name)
  frmcamp1.txtkampcesta.text = path(folder)
  frmcamp1.txtkampJmeno.text = name
  frmcamp1.cmdNext:click()
  frmcamp2.cmdPrev:click()
end

-- a file of a generated campaign against campaign/NAME beside the case
function same_as_kept(folder, name)
  same(read_file(folder .. "/" .. name), assert(read_file(case_folder .. "/campaign/" .. name)), name)
end

-- a generated campaign against the folder campaign/ beside the case: the same paths, the same bytes. Folders that are
-- meant to be empty are named, as they cannot be kept.
function same_campaign(made, empty_folders)
  local kept = case_folder .. "/campaign"
  local want = paths(kept)
  for _, name in ipairs(want) do
    if name:sub(-1) ~= "/" then same(read_file(made .. "/" .. name), read_file(kept .. "/" .. name), name) end
  end
  for _, folder in ipairs(empty_folders or {}) do want[#want + 1] = folder end
  table.sort(want)
  equal(everything(made), table.concat(want, " "), "the campaign's whole folder")
end

-- takes files (a native folder, names) through the intake of a command
function take_sounds(command, folder, ...)
  local names = {...}
  on.modal.frmnactizvuky = function(form)
    for i = 0, #form.seznamsouboru - 1 do form.seznamsouboru:mark(i, false) end
    form.Dir1.path = path(folder)
    for _, name in ipairs(names) do form.File1:select(name) form.cmdadd:click() end
    form.cmdopen:click()
  end
  command:click()
  on.modal.frmnactizvuky = nil
end

-- tree keys and node texts as they are displayed
function keys() return table.concat(frmcamp4.campfiles:keys(), " ") end
function node_texts()
  local texts = {}
  for _, key in ipairs(frmcamp4.campfiles:keys()) do texts[#texts + 1] = frmcamp4.campfiles:node(key).text end
  return table.concat(texts, "|")
end

-- boxes shown since the last call, as "TEXT/BUTTONS/ICON"
local seen = 0
function boxes()
  local texts = {}
  for i = seen + 1, #events do
    if events[i].kind == "box" then
      texts[#texts + 1] = events[i].text .. "/" .. events[i].buttons .. "/" .. events[i].icon
    end
  end
  seen = #events
  return table.concat(texts, " ")
end
