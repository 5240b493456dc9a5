"""manners.py BUILD: Esc, Enter, double clicks and typed paths do what they do everywhere, and harm nothing."""

import drive
from steps import close_tips, copy_demo, expect, run

OVERVIEW, SOUNDS, SCRIPTS = 1, 6, 7  # pages of SSTab1

# Every window that the menus open, by the entry that opens it, and what Enter presses in it. A box names the file that
# it misses.
MENUS = [
    ("mnufile", "mnushowfiles", "frmnahled", "cmdOk"),
    ("mnufile", "mnuwavogg", "frmopen2", "cmdOk"),
    ("mnufile", "mnuwavlip", "frmopen2", "cmdOk"),
    ("mnufile", "mnuwsswav", "frmopen2", "cmdOk"),
    ("mnufile", "mnuwavwss", "frmopen2", "cmdOk"),
    ("mnunastroje", "mnuksicht", "Form2", "cmdOk"),
    ("mnunastroje", "mnucampaignedit", "frmcamp1", "cmdNext"),
    ("mnunastroje", "mnucinfigcpp", "QMessageBox", ""),
    ("mnunastroje", "mnudalsizvuky", "frmdalsinast", "Command1"),
    ("mnuNastaveni", "mnusetobec", "frmsettings", "Command2"),
    ("mnuNastaveni", "mnueditskript", "frmeditsetup", "Command1"),
    ("mnuNastaveni", "mnusetupLanguage", "frmloadsite", "Command1"),
    ("mnuinfo", "mnuabout2", "frmabout", None),
    ("mnuinfo", "mnuaboutflashpoint", "frmabout2", "Command1"),
    ("mnuinfo", "mnuukazlog", "frmload", "Command1"),  # and not the button that deletes the logs
]

# The same of the buttons of the main window, by page.
BUTTONS = [
    (0, "cmddebrief", "frmdebrief", "cmdOK"),
    (0, "cmdF_0", "QFontDialog", ""),
    (OVERVIEW, "cmdopen", "Frmopen", "cmdOk"),
    (SOUNDS, "cmdnacistradio", "frmnactizvuky", "cmdopen"),
    (SOUNDS, "cdmnactihudbu", "frmnactizvuky", "cmdopen"),
    (SOUNDS, "cmdnacistzvuk", "frmnactizvuky", "cmdopen"),
    (SCRIPTS, "cmdsave", "QInputDialog", ""),
    (SCRIPTS, "cmdsearch2", "frmnajit", "cmdnajdi"),
    (SCRIPTS, "cmdsearch", "frmrejstrik", "Command1"),
]


def leave_with_escape(program, window, default):
    """The window has that default button, and Esc gives the main window back."""
    program.wait_window(window)
    defaults = [widget["name"] for widget in program.window(window)["widgets"] if widget.get("default")]
    expect(defaults, [] if default is None else [default], f"what Enter presses in {window}")
    program.key("Escape")
    program.wait_gone(window)
    program.wait_window("frmmain")


def open_picker(program):
    program.choose_menu("frmmain", "mnufile", "mnufileopen")
    program.wait_window("frmopenmission")


def go_to(program, picker, path):
    program.type_text(picker, "box_path", str(path))
    program.key("Return")


def pick_mission(program, mission):
    """A mission that was clicked at is not opened by Esc, nor by closing the window; Enter in the list opens it."""
    for leave in ("Escape", "alt+F4"):
        open_picker(program)
        go_to(program, "frmopenmission", mission.parent)
        program.select_row("frmopenmission", "File1", "mission.sqm")
        drive.wait_until(lambda: program.row("frmopenmission", "File1", "mission.sqm")["selected"], "the choice")
        program.key(leave)
        program.wait_gone("frmopenmission")
        program.wait_window("frmmain")
        expect(program.window("frmmain")["title"], "Tarvelin", f"the title after {leave}")
        expect(program.widget("frmmain", "cmdvytvor")["enabled"], False, f"a mission is open after {leave}")

    open_picker(program)
    go_to(program, "frmopenmission", mission.parent.parent)
    go_to(program, "frmopenmission", mission.parent.name)  # from the folder that is shown
    program.select_row("frmopenmission", "File1", "mission.sqm")
    drive.wait_until(lambda: program.row("frmopenmission", "File1", "mission.sqm")["selected"], "the choice")
    program.key("Return")
    program.wait_gone("frmopenmission")
    program.wait_widget("frmmain", "cmdvytvor", lambda button: button["enabled"], "to be enabled")
    program.wait_window("frmmain")


