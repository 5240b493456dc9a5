-- The demo mission's road from a mission.sqm to its written files, driven as an author would drive the window.
--
--   tarvelin-script --home FOLDER examples/demo.lua MISSION
--
-- FOLDER is a program folder with Bfdata in it, MISSION the mission.sqm whose companion files are to be written.

local mission = assert(arg[1], "usage: demo.lua MISSION")
local media = path((arg[0]:match("^(.*)/") or ".") .. "/media") -- the demo's sounds and picture

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

function on.box(text)
  print("box: " .. text)
  return "ok"
end

start("MISSION=" .. mission)

-- The notebook. With several sides, what is typed belongs to the side that the combo shows.
local sides = {
  {
    row = 0, -- west
    plan = '<P>Lie in wait at the <A href="marker:zaloha">ambush</A>, burn both lorries and be gone before the\r\n'
      .. '<A href="marker:sklad">depot</A> wakes up.</P>',
    notes = "<P>The column starts at twenty to six. No radio until the first shot.<BR>\r\nŽádné zbytečné hrdinství.</P>",
    objectives = {
      "Destroy both lorries of the <B>supply column</B>.",
      'Reach the <A href="marker:odlet">helicopter</A>.',
    },
  },
  {
    row = 1, -- east
    plan = '<P>Bring the lorries down the road to the <A href="marker:sklad">depot at Levie</A>.</P>',
    notes = "<P>The patrol on the road has not reported since midnight.</P>",
    objectives = {"Bring at least one lorry to the depot."},
  },
}

frmmain.txtJmenoMise.text = "The Road to Levie"
frmmain.chkvicestran.value = 1
for _, side in ipairs(sides) do
  frmmain.strany:select(side.row)
  frmmain.txtBriefink.text = side.plan
  frmmain.strany3:select(side.row)
  frmmain.txtPoznamky.text = side.notes
  for _, objective in ipairs(side.objectives) do
    frmmain.txtUkol.text = objective
    frmmain.cmdpridat:click()
  end
end

-- What the game's mission list shows: a text and a picture.
frmmain.txtOverview.text = "Two lorries, one road, and an hour of darkness left."
function on.modal.Frmopen(form)
  form.Dir1.path = media
  form.File1:select("levie.jpg")
  form.cmdOk:click()
end
frmmain.cmdopen:click()
frmmain.Sirka:select(7) -- 256
frmmain.Vyska:select(6) -- 128

for _, ending in ipairs {
  {"The depot stays empty", "Both lorries burned beside the road."},
  {"Half a victory", "One lorry came through. The other did not."},
} do
  frmdebrief.txtjmeno.text = ending[1]
  frmdebrief.txtdebrief.text = ending[2]
  frmdebrief.cmdpridat:click()
end

-- The mission's settings.
frmmain.Skore.value = 1
frmmain.minScore.text = "500"
frmmain.avgScore.text = "2500"
frmmain.maxScore.text = "5000"
frmmain.respawn.value = 1
frmmain.Base.value = true
frmmain.txtcekat.text = "15"
frmmain.showGPS.value = 0
frmmain.onloadintro.text = "The Road to Levie"
frmmain.onloadmission.text = "Everon, 14 September 1985"

-- A dozen weapons and what is thrown: the check, the field of the pieces, the field of the magazines.
for _, weapon in ipairs {
  {"M16", "M16GLpocet", 8, "txtM16zas", 40},
  {"M16GrenadeLauncher", "M16GLpocet", 8, "txtGrenade", 12},
  {"M21", "M21pocet", 1, "M21naboje", 6},
  {"M60", "M60pocet", 2, "M60naboje", 8},
  {"LawLauncher", "LLpocet", 3, "LLnaboje", 6},
  {"CarlGustavLauncher", "CGLpocet", 1, "CGLnaboje", 3},
  {"Ak74", "Ak74pocet", 6, "txtAk74zas", 24},
  {"Ak47", "Ak47pocet", 4, "txtAk47zas", 16},
  {"SVDDragunov", "SVDDpocet", 1, "SVDDnaboje", 5},
  {"PK", "Pkpocet", 1, "Pknaboje", 4},
  {"RPGLauncher", "RPGLpocet", 2, "RPGLnaboje", 4},
  {"KLauncher", "K32Lpocet", 1, "K32Lnaboje", 2},
  {"Binocular", "Bpocet", 4},
  {"HandGrenade", "HGpocet", 20},
  {"PipeBomb", "PBpocet", 4},
} do
  local check, pieces, count, magazines, rounds = table.unpack(weapon)
  frmmain[check].value = 1
  frmmain[pieces].text = tostring(count)
  if magazines then
    frmmain[magazines].text = tostring(rounds)
  end
