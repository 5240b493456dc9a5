"""campaign.py BUILD [PICTURES]: a whole campaign through the wizard, with mouse and keys; a second one by keys alone.

What the first one must give is the campaign that tests/campaign/three-chapters has beside its script; it is written by
hand.
"""

import drive
from files import expect_tree, settings_file
from hand import Hand, backslashed
from steps import HERE, expect, run

TESTS = HERE.parent.parent / "tests"
WANTED = TESTS / "campaign" / "three-chapters" / "campaign"
STEPS = [("frmcamp1", "cmdNext"), ("frmcamp2", "cmdnext"), ("Form2", "cmdOk"), ("frmcamp3", "cmdnext"),
         ("frmcamp4", "cmddale"), ("frmcamp5", "cmdnext"), ("frmcampobr", "cmdnext"), ("frmcamp6", "cmdnext")]
FILES = 2500  # of the mission whose copying is watched

CATALOGUES = {
    "islands.dat": "Everon\nEden\nMalden\nAbel\nKolgujev\nCain\n",
    "Faces.dat": "Face1\nAdam\nFace2\nBruno\nFace3\nCyril\n",
    "Speakers.dat": "v1\nAdam\nv2\nDan\nv3\nZed\n",
}
LINK_WORDS = ["T45", "T46", "T47", "T48"]  # next and same mission, next and same chapter
SOUNDS = {"rozkaz 1": "rozkaz", "zpráva": "zprava", "výstřel": "vystrel", "křik": "krik", "píseň": "pisen",
          "pochod": "pochod"}
PICTURE = b"\xff\xd8\xff\xc0\0\x0b\x08\0\x10\0\x20\x01\x01\x11\0\xff\xd9"  # 32 x 16


class Author(Hand):
    """The program and the one who makes campaigns with it."""

    def __init__(self, program):
        super().__init__(program)
        self.work = program.scratch / "Dílna"
        self.work.mkdir()

    def furnish(self):
        """Small catalogues, the Czech pack with link words of its own, and settings, so that nothing is asked."""
        data = self.program.folder / "Bfdata"
        for name, content in CATALOGUES.items():
            (data / name).write_bytes(content.replace("\n", "\r\n").encode("cp1250"))
        packs = data / "languages" / "Tv"
        lines = (packs / "Czech.lng").read_bytes().split(b"\r\n")
        lines[44:48] = [word.encode() for word in LINK_WORDS]
        (packs / "Short.lng").write_bytes(b"\r\n".join(lines))
        (self.program.folder / "Tarvinfo.cfg").write_bytes(
            settings_file(self.program.folder, pack="Short.lng", tips=False))
        utility = self.program.folder / "tarvpbou"
        utility.write_text('#!/bin/sh\nprintf "%s\\n" "$@" > "$0.new"\nmv "$0.new" "$0.given"\n')
        utility.chmod(0o755)
        for name, content in SOUNDS.items():
            (self.work / f"{name}.ogg").write_text(content)
        (self.work / "mapa; 1.jpg").write_bytes(PICTURE)

    def mission(self, name):
        folder = self.work / name
        folder.mkdir()
        (folder / "mission.sqm").write_bytes(b"version=11;\r\nclass Mission\r\n{\r\n};\r\n")
        return folder

    # Steps of the hand.

    def forms(self):
        """The windows on the screen without the main one."""
        return [window["name"] for window in self.program.windows() if window["name"] != "frmmain"]

    def expect_only(self, form):
        drive.wait_until(lambda: self.forms() == ([form] if form else []), f"{form} alone on the screen")

    def begin(self):
        self.program.choose_menu("frmmain", "mnunastroje", "mnucampaignedit")
        self.program.wait_window("frmcamp1")

    def go(self, form, command, to):
        self.program.click(form, command)
        self.program.wait_gone(form)
        self.program.wait_window(to)

    def pick(self, mission):
        """What the picker is given: the path of a mission, or Storno."""
        self.program.wait_window("frmopenmission")
        if mission is None:
            self.program.click("frmopenmission", "Command2")
        else:
            self.program.type_text("frmopenmission", "box_path", str(mission / "mission.sqm"))
            self.program.key("Return")
        self.program.wait_gone("frmopenmission")

    def answer(self, text, key="Return"):
        """Answers a box that says so."""
        label = drive.wait_until(lambda: self.program.widget("QMessageBox", "qt_msgbox_label"), "a box")
        expect(label["text"], text, "the box")
        self.program.wait_window("QMessageBox")
        self.program.key(key)
        self.program.wait_gone("QMessageBox")

    # Keys alone.

    def focus(self, window):
        return next((widget["name"] or widget["class"] for widget in self.program.window(window)["widgets"]
                     if widget["focus"]), None)

    def tab_to(self, window, name):
        """Presses Tab until the widget has the keys."""
        self.program.wait_window(window)
        seen = []
        while (now := self.focus(window)) != name:
            if seen.count(now) > 1:
                raise drive.Failed(f"Tab does not lead to {window}.{name}: {' '.join(map(str, seen))}")
            seen.append(now)
            self.program.key("Tab")
            drive.wait_until(lambda: self.focus(window) != now, f"Tab to leave {window}.{now}")

    def press(self, window, name):
        self.tab_to(window, name)
        self.program.wait_widget(window, name, lambda widget: widget["enabled"], "to be usable")
        self.program.key("space")

    def write(self, window, name, text):
        self.tab_to(window, name)
        self.program.key("ctrl+Home", "ctrl+shift+End", "Delete")
        self.program.type_keys(text)
        self.program.wait_text(window, name, text)

    def move_to(self, window, name, number):
        """The arrow keys, until the row is the chosen one."""
        self.tab_to(window, name)
        def current():
            widget = self.program.widget(window, name)
            rows = widget["rows"]
            if "open" in widget:
                return next((n for n, row in enumerate(rows) if row["text"] == widget["text"]), -1)
            return next((n for n, row in enumerate(rows) if row["selected"]), -1)
        while (now := current()) != number:
            self.program.key("Down" if now < number else "Up")
            drive.wait_until(lambda: current() != now, f"the arrows in {window}.{name}")


