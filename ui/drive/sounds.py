"""sounds.py BUILD [PICTURES]: the demo mission with every panel of its content, and what comes back of it.

The texts are those of examples/demo.lua; what it must write lies by hand in tests/mission/demo/written.
"""

import shutil
import struct

import drive
from files import expect_files, settings_file, text
from hand import Hand, backslashed
from steps import DEMO, HERE, copy_demo, expect, run

PROJECT = HERE.parent.parent
MEDIA = PROJECT / "examples" / "media"
WRITTEN = PROJECT / "tests" / "mission" / "demo" / "written"

BRIEFING, OVERVIEW, NOTES, INTEL, SETTINGS, WEAPONS, SOUNDS, SCRIPTS = range(8)  # pages of SSTab1
WEST, EAST, ADDONS, GEAR = range(4)  # pages of SSTab2


def page(program, number):
    program.select_tab("frmmain", "SSTab1", number)


def with_ctrl(program, *keys):
    """Ctrl is let go last: the shortcuts answer to the key that comes up under it."""
    program.screen.do("keydown", "ctrl", "key", "+".join(keys), "keyup", "ctrl")


def shortcut(program, window, field, key, after):
    """A shortcut appends its tag; the caret goes behind it."""
    program.wait_focus(window, field)
    with_ctrl(program, key)
    program.wait_text(window, field, after)
    program.key("ctrl+End")


def answer(program, question, words):
    """Answers a prompt."""
    drive.wait_until(lambda: (program.widget("QInputDialog", "QLabel") or {"text": ""})["text"] == question, question)
    program.wait_focus("QInputDialog", "QLineEdit")
    program.type_keys(words)
    program.wait_text("QInputDialog", "QLineEdit", words)
    program.key("Return")


def marker(program, field, name, words):
    """Ctrl+A asks for a marker and for the words of its link."""
    before = program.widget("frmmain", field)["text"]
    with_ctrl(program, "a")
    answer(program, "Napište jméno značky:", name)
    answer(program, "Napište text odkazu:", words)
    program.wait_gone("QInputDialog")
    program.wait_window("frmmain")
    program.wait_text("frmmain", field, f'{before}<A href="marker:{name}">{words}</A>')
    program.wait_focus("frmmain", field)
    program.key("ctrl+End" if field != "txtUkol" else "End")


def open_mission(program, mission, again=False):
    program.choose_menu("frmmain", "mnufile", "mnufileopen")
    program.wait_window("frmopenmission")
    program.check("frmopenmission", "chknacist", again)
    program.type_text("frmopenmission", "box_path", str(mission))
    program.key("Return")
    program.wait_gone("frmopenmission")
    if again:
        program.wait_window("QMessageBox")
        program.click("QMessageBox", 0x4000)  # yes, read it once more
        program.wait_gone("QMessageBox")
    program.wait_widget("frmmain", "SSTab1", lambda pages: pages["enabled"], "to be enabled")
    program.wait_gone("Form3")
    program.wait_window("frmmain")


def markers(hand):
    program = hand.program
    page(program, INTEL)
    program.wait_text("frmmain", "lblznackypocet", "10")
    for command, position, shown in (("cmdnext", "2/10", ("hreben", "Ridge", "Join")),
                                     ("cmdnext", "3/10", ("zaloha", "Ambush", "Destroy")),
                                     ("cmdPrev", "2/10", ("hreben", "Ridge", "Join")),
                                     ("cmdPrev", "1/10", ("start", "Insertion", "Start"))):
        program.click("frmmain", command)
        program.wait_text("frmmain", "lblcisloznacky", position)
        for label, words in zip(("lblJmenoZnacky", "lblPopisZnacky", "lbltypZnacky"), shown):
            program.wait_text("frmmain", label, f'"{words}"')  # as the file has it
    hand.look("markers")