end

-- A weapon of an add-on, which the catalogue cannot know.
frmmain.cmdaddweapon:click()
frmmain.seznamzbrani:select(0)
for field, text in pairs {[0] = "Silenced carbine", "DemoCarbine", [3] = "6/4", [4] = "2"} do
  frmmain.Text1[field].text = text
end
frmmain.Check1.value = 1
frmmain.Text1[5].text = "DemoGrenade"
frmmain.seznamzbrani:mark(0, true)

-- Sounds. The intake takes files from anywhere; they are copied when the mission's files are written.
local function take(command, ...)
  local names = {...}
  function on.modal.frmnactizvuky(form)
    form.Dir1.path = media
    for _, name in ipairs(names) do
      form.File1:select(name)
      form.cmdadd:click()
    end
    form.cmdopen:click()
  end
  command:click()
end

-- Shows the text field in one language and fills it. The combos' rows: Czech, German, English, Spanish, Italian, French.
local function say(combo, field, texts)
  for row, text in pairs(texts) do
    combo:select(row)
    field.text = text
  end
end

take(frmmain.cmdnacistradio, "callsign.ogg")
frmmain.seznamradia:select(0)
frmmain.txtjmenoradia.text = "ColumnSeen"
frmmain.txtradiojmeno.text = "The column is in sight"
frmmain.txtpostava.text = "velitel"
frmmain.txtradiohlasitost.text = "+5"
say(frmmain.radiojazyk, frmmain.txtradio, {
  [0] = "Kolona je na dohled.", "Die Kolonne ist in Sicht.", "The column is in sight.",
  "La columna está a la vista.", "Ecco la colonna.", "La colonne est en vue.",
})

take(frmmain.cmdnacistzvuk, "callsign.ogg")
frmmain.seznamzvuku:select(0)
frmmain.txtjmenozvuku.text = "DepotCalls"
frmmain.txtnazev.text = "The depot calls"
for subtitle, texts in ipairs {
  {[0] = "Tady sklad, kde jste?", [2] = "Depot here, where are you?"},
  {[0] = "Ozvěte se!", [2] = "Come in!"},
} do
  frmmain.cmdadd:click()
  frmmain.seznamtextu:select(subtitle - 1)
  say(frmmain.zvukyjazyk, frmmain.txtzvuk, texts)
end

take(frmmain.cdmnactihudbu, "nocturne.ogg")
frmmain.seznamhudby:select(0)
frmmain.txtjmenohudby.text = "Nocturne"
frmmain.txthudbanazev.text = "Before the dawn"
frmmain.txthudbahlasitost.text = "+0"

frmmain.seznamakci:select(3) -- everything
frmmain.cmdvytvor:click()

-- What lies there now.
local firstLines = 12

local function show(name)
  local file = io.open(native(shared.CestaMise .. name), "rb")
  if not file then
    return false
  end
  local bytes = file:read("a")
  file:close()
  print(string.format("%s: %d bytes", name, #bytes))
  local shown = 0
  for line in bytes:gmatch("([^\r\n]*)\r\n") do
    if shown == firstLines then
      print("    ...")
      break
    end
    print("    " .. line)
    shown = shown + 1
  end
  return true
end

print(string.format("Objectives: %d west, %d east", shared.PocetUkoluZapad, shared.PocetUkoluVychod))
print("Written to " .. native(shared.CestaMise))
local written = 0
for _, name in ipairs {"Briefing.html", "Overview.html", "Description.ext", "Stringtable.csv"} do
  if show(name) then
    written = written + 1
  end
end

quit()
assert(written > 0, "nothing was written")
