-- The list of files to take: adding, dropping, keeping it between showings.
local one, two = make_folder(work .. "/one"), make_folder(work .. "/two")
for _, name in ipairs{"a", "b", "c", "d"} do write_file(one .. "/" .. name .. ".ogg", name) end
write_file(two .. "/e.ogg", "e")
local folder = mission("m.Eden")
start()
open_mission(folder)
local intake = frmnactizvuky
local function showing(command, action)
  on.modal.frmnactizvuky = action
  command:click()
  on.modal.frmnactizvuky = nil
end
local function add(native, ...)
  intake.Dir1.path = path(native)
  for _, name in ipairs{...} do
    intake.File1:select(name)
    intake.cmdadd:click()
  end
end
local function tags()
  local numbers = {}
  for i = 0, #intake.seznamsouboru - 1 do numbers[#numbers + 1] = intake.seznamsouboru[i].tag end
  return table.concat(numbers, " ")
end

-- nothing marked: nothing happens but that the form closes
showing(frmmain.cmdnacistradio, function(form)
  equal(form.Dir1.path, path(folder), "it begins in the mission's folder")
  equal(form.File1.path, path(folder), "so do the files")
  add(one, "a.ogg")
  form.seznamsouboru:mark(0, false)
  local name = frmmain.txtjmenoradia.text
  form.cmdopen:click()
  equal(form.visible, false, "no marked file: the form closes")
  equal(frmmain.txtjmenoradia.text, name, "no marked file: the box keeps its name")
end)
equal(#frmmain.seznamradia, 0, "no marked file: no record")
equal(shared.PocetRadii, 0, "no marked file: no count")

-- the same mode again: the list stays; the same file twice gives two records
showing(frmmain.cmdnacistradio, function(form)
  equal(rows(form.seznamsouboru), "a.ogg", "the list of the last showing")
  equal(marks(form.seznamsouboru), "-", "with its marks")
  add(one, "a.ogg")
  add(two, "e.ogg")
  form.seznamsouboru:mark(0, true)
  form.cmdopen:click()
end)
equal(rows(frmmain.seznamradia), "a.ogg|a.ogg|e.ogg", "twice in the list, two records")
equal(shared.Radia[2].Cesta, path(two), "each with its folder")
showing(frmmain.cmdnacistradio, function(form)
  equal(rows(form.seznamsouboru), "a.ogg|a.ogg|e.ogg", "the files are offered again")
  form.cmdopen:click()
end)
equal(rows(frmmain.seznamradia), "a.ogg|a.ogg|e.ogg|a.ogg|a.ogg|e.ogg", "and taken again")
equal(shared.Radia[5].Jmeno, "T576", "names go on counting")

-- cancelled: nothing is taken, the list stays; another mode empties it
showing(frmmain.cmdnacistradio, function(form) form.cmdstorno:click() equal(form.visible, false, "Storno closes") end)
equal(#frmmain.seznamradia, 6, "Storno takes nothing")
showing(frmmain.cmdnacistradio, function(form) equal(#form.seznamsouboru, 3, "Storno keeps the list") end)
showing(frmmain.cdmnactihudbu, function(form)
  equal(#form.seznamsouboru, 0, "another mode: an empty list")
  equal(shared.CestySouboru.bound, 0, "no paths")
end)
equal(#frmmain.seznamhudby, 0, "closed by its window: nothing is taken")
showing(frmmain.cmdnacistradio, function(form) equal(#form.seznamsouboru, 0, "and it is gone for the first one as well") end)

-- dropping: of two marked neighbours only the first goes, tags and paths stay as they were
showing(frmmain.cdmnactihudbu, function(form)
  add(one, "a.ogg", "b.ogg", "c.ogg", "d.ogg")
  add(two, "e.ogg")
  equal(shared.PocetSouboru, 5, "five paths")
  for _, i in ipairs{0, 2, 3} do form.seznamsouboru:mark(i, false) end
  form.seznamsouboru:mark(0, true)
  form.cmddel:click() -- marked: a, b, e
  equal(rows(form.seznamsouboru), "b.ogg|c.ogg|d.ogg", "b stood beside a and stays")
  equal(marks(form.seznamsouboru), "+--", "still marked")
  equal(tags(), "1 2 3", "tags point at the old places")
  equal(shared.PocetSouboru, 3, "three paths are counted")
  equal(shared.CestySouboru[0], "", "the path of a is empty")
  equal(shared.CestySouboru[1], path(one), "the path of b stays where it was")
  equal(shared.CestySouboru[4], "", "the path of e is empty")
  form.cmddel:click()
  equal(rows(form.seznamsouboru), "c.ogg|d.ogg", "the next press takes b")
  -- a new file's tag is its row, so it takes over the path of d's neighbour
  add(two, "e.ogg")
  equal(tags(), "2 3 2", "two rows with one tag")
  form.seznamsouboru:mark(0, true)
  form.cmdopen:click()
end)
equal(rows(frmmain.seznamhudby), "c.ogg|e.ogg", "what was marked")
equal(shared.Hudby[0].Cesta, path(two), "c has lost its folder to e")
equal(shared.Hudby[1].Cesta, path(two), "e has its own")
showing(frmmain.cdmnactihudbu, function(form)
  for i = 0, #form.seznamsouboru - 1 do form.seznamsouboru:mark(i, true) end
  form.cmddel:click()
  equal(rows(form.seznamsouboru), "d.ogg", "all marked: every second one goes")
  form.cmddel:click()
  form.cmddel:click()
  equal(#form.seznamsouboru, 0, "none left")
  equal(shared.PocetSouboru, 0, "none counted")
end)

-- a highlighted row's name follows the boxes, as with any change of them
showing(frmmain.cmdnacistzvuk, function(form) add(one, "a.ogg") form.cmdopen:click() end)
frmmain.seznamzvuku:select(0)
frmmain.txtjmenozvuku.text = "Vlastni"
showing(frmmain.cmdnacistzvuk, function(form) form.cmdopen:click() end)
equal(shared.Zvuky[1].Jmeno, "T592", "the new sound's name")
equal(frmmain.txtjmenozvuku.text, "T592", "the box shows it")
equal(shared.Zvuky[0].Jmeno, "T592", "and the highlighted sound takes it from the box")

-- without a highlighted file a row without a name comes in
showing(frmmain.cmdnacistradio, function(form)
  form.Dir1.path = path(two) -- another folder: no file is highlighted
  form.cmdadd:click()
  equal(#form.seznamsouboru, 1, "one row")
  equal(form.seznamsouboru[0].text, "", "without a name")
end)