def notebook(hand):
    """Plans, notes and objectives of two sides, with the shortcuts of their fields."""
    program = hand.program
    page(program, SETTINGS)
    program.check("frmmain", "chkvicestran")
    page(program, BRIEFING)
    program.type_text("frmmain", "txtJmenoMise", "The Road to Levie")
    hand.choose("frmmain", "strany", 0)
    program.type_text("frmmain", "txtBriefink", "")
    shortcut(program, "frmmain", "txtBriefink", "p", "<P></P>")
    with_ctrl(program, "shift", "b")  # none
    program.type_text("frmmain", "txtBriefink", "<P>Lie in wait at the ")
    marker(program, "txtBriefink", "zaloha", "ambush")
    program.type_keys(", burn both lorries and be gone before the\n")
    marker(program, "txtBriefink", "sklad", "depot")
    program.type_keys(" wakes up.</P>")
    program.wait_text("frmmain", "txtBriefink",
                      '<P>Lie in wait at the <A href="marker:zaloha">ambush</A>, burn both lorries and be gone before '
                      'the\n<A href="marker:sklad">depot</A> wakes up.</P>')

    def add(task):
        rows = len(program.widget("frmmain", "List1")["rows"])
        program.wait_text("frmmain", "txtUkol", task)
        program.click("frmmain", "cmdpridat")
        expect(hand.nth("frmmain", "List1", rows)["text"], f"Úkol {rows + 1}", "the new objective")
        program.wait_text("frmmain", "txtUkol", "")
        expect(program.widget("frmmain", "cmdpridat")["enabled"], False, "an objective without a text")

    program.type_text("frmmain", "txtUkol", "Destroy both lorries of the ")
    shortcut(program, "frmmain", "txtUkol", "t", "Destroy both lorries of the <B></B>")
    program.key("End", *4 * ["Left"])
    program.type_keys("supply column")
    program.key("End")
    program.type_keys(".")
    add("Destroy both lorries of the <B>supply column</B>.")
    program.type_text("frmmain", "txtUkol", "Reach the ")
    marker(program, "txtUkol", "odlet", "helicopter")
    program.type_keys(".")
    add('Reach the <A href="marker:odlet">helicopter</A>.')
    program.type_text("frmmain", "txtUkol", "Nothing")
    add("Nothing")
    hand.look("plan")
    program.type_text("frmmain", "txtUkol", "x")
    hand.highlight("frmmain", "List1", 2)
    program.wait_text("frmmain", "txtUkol", "Nothing")
    program.click("frmmain", "cmdodebrat")
    drive.wait_until(lambda: len(program.widget("frmmain", "List1")["rows"]) == 2, "the third objective to go")
    program.click("frmmain", "cmdsmaztext")
    program.wait_text("frmmain", "txtUkol", "")

    hand.choose("frmmain", "strany", 1)
    drive.wait_until(lambda: program.widget("frmmain", "List1")["rows"] == [], "the objectives of the other side")
    program.wait_text("frmmain", "txtBriefink", "")
    program.click("frmmain", "txtBriefink")
    program.wait_focus("frmmain", "txtBriefink")
    program.type_keys("<P>Bring the lorries down the road to the ")
    marker(program, "txtBriefink", "sklad", "depot at Levie")
    program.type_keys(".</P>")
    program.wait_text("frmmain", "txtBriefink",
                      '<P>Bring the lorries down the road to the <A href="marker:sklad">depot at Levie</A>.</P>')
    program.type_text("frmmain", "txtUkol", "Bring at least one lorry to the depot.")
    add("Bring at least one lorry to the depot.")
    hand.choose("frmmain", "strany", 0)
    drive.wait_until(lambda: [(row["text"], row["checked"]) for row in program.widget("frmmain", "List1")["rows"]] ==
                     [("Ukol 1", True), ("Ukol 2", True)], "the first side's objectives")

    page(program, NOTES)
    hand.choose("frmmain", "strany3", 0)
    program.type_text("frmmain", "txtPoznamky", "<P>The column starts at twenty to six. No radio until the first shot.")
    shortcut(program, "frmmain", "txtPoznamky", "b",
             "<P>The column starts at twenty to six. No radio until the first shot.<BR>")
    program.type_keys("\nŽádné zbytečné hrdinství.</P>")
    hand.choose("frmmain", "strany3", 1)
    program.wait_text("frmmain", "txtPoznamky", "")
    program.type_text("frmmain", "txtPoznamky", "<P>The patrol on the road has not reported since midnight.</P>")
    hand.choose("frmmain", "strany3", 0)
    program.wait_text("frmmain", "txtPoznamky", "<P>The column starts at twenty to six. No radio until the first shot."
                                                "<BR>\nŽádné zbytečné hrdinství.</P>")


