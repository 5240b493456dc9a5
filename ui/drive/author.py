"""author.py BUILD: an evening and a morning with the program, as an author has them, and the files that come of it.

The files under expected/ are written by hand.
"""

import struct
import time

import drive
from files import expect_files, settings_file, text
from steps import DEMO, HERE, close_tips, copy_demo, expect, run

BRIEFING, OVERVIEW, NOTES, INTEL, SETTINGS, WEAPONS, SOUNDS, SCRIPTS = range(8)  # pages of SSTab1
WEST, EAST, ADDONS, GEAR = range(4)  # pages of SSTab2


def add_row(program, window, field, row, value):
    program.type_text(window, field, value)
    program.click(window, "cmdpridat")
    program.row(window, "List1", row)


def mark_row(program, window, name, row, marked):
    """Clicks the mark of a row of a list."""
    left, top, _, height = program.row(window, name, row)["rect"]
    program.click_at([left, top, 20, height])
    drive.wait_until(lambda: program.row(window, name, row)["checked"] == marked, f"the mark of {row}")


def evening(program, mission):
    """The first start: the language, a name, and a mission from the texts to the weapons."""
    answers = {"Napište vaše jméno:": "Žofie Nováková", "Napište váš e-mail:": "zofie@example.org"}
    expect(program.first_start("Czech.lng", answers), list(answers), "what the first start asks")
    close_tips(program)
    expect(program.widget("frmmain", "SSTab1")["enabled"], False, "pages without a mission")

    program.choose_menu("frmmain", "mnufile", "mnufileopen")
    program.wait_window("frmopenmission")
    program.type_text("frmopenmission", "box_path", str(mission.parent))
    program.key("Return")
    program.select_row("frmopenmission", "File1", "mission.sqm", times=2)
    program.wait_gone("frmopenmission")
    program.wait_widget("frmmain", "SSTab1", lambda pages: pages["enabled"], "to be enabled")
    program.wait_window("frmmain")
    opened = str(mission.parent).replace("/", "\\") + "\\"
    expect(program.window("frmmain")["title"], "Tarvelin - " + opened, "the title")

    program.type_text("frmmain", "txtJmenoMise", "Cesta do Levie")
    program.type_text("frmmain", "txtBriefink",
                      'Číhejte u <A href="marker:zaloha">zálohy</A>.\n<B>Žádné hrdinství!</B>')
    for number, task in enumerate(["Zničte obě auta.", "Zbytečný úkol", "Nasedněte do vrtulníku."], 1):
        add_row(program, "frmmain", "txtUkol", f"Úkol {number}", task)
    mark_row(program, "frmmain", "List1", "Úkol 2", False)
    program.click("frmmain", "cmddebrief")
    program.wait_window("frmdebrief")
    program.type_text("frmdebrief", "txtjmeno", "Sklad zůstal prázdný")
    add_row(program, "frmdebrief", "txtdebrief", "Konec 1", "Obě auta shořela u silnice.")
    program.click("frmdebrief", "cmdOK")
    program.wait_gone("frmdebrief")

    program.select_tab("frmmain", "SSTab1", OVERVIEW)
    program.type_text("frmmain", "txtOverview", "Dvě auta, jedna cesta a hodina tmy.")
    program.select_tab("frmmain", "SSTab1", NOTES)
    program.type_text("frmmain", "txtPoznamky", "Příliš žluťoučký kůň úpěl ďábelské ódy. ČĎŇŘŠŤŽ")

    program.select_tab("frmmain", "SSTab1", SETTINGS)
    program.check("frmmain", "Skore")
    program.type_text("frmmain", "minScore", "500")
    program.check("frmmain", "respawn")
    program.check("frmmain", "Base")
    program.type_text("frmmain", "txtcekat", "15")
    program.check("frmmain", "showGPS", False)
    program.type_text("frmmain", "onloadintro", "Cesta do Levie")
    program.type_text("frmmain", "onloadmission", "Everon, 14. září 1985")

    program.select_tab("frmmain", "SSTab1", WEAPONS)
    program.check("frmmain", "M16")
    program.check("frmmain", "M16GrenadeLauncher")
    program.type_text("frmmain", "M16GLpocet", "8")
    program.check("frmmain", "M60")
    program.type_text("frmmain", "M60pocet", "2")
    program.type_text("frmmain", "M60naboje", "6")
    program.select_tab("frmmain", "SSTab2", ADDONS)
    program.click("frmmain", "cmdaddweapon")
    program.select_row("frmmain", "seznamzbrani", "Zbraň 1")
    program.type_text("frmmain", "Text1_0", "Dělo s granáty")
    program.type_text("frmmain", "Text1_1", "Vulcan")
    program.type_text("frmmain", "Text1_4", "3")
    program.type_text("frmmain", "Text1_3", "4/8")
    program.check("frmmain", "Check1")
    program.type_text("frmmain", "Text1_5", "VulcanGren")
    mark_row(program, "frmmain", "seznamzbrani", "Dělo s granáty", True)
    program.click("frmmain", "cmdsaveaddons")
    program.select_tab("frmmain", "SSTab2", GEAR)
    program.check("frmmain", "Binocular")
    program.type_text("frmmain", "Bpocet", "4")
    program.check("frmmain", "HandGrenade")
    program.wait_checked("frmmain", "M16zasobniky")
    program.type_text("frmmain", "txtM16zas", "40")
    program.type_text("frmmain", "txtGrenade", "12")

    program.click("frmmain", "cmdvytvor")
    drive.wait_until(lambda: (mission.parent / "Overview.html").exists(), "the files")
    program.click("frmmain", "cmdend")
    expect(program.wait_end(), 0, "the status at the end")

    expect_files(mission.parent, HERE / "expected" / "first", ["mission.sqm"])
    expect(mission.read_bytes(), (DEMO / "mission.sqm").read_bytes(), "the mission itself")
    expect((program.folder / "Tarvinfo.cfg").read_bytes(), settings_file(program.folder), "the settings")
    expect((program.folder / "Bfdata" / "addons.dat").read_bytes(),
           text("Dělo s granáty") + text("Vulcan") + struct.pack("<h", 3) + text("4/8") + struct.pack("<h", -1) +
           text("VulcanGren"), "the add-on weapons")


