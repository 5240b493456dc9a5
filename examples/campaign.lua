-- A demo campaign from finished missions, by the steps of the wizard, driven as an author would drive the windows.
--
--   tarvelin-script --home FOLDER examples/campaign.lua TARGET MISSION...
--
-- FOLDER is a program folder with Bfdata in it. The campaign is made in the folder TARGET; each MISSION is a mission's
-- folder: the first opens the campaign, the others follow it in a second chapter.

local target = arg[1]
local missions = {table.unpack(arg, 2)}
assert(target and #missions > 0, "usage: campaign.lua TARGET MISSION...")

-- What the first start asks.
function on.modal.frmloadsite(form)
  for row = 0, #form.List1 - 1 do
    if form.List1[row].text:lower() == "english.lng" then
      form.List1:select(row)
    end
  end
  form.Command1:click()
end

local answers = {"Jana Vlkova", "jana@example.org"}
function on.prompt(_, _, default)
  return table.remove(answers, 1) or default
end

function on.box(text, buttons)
  print("box: " .. text)
  return buttons == "yesno" and "yes" or "ok"
end

start()
proc.ResetKampan() -- every run begins from here

-- The mission that the picker will hand over.
local function will_pick(folder)
  function on.modal.frmopenmission(form)
    form.Dir1.path = path(folder)
    form.File1:select("mission.sqm")
    form.Command1:click()
  end
end

-- Step 1: folder, name and lives. A typed folder is taken when the step is shown again.
frmmain.mnucampaignedit:click()
frmcamp1.txtkampcesta.text = path(target)
frmcamp1.txtkampJmeno.text = "The Road to Levie"
frmcamp1.txtzivoty.text = "3"
frmcamp1.cmdNext:click()
frmcamp2.cmdPrev:click()
frmcamp1.cmdNext:click()
frmcamp2.cmdnext:click()

-- Step 2: who is met on the way.
for _, identity in ipairs {
  {class = "Karas", name = "Sergeant Karas", pitch = "0.95"},
  {class = "Vlkova", name = "Jana Vlková", pitch = "1.1"},
} do
  Form2.txtnazev.text = identity.class
  Form2.cmdadd:click()
  Form2.Text1.text = identity.name
  Form2.Text2.text = identity.pitch
end
Form2.cmdOk:click()

-- Step 3: praise from 500 points on; below -200 the campaign is over.
will_pick(missions[1])
frmcamp3.cmdaddA:click()
frmcamp3.awardlimit.text = "500"
frmcamp3.cdmaddP:click()
frmcamp3.penaltylimit.text = "-200"
frmcamp3.cmdukon.value = 1
frmcamp3.cmdnext:click()

-- Step 4: chapters, their missions, and where the endings lead.
local function add_chapter(name)
  frmcamp4.cmdaddpart:click()
  frmcamp4.txtpartname.text = name
  frmcamp4.cmdaddpart:click()
end

local function add_mission(chapter, folder)
  frmcamp4.campfiles:click(chapter)
  will_pick(folder)
  frmcamp4.cmdaddmission:click()
end

local function link(node, ending, text)
  frmcamp4.campfiles:click(node)
  frmcamp4.cmdmissionedit:click()
  frmcamp4.seznamakci:select(ending - 1)
  frmcamp4.txtdalsimise.text = text
  frmcamp4.cmdmissionedit:click()
end

add_chapter("The Ambush")
add_mission("PART1", missions[1])
if #missions > 1 then
  add_chapter("The Way Home")
  for i = 2, #missions do
    add_mission("PART2", missions[i])
  end
  link("PART1", 2, shared.Texty[48]) -- the second ending begins the chapter anew
end
frmcamp4.cmddale:click()

-- Steps 5 and 6: no sounds of its own, a few words for the overview.
frmcamp5.cmdnext:click()
frmcampobr.txtkampover.text = "Two lorries, one road, and a long way home."
frmcampobr.cmdnext:click()

-- Step 7: everything is written.
frmcamp6.cmdnext:click()
local made = shared.CestaKampane .. "\\" .. shared.JmenoKampane .. ".Eden\\"
print("Written to " .. native(made))
for _, name in ipairs {"Description.ext", "Stringtable.csv", "Overview.html", "mission.sqm"} do
  local file = assert(io.open(native(made .. name), "rb"))
  print(string.format("%s: %d bytes", name, file:seek("end")))
  file:close()
end
frmcamp7.cmdok:click()
quit()