def overview(hand, media):
    """The text, and a picture through the picker's tree of folders."""
    program = hand.program
    page(program, OVERVIEW)
    program.type_text("frmmain", "txtOverview", "")
    shortcut(program, "frmmain", "txtOverview", "u", "<U></U>")
    program.type_text("frmmain", "txtOverview", "Two lorries, one road, and an hour of darkness left.")
    program.click("frmmain", "cmdopen")
    program.wait_window("Frmopen")
    program.type_text("Frmopen", "box_path", str(media.parent))
    program.key("Return")
    program.select_row("Frmopen", "Dir1", media.name)
    program.select_row("Frmopen", "File1", "levie.jpg")
    hand.look("picker")
    program.select_row("Frmopen", "File1", "levie.jpg", times=2)
    program.wait_gone("Frmopen")
    program.wait_text("frmmain", "lbljmeno", "levie.jpg")
    program.wait_text("frmmain", "lblsize", "256 x 128")
    expect([program.widget("frmmain", combo)["text"] for combo in ("Sirka", "Vyska")], ["128", "64"], "the first sizes")
    hand.choose("frmmain", "Sirka", 7)
    hand.choose("frmmain", "Vyska", 6)
    hand.look("overview")

    page(program, BRIEFING)
    program.click("frmmain", "cmddebrief")
    program.wait_window("frmdebrief")
    program.type_text("frmdebrief", "txtdebrief", "")
    shortcut(program, "frmdebrief", "txtdebrief", "i", "<I></I>")
    for number, (heading, words) in enumerate(ENDINGS):
        program.type_text("frmdebrief", "txtjmeno", heading)
        program.type_text("frmdebrief", "txtdebrief", words)
        program.click("frmdebrief", "cmdpridat")
        expect(hand.nth("frmdebrief", "List1", number)["text"], f"Konec {number + 1}", "the new ending")
    program.click("frmdebrief", "cmdOK")
    program.wait_gone("frmdebrief")
    program.wait_window("frmmain")


ENDINGS = [("The depot stays empty", "Both lorries burned beside the road."),
           ("Half a victory", "One lorry came through. The other did not.")]


def settings(hand):
    program = hand.program
    page(program, SETTINGS)
    program.check("frmmain", "Skore")
    program.check("frmmain", "respawn")
    program.check("frmmain", "Base")
    program.check("frmmain", "showGPS", False)
    for field, words in {"minScore": "500", "avgScore": "2500", "maxScore": "5000", "txtcekat": "15",
                         "onloadintro": "The Road to Levie", "onloadmission": "Everon, 14 September 1985"}.items():
        program.type_text("frmmain", field, words)