def morning(program, mission, is_later):
    """The mission is named at the start; what was written comes back, and one file is written anew."""
    program.start(mission)
    close_tips(program)
    program.wait_text("frmmain", "txtJmenoMise", "Cesta do Levie")
    program.wait_text("frmmain", "txtBriefink", "Číhejte u zálohy.Žádné hrdinství!")
    objectives = program.widget("frmmain", "List1")["rows"]
    expect([row["text"] for row in objectives], ["Úkol 1", "Úkol 2"], "the objectives")
    program.select_tab("frmmain", "SSTab1", NOTES)
    program.wait_text("frmmain", "txtPoznamky", "Příliš žluťoučký kůň úpěl ďábelské ódy. ČĎŇŘŠŤŽ")

    program.select_tab("frmmain", "SSTab1", WEAPONS)
    program.select_tab("frmmain", "SSTab2", ADDONS)
    expect([(row["text"], row["checked"]) for row in program.wait_widget("frmmain", "seznamzbrani")["rows"]],
           [("Dělo s granáty", False)], "the add-on weapons")
    program.select_tab("frmmain", "SSTab2", EAST)
    program.check("frmmain", "Ak74")
    program.type_text("frmmain", "Ak74pocet", "6")

    # The mission that is open once more: Enter says no, and nothing is lost.
    program.choose_menu("frmmain", "mnufile", "mnufileopen")
    program.wait_window("frmopenmission")
    program.type_text("frmopenmission", "box_path", str(mission))
    program.key("Return")
    program.wait_window("QMessageBox")
    program.key("Return")
    program.wait_gone("QMessageBox")
    program.wait_window("frmmain")

    program.select_row("frmmain", "seznamakci", "Description.ext")
    description = mission.parent / "Description.ext"
    old = description.read_bytes()
    program.click("frmmain", "cmdvytvor")
    drive.wait_until(lambda: description.read_bytes() not in (old, b""), "the new Description.ext")
    drive.wait_until(is_later, "another second: the logs of two runs are named by the clock")
    program.key("alt+F4")
    expect(program.wait_end(), 0, "the status at the end")

    expect_files(mission.parent, HERE / "expected" / "second", ["mission.sqm", "Briefing.html", "Overview.html"])
    for page in ("Briefing.html", "Overview.html"):
        expect((mission.parent / page).read_bytes(), (HERE / "expected" / "first" / page).read_bytes(), page)


def play(program):
    mission = copy_demo(program)
    evening(program, mission)
    ended = time.time()
    morning(program, mission, lambda: time.time() >= ended + 1)
    expect(len(list((program.folder / "Bfdata" / "LogFiles").glob("*.fec"))), 2, "logs of two runs")
    print("written as expected")


if __name__ == "__main__":
    run(play)