def cancels(author):
    """Storno in each step leaves the main window alone, and the next run begins anew."""
    for last, (form, forward) in enumerate(STEPS):
        if form == "Form2":
            continue  # it has none
        author.begin()
        for (at, command), (to, _) in zip(STEPS[:last], STEPS[1:]):
            author.go(at, command, to)
        if form == "frmcamp4":
            author.program.click(form, "cmdaddpart")
            author.program.wait_widget(form, "txtpartname")
        author.program.click(form, "cmdstorno")
        author.expect_only(None)
        author.program.wait_window("frmmain")


def first_steps(author, campaigns):
    """The name, the folder through its picker, and the identities."""
    program = author.program
    author.begin()
    expect(program.widget("frmcamp1", "txtkampJmeno")["text"], "Moje Kampaň", "the first name")
    expect(program.widget("frmcamp1", "txtzivoty")["text"], "-1", "the first lives")
    program.type_text("frmcamp1", "txtkampcesta", "")
    program.click("frmcamp1", "cmdNext")
    author.answer(author.boxes[6])
    program.click("frmcamp1", "cmdadresar")
    program.wait_window("frmopen2")
    program.type_text("frmopen2", "box_path", str(campaigns))
    program.key("Return")
    drive.wait_until(lambda: any(row["text"] == campaigns.name and row["selected"]
                                 for row in program.widget("frmopen2", "Dir1")["rows"]), "the folder in its tree")
    author.look("folder")
    program.click("frmopen2", "cmdOk")
    program.wait_gone("frmopen2")
    program.wait_text("frmcamp1", "txtkampcesta", backslashed(campaigns))
    program.type_text("frmcamp1", "txtkampJmeno", "")
    program.click("frmcamp1", "cmdNext")
    author.answer(author.boxes[7])
    program.type_text("frmcamp1", "txtkampJmeno", "Tři kapitoly")
    program.type_text("frmcamp1", "txtzivoty", "3")
    author.look("step 1")
    author.go("frmcamp1", "cmdNext", "frmcamp2")
    author.look("step 2")
    author.go("frmcamp2", "cmdnext", "Form2")

    expect(program.window("Form2")["title"], "Průvodce vytvořením kampaně - profily postav", "the title of the identities")
    expect(program.widget("Form2", "cmdelall")["enabled"], False, "nothing to drop")
    for number, (kind, name, face, glasses, voice, pitch) in enumerate([
            ("Guba", "Generál Guba", 1, 1, 2, "0.9"), ("Nikdo", "Nikdo", 2, 2, 1, "2"),
            ("Velitel", 'Jan "Žižka"', 0, 0, 0, "1,5")]):
        program.type_text("Form2", "txtnazev", kind)
        program.click("Form2", "cmdadd")
        author.highlight("Form2", "seznamidentit", number)
        program.type_text("Form2", "Text1", name)
        author.choose("Form2", "ksichty", face)
        author.choose("Form2", "bryle", glasses)
        author.choose("Form2", "hlasy", voice)
        program.type_text("Form2", "Text2", pitch)
    author.highlight("Form2", "seznamidentit", 0)
    for field, shown in {"Text1": "Generál Guba", "Text2": "0.9", "ksichty": "Bruno", "hlasy": "Zed",
                         "bryle": "Sluneční brýle"}.items():
        program.wait_text("Form2", field, shown)
    author.unmark("Form2", "seznamidentit", 1)
    author.look("identities")
    author.go("Form2", "cmdOk", "frmcamp3")