def weapons(hand):
    """The catalogue, its linked checks and numbers, and a weapon of an add-on."""
    program = hand.program

    def arm(*rows):
        for check, fields in rows:
            program.check("frmmain", check)
            for field, number in fields.items():
                program.type_text("frmmain", field, str(number))

    page(program, WEAPONS)
    program.select_tab("frmmain", "SSTab2", WEST)
    arm(("M16", {"M16GLpocet": 8}), ("M16GrenadeLauncher", {}), ("M21", {"M21pocet": 1, "M21naboje": 6}),
        ("M60", {"M60pocet": 2, "M60naboje": 8}), ("LawLauncher", {"LLpocet": 3, "LLnaboje": 6}),
        ("CarlGustavLauncher", {"CGLpocet": 1, "CGLnaboje": 3}))
    program.type_keys("x5")  # a letter takes nothing but itself away
    program.wait_text("frmmain", "CGLnaboje", "35")
    program.key("BackSpace")
    program.wait_text("frmmain", "CGLnaboje", "3")
    program.select_tab("frmmain", "SSTab2", EAST)
    arm(("Ak74", {"Ak74pocet": 6}), ("Ak47", {"Ak47pocet": 4}), ("SVDDragunov", {"SVDDpocet": 1, "SVDDnaboje": 5}),
        ("PK", {"Pkpocet": 1, "Pknaboje": 4}), ("RPGLauncher", {"RPGLpocet": 2, "RPGLnaboje": 4}),
        ("KLauncher", {"K32Lpocet": 1, "K32Lnaboje": 2}))
    program.select_tab("frmmain", "SSTab2", GEAR)
    for linked in ("M16zasobniky", "Ak74zasobniky", "Ak47zasobniky", "GrenadeLauncher"):
        program.wait_checked("frmmain", linked)
    arm(("M16zasobniky", {"txtM16zas": 40, "txtGrenade": 12, "txtAk74zas": 24, "txtAk47zas": 16}),
        ("Binocular", {"Bpocet": 4}), ("HandGrenade", {"HGpocet": 20}), ("PipeBomb", {"PBpocet": 4}))
    hand.look("gear")
    program.select_tab("frmmain", "SSTab2", WEST)
    program.wait_text("frmmain", "M16naboje", "40")
    program.wait_text("frmmain", "M16Glnaboje", "40/12")
    hand.look("west")

    program.select_tab("frmmain", "SSTab2", ADDONS)
    expect(program.widget("frmmain", "cmdsaveaddons")["enabled"], False, "an empty list to save")
    program.click("frmmain", "cmdaddweapon")
    expect(hand.nth("frmmain", "seznamzbrani", 0)["text"], "Zbraň 1", "the new weapon")
    hand.highlight("frmmain", "seznamzbrani", 0)
    for field, words in {"Text1_0": "Silenced carbine", "Text1_1": "DemoCarbine", "Text1_3": "6/4",
                         "Text1_4": "2"}.items():
        program.type_text("frmmain", field, words)
    program.check("frmmain", "Check1")
    program.type_text("frmmain", "Text1_5", "DemoGrenade")
    program.click("frmmain", "cmdaddweapon")
    hand.highlight("frmmain", "seznamzbrani", 1)
    program.wait_text("frmmain", "Text1_1", "")
    program.wait_checked("frmmain", "Check1", False)
    program.click("frmmain", "cmddelweapon")
    drive.wait_until(lambda: [row["text"] for row in program.widget("frmmain", "seznamzbrani")["rows"]] ==
                     ["Silenced carbine"], "the second weapon to go")
    hand.highlight("frmmain", "seznamzbrani", 0)
    program.wait_text("frmmain", "Text1_5", "DemoGrenade")
    hand.mark("frmmain", "seznamzbrani", 0, True)
    program.click("frmmain", "cmdsaveaddons")
    saved = program.folder / "Bfdata" / "addons.dat"
    wanted = (text("Silenced carbine") + text("DemoCarbine") + struct.pack("<h", 2) + text("6/4") +
              struct.pack("<h", -1) + text("DemoGrenade"))
    drive.wait_until(lambda: saved.exists() and saved.stat().st_size >= len(wanted), "the saved weapons")
    expect(saved.read_bytes(), wanted, "the saved weapons")
    hand.look("add-ons")