def open_again(program, mission):
    """Enter and Esc both keep the mission that is open as it is; only a click on Yes reads it again."""
    program.type_text("frmmain", "txtJmenoMise", "Rozepsaná mise")
    yes, no = 0x4000, 0x10000
    for answer in ("Return", "Escape", "click"):
        open_picker(program)
        go_to(program, "frmopenmission", mission)
        program.wait_window("QMessageBox")
        expect(program.widget("QMessageBox", no)["default"], True, "No is the default")
        expect(program.widget("QMessageBox", yes)["default"], False, "Yes is the default")
        if answer == "click":
            program.click("QMessageBox", yes)
        else:
            program.key(answer)
        program.wait_gone("QMessageBox")
        program.wait_window("frmmain")
        program.wait_text("frmmain", "txtJmenoMise", "Uživatelská mise" if answer == "click" else "Rozepsaná mise")


def insert_tags(program):
    """Ctrl and a letter append a tag, also where the toolkit has a use of its own for the keys."""
    for field in ("txtBriefink", "txtUkol"):
        for letter, tag in (("b", "<BR>"), ("u", "<U></U>"), ("t", "<B></B>"), ("a", '<A href="marker:sklad">sem</A>')):
            program.type_text("frmmain", field, "Tudy")
            program.key_held("ctrl", letter)
            for answer in ("sklad", "sem") if letter == "a" else ():
                program.wait_text("QInputDialog", "QLineEdit", "")
                program.wait_focus("QInputDialog", "QLineEdit")
                program.type_keys(answer)
                program.wait_text("QInputDialog", "QLineEdit", answer)
                program.key("Return")
            program.wait_text("frmmain", field, "Tudy" + tag)
            program.wait_window("frmmain")


def pick_sounds(program, folder):
    """A double click takes a sound at once; what was added before it comes along; Esc takes nothing."""
    folder.mkdir()
    for name in ("pozor.ogg", "vybuch.ogg", "ticho.ogg"):
        (folder / name).write_bytes(b"OggS")
    program.select_tab("frmmain", "SSTab1", SOUNDS)

    program.click("frmmain", "cmdnacistradio")
    program.wait_window("frmnactizvuky")
    go_to(program, "frmnactizvuky", folder)
    program.select_row("frmnactizvuky", "File1", "ticho.ogg")
    drive.wait_until(lambda: program.row("frmnactizvuky", "File1", "ticho.ogg")["selected"], "the choice")
    program.key("Escape")
    program.wait_gone("frmnactizvuky")
    program.wait_window("frmmain")
    expect(program.widget("frmmain", "seznamradia")["rows"], [], "sounds after Esc")

    program.click("frmmain", "cmdnacistradio")
    program.wait_window("frmnactizvuky")
    program.select_row("frmnactizvuky", "File1", "vybuch.ogg")
    program.click("frmnactizvuky", "cmdadd")
    program.row("frmnactizvuky", "seznamsouboru", "vybuch.ogg")
    program.select_row("frmnactizvuky", "File1", "pozor.ogg", times=2)
    program.wait_gone("frmnactizvuky")
    program.wait_window("frmmain")
    expect([row["text"] for row in program.widget("frmmain", "seznamradia")["rows"]], ["vybuch.ogg", "pozor.ogg"],
           "sounds taken")


def play(program):
    mission = copy_demo(program)
    program.first_start("Czech.lng", {})
    close_tips(program)
    pick_mission(program, mission)
    open_again(program, mission)
    insert_tags(program)
    for menu, entry, window, default in MENUS:
        program.choose_menu("frmmain", menu, entry)
        leave_with_escape(program, window, default)
    for page, button, window, default in BUTTONS:
        program.select_tab("frmmain", "SSTab1", page)
        program.click("frmmain", button)
        leave_with_escape(program, window, default)
    pick_sounds(program, program.scratch / "zvuky")

    # A modal window keeps the main one from closing.
    open_picker(program)
    left, top, width, _ = program.window("frmmain")["rect"]
    program.click_at([left + width - 18, top - 20, 12, 12])  # the cross of the title bar
    program.key("Escape")
    program.wait_gone("frmopenmission")
    program.wait_window("frmmain")
    program.click_at([left + width - 18, top - 20, 12, 12])
    expect(program.wait_end(), 0, "the status at the end")


if __name__ == "__main__":
    run(play)