def scores(author, praise, march, scolding, end_scene):
    """Awards on two islands, on one, and one that is unmarked; penalties, the last of them terminating."""
    program = author.program
    expect([program.widget("frmcamp3", name)["enabled"] for name in ("Command2", "cmddelA", "Command1", "cmddelP")],
           4 * [False], "the commands without an award or a penalty")

    def add(command, rows, number, mission):
        program.click("frmcamp3", command)
        author.pick(mission)
        program.wait_window("frmcamp3")
        if mission:
            author.nth("frmcamp3", rows, number)

    add("cdmaddP", "penaltylist", 0, None)
    expect(program.widget("frmcamp3", "penaltylist")["rows"], [], "penalties after Storno in the picker")
    add("cmdaddA", "awardlist", 0, praise)
    author.choose("frmcamp3", "awardlend", 2)
    add("Command2", "awardlist", 0, march)
    program.wait_text("frmcamp3", "txtcesta2", "Pochod.Cain")
    program.type_text("frmcamp3", "awardlimit", "250")
    author.choose("frmcamp3", "awardlend", 0)
    program.wait_text("frmcamp3", "txtcesta2", "Chvála.Eden")
    add("cmdaddA", "awardlist", 1, praise)
    add("cmdaddA", "awardlist", 2, praise)
    author.unmark("frmcamp3", "awardlist", 2)
    author.highlight("frmcamp3", "awardlist", 0)
    program.wait_text("frmcamp3", "awardlimit", "250")

    author.choose("frmcamp3", "penaltyland", 1)
    add("cdmaddP", "penaltylist", 0, scolding)
    author.choose("frmcamp3", "penaltyland", 0)
    add("cdmaddP", "penaltylist", 1, scolding)
    add("cdmaddP", "penaltylist", 2, end_scene)
    program.wait_text("frmcamp3", "penaltylimit", "-30")
    author.highlight("frmcamp3", "penaltylist", 0)
    program.click("frmcamp3", "cmdukon")
    author.answer(author.boxes[11])
    program.wait_checked("frmcamp3", "cmdukon", False)
    author.highlight("frmcamp3", "penaltylist", 2)
    program.check("frmcamp3", "cmdukon")
    author.unmark("frmcamp3", "penaltylist", 2)
    author.unmark("frmcamp3", "penaltylist", 1)
    author.highlight("frmcamp3", "penaltylist", 0)
    author.look("step 3")


def go_back_and_on(author):
    """What was made stays on the way back and forth."""
    author.go("frmcamp3", "cmdPrev", "Form2")
    expect([(row["text"], row["checked"]) for row in author.program.widget("Form2", "seznamidentit")["rows"]],
           [("Guba", True), ("Nikdo", False), ("Velitel", True)], "the identities")
    author.go("Form2", "cmdOk", "frmcamp3")
    expect([row["text"] for row in author.program.widget("frmcamp3", "awardlist")["rows"]],
           ["Award 1", "Award 2", "Award 3"], "the awards")
    author.go("frmcamp3", "cmdnext", "frmcamp4")