def sounds(hand, media):
    """One of each kind, through the intake; what is said in several languages."""
    program = hand.program
    page(program, SOUNDS)
    expect([program.widget("frmmain", name)["enabled"] for name in
            ("cmdodebratradio", "cmdodebratzvuk", "cmdodebrathudbu", "txtzvuk")], 4 * [False], "commands of empty lists")
    proposed = (program.folder / "Bfdata/languages/Tv/Czech.lng").read_bytes().decode("cp1250").split("\r\n")
    hand.take("frmmain", "cmdnacistradio", "seznamradia", media, "callsign.ogg")
    hand.highlight("frmmain", "seznamradia", 0)
    program.wait_text("frmmain", "txtjmenoradia", proposed[56] + "1")
    for field, words in {"txtjmenoradia": "ColumnSeen", "txtradiojmeno": "The column is in sight",
                         "txtpostava": "velitel", "txtradiohlasitost": "+5"}.items():
        program.type_text("frmmain", field, words)
    hand.say("frmmain", "radiojazyk", "txtradio", dict(enumerate(
        ["Kolona je na dohled.", "Die Kolonne ist in Sicht.", "The column is in sight.",
         "La columna está a la vista.", "Ecco la colonna.", "La colonne est en vue."])))

    hand.take("frmmain", "cmdnacistzvuk", "seznamzvuku", media, "callsign.ogg", "nocturne.ogg")
    hand.highlight("frmmain", "seznamzvuku", 1)
    program.wait_text("frmmain", "txtjmenozvuku", proposed[58] + "2")
    program.click("frmmain", "cmdodebratzvuk")
    drive.wait_until(lambda: len(program.widget("frmmain", "seznamzvuku")["rows"]) == 1, "the second sound to go")
    hand.highlight("frmmain", "seznamzvuku", 0)
    program.type_text("frmmain", "txtjmenozvuku", "DepotCalls")
    program.type_text("frmmain", "txtnazev", "The depot calls")
    for number, texts in enumerate([{0: "Tady sklad, kde jste?", 2: "Depot here, where are you?"},
                                    {0: "Ozvěte se!", 2: "Come in!"}]):
        program.click("frmmain", "cmdadd")
        hand.highlight("frmmain", "seznamtextu", number)
        hand.say("frmmain", "zvukyjazyk", "txtzvuk", texts)
    hand.highlight("frmmain", "seznamtextu", 0)
    program.wait_text("frmmain", "txtzvuk", "Depot here, where are you?")

    hand.take("frmmain", "cdmnactihudbu", "seznamhudby", media, "nocturne.ogg")
    hand.highlight("frmmain", "seznamhudby", 0)
    for field, words in {"txtjmenohudby": "Nocturne", "txthudbanazev": "Before the dawn",
                         "txthudbahlasitost": "+0"}.items():
        program.type_text("frmmain", field, words)
    hand.look("sounds")


def write(hand, folder):
    program = hand.program
    expect(program.widget("frmmain", "seznamakci")["text"], "Všechny soubory", "what is written")
    program.click("frmmain", "cmdvytvor")
    drive.wait_until(lambda: (folder / "pic.jpg").exists() and (folder / "Stringtable.csv").exists(), "the files")
    program.wait_gone("Form1")
    program.wait_window("frmmain")
    expect_files(folder, WRITTEN, ["mission.sqm", "music", "pic.jpg", "sound"])
    for kind, names in {"music": ["nocturne.ogg"], "sound": ["callsign.ogg"]}.items():
        expect([path.name for path in (folder / kind).iterdir()], names, kind)
    for copy, original in {"music/nocturne.ogg": "nocturne.ogg", "sound/callsign.ogg": "callsign.ogg",
                           "pic.jpg": "levie.jpg"}.items():
        expect((folder / copy).read_bytes(), (MEDIA / original).read_bytes(), copy)
    expect((folder / "mission.sqm").read_bytes(), (DEMO / "mission.sqm").read_bytes(), "the mission itself")


