"""association.py BUILD: the program is made the one that opens missions, a mission is opened as a desktop does it, and
the association is taken back. All in a home of its own.
"""

import ctypes
import os
import shutil
import struct
import subprocess

import drive
from files import settings_file
from steps import DEMO, close_tips, expect, run

TYPE = "application/x-sqm"
BOX = "QMessageBox"


class Installed(drive.Program):
    """The program in a folder whose name needs quoting, after its first start."""

    def __init__(self, screen, build):
        super().__init__(screen, build)
        self.folder = self.scratch / "My Tarvelin 100% $HOME"

    def __enter__(self):
        super().__enter__()
        (self.folder / "Tarvinfo.cfg").write_bytes(settings_file(self.folder))
        return self

    def tool(self, *command, desktop=None):
        """What a tool of the desktop says."""
        environment = self.environment()
        if desktop:
            environment["XDG_CURRENT_DESKTOP"] = desktop
        done = subprocess.run([*map(str, command)], env=environment, capture_output=True, text=True, timeout=drive.STEP)
        return done.stdout.strip()

    def default(self):
        return self.tool("xdg-mime", "query", "default", TYPE)

    def type_of(self, file):
        told = self.tool("gio", "info", "-a", "standard::content-type", file)
        return told.split("standard::content-type:")[-1].strip()

    def share(self, name):
        return self.home / ".local" / "share" / name


def icon_file():
    """A red icon of 32 by 32."""
    pixels = struct.pack("<I", 0xFFFF0000) * 32 * 32 + bytes(4 * 32)
    bitmap = struct.pack("<IiiHHIIiiII", 40, 32, 64, 1, 32, 0, 0, 0, 0, 0, 0) + pixels
    return struct.pack("<HHHBBBBHHII", 0, 1, 1, 32, 32, 0, 0, 1, 32, len(bitmap), 22) + bitmap


def box(program, part, button="Return"):
    """Reads a box and answers it."""
    program.wait_window(BOX)
    told = program.wait_widget(BOX, "qt_msgbox_label")["text"]
    if part not in told:
        raise drive.Failed(f"the box says {told!r} and not {part!r}")
    program.key(button)
    drive.wait_until(lambda: (program.widget(BOX, "qt_msgbox_label") or {}).get("text") != told, "the box to go")


def settings(program):
    program.start()
    close_tips(program)
    program.choose_menu("frmmain", "mnuNastaveni", "mnusetobec")
    program.wait_window("frmsettings")


def end(program):
    program.click("frmmain", "cmdend")
    expect(program.wait_end(), 0, "the status at the end")


def associate(program):
    settings(program)
    icon = program.scratch / "mission icon.ico"
    icon.write_bytes(icon_file())
    program.click("frmsettings", "imgicon")
    program.wait_window("QFileDialog")
    program.type_text("QFileDialog", "fileNameEdit", str(icon))
    program.key("Return")
    program.wait_window("frmsettings")
    program.click("frmsettings", "Command5")
    box(program, ".sqm")  # nobody opened them so far
    box(program, " to: Tarvelin.exe\\shell\\Open in Tarvelin\\command")
    program.click("frmsettings", "Command5")  # once more: it asks, and no ends it
    box(program, "", "Escape")
    program.wait_window("frmsettings")
    program.screenshot(program.pictures / "association.png")
    program.click("frmsettings", "Command2")
    program.wait_gone("frmsettings")
    end(program)


def opened(program, mission, *command, desktop=None):
    """A mission opened through a tool of the desktop is open in the program."""
    prefix = ["env", f"XDG_CURRENT_DESKTOP={desktop}"] if desktop else []
    program.start_through(*prefix, *command)
    close_tips(program)
    expect(program.window("frmmain")["title"], "Tarvelin - " + str(mission.parent).replace("/", "\\") + "\\",
           f"the title after {command[0]}")
    expect(program.widget("frmmain", "SSTab1")["enabled"], True, "pages with a mission")
    expect(os.readlink(f"/proc/{program.process.pid}/exe"), str(program.folder / "tarvelin"), "the program")
    end(program)


def prove(program, mission):
    expect(program.type_of(mission), "text/plain", "the type of a mission at first")
    expect(program.default(), "", "who opens missions at first")
    associate(program)

    entry = program.share("applications/tarvelin.desktop")
    valid = subprocess.run(["desktop-file-validate", entry], capture_output=True, text=True, timeout=drive.STEP)
    expect((valid.returncode, valid.stdout), (0, ""), "the desktop entry")
    expect("\nComment=Open in Tarvelin\n" in entry.read_text(), True, "the words of the desktop entry")
    for name in ("mimetypes/application-x-sqm.png", "apps/tarvelin.png"):
        picture = program.share("icons/hicolor/32x32") / name
        expect(picture.read_bytes()[:8], b"\x89PNG\r\n\x1a\n", f"the icon {name}")
    expect(program.type_of(mission), TYPE, "the type of a mission")
    expect(program.tool("xdg-mime", "query", "filetype", mission, desktop="GNOME"), TYPE, "its type on a desktop")
    expect(program.default(), "tarvelin.desktop", "who opens missions")

    opened(program, mission, "gio", "launch", entry, mission)
    opened(program, mission, "gio", "open", mission)
    opened(program, mission, "xdg-open", mission, desktop="GNOME")

    settings(program)
    program.click("frmsettings", "Command6")
    drive.wait_until(lambda: not entry.exists(), "the desktop entry to go")
    program.click("frmsettings", "Command2")
    program.wait_gone("frmsettings")
    end(program)
    expect(program.type_of(mission), "text/plain", "the type of a mission afterwards")
    expect(program.default(), "", "who opens missions afterwards")
    left = [path for path in program.home.rglob("*") if path.suffix in (".desktop", ".png", ".xml") and path.is_file()]
    expect(left, [], "what is left behind")


def play(program):
    subreaper = 36  # PR_SET_CHILD_SUBREAPER
    ctypes.CDLL(None).prctl(subreaper, 1)
    mission = program.scratch / "Moje mise" / "Útok; 1.Eden" / "mission.sqm"
    mission.parent.mkdir(parents=True)
    shutil.copyfile(DEMO / "mission.sqm", mission)
    prove(program, mission)
    print("associated, opened and taken back")


if __name__ == "__main__":
    run(play, Installed)