def chapters(author, missions, intro, epilogue):
    """The tree by its commands of two presses, and the links of its nodes."""
    program = author.program
    most, obrana, konec = missions

    def shown():
        return {name for name in ("txtpartname", "cmdne", "seznamakci", "txtdalsimise")
                if program.widget("frmcamp4", name)}

    def tree():
        return [row["text"] for row in program.widget("frmcamp4", "campfiles")["rows"]]

    expect(shown(), set(), "what a first press or the editor of links would show")
    expect(program.widget("frmcamp4", "cmdaddmission")["enabled"], False, "a mission without a chapter")
    program.click("frmcamp4", "cmdaddpart")
    program.wait_text("frmcamp4", "cmdaddpart", "Vložit kapitolu")
    expect(shown(), {"txtpartname", "cmdne"}, "the first press")
    author.look("first press")
    program.click("frmcamp4", "cmdne")
    program.wait_text("frmcamp4", "cmdaddpart", "Přidat kapitolu")
    expect((shown(), tree()), (set(), []), "the chapter that was dropped")
    for name in ("První", "Druhá kapitola", "Třetí"):
        program.click("frmcamp4", "cmdaddpart")
        program.type_text("frmcamp4", "txtpartname", name)
        program.key("Return")  # no step is left by it
        program.click("frmcamp4", "cmdaddpart")
        program.wait_text("frmcamp4", "cmdaddpart", "Přidat kapitolu")
    drive.wait_until(lambda: len(tree()) == 3, "three chapters")

    def link(node, links, dropped=None):
        author.highlight("frmcamp4", "campfiles", node)
        program.click("frmcamp4", "cmdmissionedit")
        program.wait_text("frmcamp4", "cmdmissionedit", "Ok")
        expect(program.widget("frmcamp4", "campfiles")["enabled"], False, "the tree while links are edited")
        for tag, value in links:
            author.choose("frmcamp4", "seznamakci", tag - 1)
            program.type_text("frmcamp4", "txtdalsimise", value)
        program.key("Return")
        if dropped:
            author.look("links")
            author.choose("frmcamp4", "seznamakci", 3)
            program.type_text("frmcamp4", "txtdalsimise", dropped[0][:-1])
            program.type_keys(dropped[0][-1])
            author.answer(dropped[1])
            program.wait_text("frmcamp4", "txtdalsimise", "")
        program.click("frmcamp4", "cmdmissionedit")
        program.wait_text("frmcamp4", "cmdmissionedit", "Upravit")
        expect(shown(), set(), "the editor of links when it is closed")

    link(0, [(2, "T48"), (3, "PART3"), (5, 'Jiná; "x"'), (6, "T48"), (7, "T47"), (8, backslashed(intro))],
         dropped=("T45", author.boxes[9]))
    link(1, [(6, "PART1"), (7, "Konec")])
    link(2, [(1, "Zahozeno"), (2, "T48"), (7, "T47"), (8, backslashed(epilogue))])
    drive.wait_until(lambda: tree() == ["Kapitola č.1 :První", "Kapitola č.2 :Druhá kapitola", "Kapitola č.3 :Třetí"],
                     "the chapters as the editor of links names them")

    for chapter, mission in ((2, obrana), (2, most), (1, konec), (0, most), (0, obrana), (0, konec)):
        author.highlight("frmcamp4", "campfiles", chapter)
        before = len(tree())
        program.click("frmcamp4", "cmdaddmission")
        author.pick(mission)
        drive.wait_until(lambda: len(tree()) == before + 1, "the mission in the tree")
    expect(tree(), ["Kapitola č.1 :První", "Mise č.1: Most.Eden", "Mise č.2: Obrana mostu.Abel", "Mise č.3: M3.Cain",
                    "Kapitola č.2 :Druhá kapitola", "Mise č.1: M3.Cain",
                    "Kapitola č.3 :Třetí", "Mise č.1: Obrana mostu.Abel", "Mise č.2: Most.Eden"], "the tree")
    link(1, [(2, "T46"), (3, "M3"), (6, "T46"), (7, "T45")], dropped=("T47", author.boxes[10]))
    expect(program.widget("frmcamp4", "cmdaddmission")["enabled"], False, "a mission below a mission")
    program.wait_text("frmcamp4", "txtcesta", "Most.Eden")
    link(2, [(6, "Cíl"), (7, "Konec hry")])
    link(3, [(1, "Zahozeno"), (7, "T45")])
    link(8, [(7, "Nikam")])
    author.look("step 4")
    author.go("frmcamp4", "cmddale", "frmcamp5")