def comes_back(hand, mission):
    """The mission is opened once more: texts without tags, titles and numbers with the blank behind their sign."""
    program = hand.program
    open_mission(program, mission, again=True)

    def shows(texts, checks=()):
        for field, words in texts.items():
            program.wait_text("frmmain", field, words)
        for field, checked in dict(checks).items():
            program.wait_checked("frmmain", field, checked)

    page(program, SETTINGS)
    shows({"txtJmenoMise": "The Road to Levie", "minScore": " 500", "avgScore": " 2500", "maxScore": " 5000",
           "txtcekat": " 15", "onloadintro": " The Road to Levie", "onloadmission": " Everon, 14 September 1985"},
          {"Skore": True, "respawn": True, "Base": True, "None": False, "Debrifing": True, "showMap": True,
           "showGPS": False, "showCompass": True, "showWatch": True, "showNotepad": True, "chkvicestran": True})
    hand.look("settings that came back")

    page(program, BRIEFING)
    for side, plan, tasks in (
            (1, "Bring the lorries down the road to the depot at Levie.", ["Bring at least one lorry to the depot."]),
            (0, "Lie in wait at the ambush, burn both lorries and be gone before thedepot wakes up.",
             ["Destroy both lorries of the supply column.", "Reach the helicopter."])):
        hand.choose("frmmain", "strany", side)
        shows({"txtBriefink": plan})
        expect([(row["text"], row["checked"]) for row in program.widget("frmmain", "List1")["rows"]],
               [(f"Ukol {number + 1}", True) for number in range(len(tasks))], "the objectives that came back")
        for number, task in enumerate(tasks):
            hand.highlight("frmmain", "List1", number)
            shows({"txtUkol": task})
    hand.look("plan that came back")
    page(program, NOTES)
    for side, words in ((1, "The patrol on the road has not reported since midnight."),
                        (0, "The column starts at twenty to six. No radio until the first shot.Žádné zbytečné "
                            "hrdinství.")):
        hand.choose("frmmain", "strany3", side)
        shows({"txtPoznamky": words})

    page(program, OVERVIEW)
    shows({"txtOverview": "Two lorries, one road, and an hour of darkness left.", "Sirka": "256", "Vyska": "128",
           "lbljmeno": backslashed(mission.parent) + "\\\\pic.jpg"})
    hand.look("overview that came back")

    page(program, SOUNDS)  # classes are never read: the lists are empty
    for rows in ("seznamradia", "seznamzvuku", "seznamhudby"):
        expect(program.widget("frmmain", rows)["rows"], [], rows)
    page(program, WEAPONS)  # and what was armed stays
    program.select_tab("frmmain", "SSTab2", WEST)
    shows({"M60naboje": "8"}, {"M16": True, "M60": True, "M4": False})

    page(program, BRIEFING)
    program.click("frmmain", "cmddebrief")
    program.wait_window("frmdebrief")
    for number, (heading, words) in enumerate(ENDINGS):
        expect(hand.nth("frmdebrief", "List1", number)["text"], f"Konec {number + 1}", "an ending that came back")
        hand.highlight("frmdebrief", "List1", number)
        program.wait_text("frmdebrief", "txtjmeno", heading)
        program.wait_text("frmdebrief", "txtdebrief", words)
    program.click("frmdebrief", "cmdOK")
    program.wait_gone("frmdebrief")


def play(program):
    (program.folder / "Tarvinfo.cfg").write_bytes(settings_file(program.folder, tips=False))
    mission = copy_demo(program)
    media = program.scratch / "Podklady k misi"
    shutil.copytree(MEDIA, media)
    hand = Hand(program)

    program.start()
    program.wait_window("frmmain")
    open_mission(program, mission)
    markers(hand)
    notebook(hand)
    overview(hand, media)
    settings(hand)
    weapons(hand)
    sounds(hand, media)
    write(hand, mission.parent)
    comes_back(hand, mission)
    program.click("frmmain", "cmdend")
    expect(program.wait_end(), 0, "the status at the end")
    print("written as expected, and what comes back is as expected")


if __name__ == "__main__":
    run(play)