def sounds(author):
    """Two of each kind; a radio message, a subtitle and a piece of music are unmarked."""
    program = author.program

    author.take("frmcamp5", "cmdnacistradio", "seznamradia", author.work, "rozkaz 1.ogg", "zpráva.ogg")
    author.unmark("frmcamp5", "seznamradia", 1)
    author.highlight("frmcamp5", "seznamradia", 0)
    for field, text in {"txtjmenoradia": "Rozkaz1", "txtradiojmeno": "Rozkaz; první", "txtpostava": "aP 7"}.items():
        program.type_text("frmcamp5", field, text)
    author.say("frmcamp5", "radiojazyk", "txtradio", {0: "Vpřed, na most!", 2: "To the bridge!", 4: "Al ponte"})

    author.take("frmcamp5", "cmdnacistzvuk", "seznamzvuku", author.work, "výstřel.ogg", "křik.ogg")
    author.highlight("frmcamp5", "seznamzvuku", 0)
    program.type_text("frmcamp5", "txtjmenozvuku", "Vystrel")
    program.type_text("frmcamp5", "txtnazev", "Výstřel")
    for number in range(2):
        program.click("frmcamp5", "cmdadd")
        author.nth("frmcamp5", "seznamtextu", number)
    author.unmark("frmcamp5", "seznamtextu", 1)
    author.highlight("frmcamp5", "seznamtextu", 0)
    author.say("frmcamp5", "zvukyjazyk", "txtzvuk", {0: "Stůj!", 1: "Halt!"})
    author.highlight("frmcamp5", "seznamzvuku", 1)
    for field, text in {"txtjmenozvuku": "Krik", "txtnazev": "Křik", "txtzvukhlasitost": "-3",
                        "txtzvukhloubka": "1.2"}.items():
        program.type_text("frmcamp5", field, text)

    author.take("frmcamp5", "cdmnactihudbu", "seznamhudby", author.work, "píseň.ogg", "pochod.ogg")
    author.unmark("frmcamp5", "seznamhudby", 1)
    author.highlight("frmcamp5", "seznamhudby", 0)
    program.type_text("frmcamp5", "txtjmenohudby", "Pisen")
    program.type_text("frmcamp5", "txthudbanazev", "Píseň")
    author.look("step 5")
    author.go("frmcamp5", "cmdnext", "frmcampobr")


def overview(author):
    program = author.program
    program.type_text("frmcampobr", "txtkampover", "První <B>díl</B>")
    program.click("frmcampobr", "cmdopen")
    program.wait_window("Frmopen")
    program.type_text("Frmopen", "box_path", str(author.work))
    program.key("Return")
    program.select_row("Frmopen", "File1", "mapa; 1.jpg", times=2)
    program.wait_gone("Frmopen")
    program.wait_text("frmcampobr", "lbljmeno", "mapa; 1.jpg")
    author.choose("frmcampobr", "Vyska", 4)
    author.look("step 6")
    author.go("frmcampobr", "cmdnext", "frmcamp6")
    author.go("frmcamp6", "cmdPrev", "frmcamp5")  # past the overview
    author.go("frmcamp5", "cmdnext", "frmcampobr")
    author.go("frmcampobr", "cmdnext", "frmcamp6")


def finish(author, made):
    """Everything is written; the last form shows three of the files by its slider."""
    program = author.program
    author.look("step 7")
    program.click("frmcamp6", "cmdnext")
    program.wait_window("frmcamp7")
    author.expect_only("frmcamp7")
    expect_tree(made, WANTED)
    for value, words in ((2, "První díl"), (1, "STRM_Rozkaz1"), (0, "class CfgIdentities")):
        program.wait_widget("frmcamp7", "souborylist", lambda slider: slider["value"] == value, f"to be at {value}")
        program.wait_widget("frmcamp7", "ukaz", lambda page: words in page["text"], f"to show {words}")
        author.look(f"file {value}")
        if value:
            left, top, _, height = program.widget("frmcamp7", "souborylist")["rect"]
            program.click_at([left, top, 8, height // 2])  # its groove
    program.click("frmcamp7", "cmdok")
    author.expect_only(None)


def by_keys(author, campaigns):
    """A second campaign without the mouse; its one mission is so large that its copying can be watched."""
    program = author.program
    large = author.mission("Velká.Eden")
    for number in range(FILES):
        (large / f"{number}.sqs").write_text("hint\r\n")

    # The menus by Alt, the arrows and Enter.
    program.wait_window("frmmain")
    program.key("Alt_L")
    for strip, entry, arrow in (("QMenuBar", "mnunastroje", "Right"), ("mnunastroje", "mnucampaignedit", "Down")):
        def current():
            told = program.widget("frmmain" if arrow == "Right" else strip, strip) or {"entries": []}
            return next((entry["name"] for entry in told["entries"] if entry["current"]), None)
        if arrow == "Right":
            drive.wait_until(current, "the keys in the menu bar")
        else:
            program.key("Down")
            drive.wait_until(current, "the menu to open")
        while (now := current()) != entry:
            program.key(arrow)
            drive.wait_until(lambda: current() != now, f"the arrows to {entry}")
    program.key("Return")
    program.wait_window("frmcamp1")
    for field, text in {"txtkampcesta": "C:\\Kampane", "txtkampJmeno": "Tři kapitoly", "txtzivoty": "3"}.items():
        program.wait_text("frmcamp1", field, text)
    author.press("frmcamp1", "cmdadresar")
    author.write("frmopen2", "box_path", str(campaigns))
    program.key("Return")
    author.press("frmopen2", "cmdOk")
    program.wait_gone("frmopen2")
    author.write("frmcamp1", "txtkampJmeno", "Klávesy")
    author.write("frmcamp1", "txtzivoty", "-1")
    author.press("frmcamp1", "cmdNext")
    author.press("frmcamp2", "cmdnext")
    program.wait_window("Form2")
    expect(program.widget("Form2", "seznamidentit")["rows"], [], "identities of a new run")
    author.write("Form2", "txtnazev", "Velitel")
    author.press("Form2", "cmdadd")
    author.write("Form2", "Text1", "Jan")
    author.move_to("Form2", "ksichty", 1)
    author.move_to("Form2", "bryle", 2)
    author.move_to("Form2", "hlasy", 1)
    author.write("Form2", "Text2", "0.8")
    author.press("Form2", "cmdOk")
    program.wait_window("frmcamp3")
    for rows, limit, first in (("awardlist", "awardlimit", "10"), ("penaltylist", "penaltylimit", "-10")):
        expect((program.widget("frmcamp3", rows)["rows"], program.widget("frmcamp3", limit)["text"]), ([], first), rows)

    def pick():
        author.write("frmopenmission", "box_path", str(large / "mission.sqm"))
        program.key("Return")
        program.wait_gone("frmopenmission")

    author.press("frmcamp3", "cdmaddP")
    pick()
    author.move_to("frmcamp3", "penaltylist", 0)
    author.press("frmcamp3", "cmdukon")
    author.press("frmcamp3", "cmdnext")
    author.press("frmcamp4", "cmdaddpart")
    author.write("frmcamp4", "txtpartname", "Jediná")
    author.press("frmcamp4", "cmdaddpart")
    author.move_to("frmcamp4", "campfiles", 0)
    author.press("frmcamp4", "cmdaddmission")
    pick()
    author.move_to("frmcamp4", "campfiles", 1)
    program.wait_text("frmcamp4", "txtcesta", "Velká.Eden")
    author.press("frmcamp4", "cmdmissionedit")
    author.move_to("frmcamp4", "seznamakci", 6)
    author.write("frmcamp4", "txtdalsimise", "Nikam")
    author.press("frmcamp4", "cmdmissionedit")
    author.move_to("frmcamp4", "campfiles", 0)
    author.press("frmcamp4", "cmdaddmission")
    pick()
    author.move_to("frmcamp4", "campfiles", 2)
    author.press("frmcamp4", "cmddel")
    drive.wait_until(lambda: len(program.widget("frmcamp4", "campfiles")["rows"]) == 2, "the second mission to go")
    author.press("frmcamp4", "cmddale")
    author.press("frmcamp5", "cdmnactihudbu")
    author.write("frmnactizvuky", "box_path", str(author.work))
    program.key("Return")
    author.move_to("frmnactizvuky", "File1", 2)
    name = author.nth("frmnactizvuky", "File1", 2)["text"]
    author.press("frmnactizvuky", "cmdadd")
    author.press("frmnactizvuky", "cmdopen")
    program.wait_gone("frmnactizvuky")
    author.move_to("frmcamp5", "seznamhudby", 0)
    author.write("frmcamp5", "txtjmenohudby", "Hudba")
    author.press("frmcamp5", "cmdnext")
    author.write("frmcampobr", "txtkampover", "Bez myši")
    author.move_to("frmcampobr", "Sirka", 7)
    author.press("frmcampobr", "cmdnext")
    author.press("frmcamp6", "cmdnext")

    watch_copying(author)
    program.wait_window("frmcamp7")
    author.expect_only("frmcamp7")
    made = campaigns / "Klávesy.Eden"
    expect(len(list((made / "Missions" / "Velká.Eden").iterdir())), FILES + 1, "files of the mission")
    expect((made / "DtaExt" / "music" / name).read_bytes(), (author.work / name).read_bytes(), "the music")
    description = (made / "Description.ext").read_bytes().decode("cp1250")
    for part in ('    class Velitel\r\n    {\r\n        name = "Jan";\r\n        face = "Face2";\r\n'
                 '        glasses = "spectacles";\r\n        speaker = "Dan";\r\n        pitch = 0.8;\r\n     };\r\n',
                 "    class PenaltyGameOver\r\n    {\r\n        limit = -10;\r\n        Eden = Velká.Eden;\r\n",
                 "    lives = -1;\r\n", "            lost = Nikam;\r\n            template = Velká.Eden;\r\n        };\r\n     };\r\n"):
        expect(part in description, True, f"{part!r} in {description}")
    author.press("frmcamp7", "Command1")
    given = program.folder / "tarvpbou.given"
    drive.wait_until(given.exists, "the packing utility")
    expect(given.read_text(), f"{made}/mission.sqm,{campaigns}/Klávesy.pbo,2\n", "what the utility is given")
    author.press("frmcamp7", "cmdok")
    author.expect_only(None)


def watch_copying(author):
    """While the files go their way, no step is on the screen, and what is clicked elsewhere is lost."""
    program = author.program
    program.wait_window("frmcopy", active=False)

    def moves():
        before = program.widget("frmcopy", "lbljmeno")
        drive.wait_until(lambda: program.widget("frmcopy", "lbljmeno") != before, "the files to go on")

    moves()
    told = program.window("frmcopy")
    expect(author.forms(), ["frmcopy"], "windows while files are copied")
    shown = {widget["name"]: widget for widget in told["widgets"]}
    expect(shown["lblmise"]["text"], "Kapitola 1 Mise1", "what is copied")
    expect(shown["lbljmeno"]["text"].startswith("Kopíruji soubor: "), True, "the file in hand")
    expect(0 < shown["prubeh2"]["value"] <= FILES + 1, True, "the bar of the files")
    menus = program.widget("frmmain", "QMenuBar")
    program.click_at(next(entry for entry in menus["entries"] if entry["name"] == "mnunastroje")["rect"])
    moves()
    author.look("copying")
    expect(author.forms(), ["frmcopy"], "windows after a click on the menu")


def play(program):
    author = Author(program)
    author.furnish()
    campaigns = author.work / "Kampaně"
    campaigns.mkdir()
    intro, epilogue = author.mission("Úvod.Eden"), author.mission("Návrat.Abel")
    missions = [author.mission(name) for name in ("Most.Eden", "Obrana mostu.Abel", "M3.Cain")]
    scenes = [author.mission(name) for name in ("Chvála.Eden", "Pochod.Cain", "Výtka.Abel", "Konec.Eden")]
    (missions[0] / "skripty").mkdir()
    (missions[0] / "skripty" / "most.sqs").write_bytes(b'hint "\xd8eka"\r\n')
    author.boxes = {number: line.decode("cp1250") for number, line in
                    enumerate((program.folder / "Bfdata/languages/Tv/Short.lng").read_bytes().split(b"\r\n")[121:], 1)}

    program.start()
    program.wait_window("frmmain")
    cancels(author)
    first_steps(author, campaigns)
    scores(author, *scenes)
    go_back_and_on(author)
    chapters(author, missions, intro, epilogue)
    sounds(author)
    overview(author)
    finish(author, campaigns / "Tři kapitoly.Eden")
    by_keys(author, campaigns)
    program.click("frmmain", "cmdend")
    expect(program.wait_end(), 0, "the status at the end")
    print("the campaigns are as expected")


if __name__ == "__main__":
    run(play, complaints=["qt.gui.imageio.jpeg: Invalid JPEG file structure: missing SOS marker"])  # a head alone
