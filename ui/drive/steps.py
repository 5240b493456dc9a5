"""What several drives have in common."""

import pathlib
import shutil
import signal
import sys

import drive

HERE = pathlib.Path(__file__).resolve().parent
DEMO = HERE.parent.parent / "examples" / "Demo.Eden"
WHOLE = 270  # seconds for one drive


def expect(value, wanted, what):
    if value != wanted:
        raise drive.Failed(f"{what}: {value!r} instead of {wanted!r}")


def copy_demo(program):
    """A copy of the demo mission for this run; returns its mission.sqm."""
    mission = program.scratch / "Mise" / "Demo.Eden" / "mission.sqm"
    mission.parent.mkdir(parents=True)
    shutil.copyfile(DEMO / "mission.sqm", mission)
    return mission


def close_tips(program):
    program.wait_window("frmtips")
    program.key("Escape")
    program.wait_gone("frmtips")
    program.wait_window("frmmain")


def run(play, kind=drive.Program, complaints=()):
    """Plays play(program) on a new screen with the program of the build folder that the command line names. All that
    the program may write to its outputs are the lines of `complaints`."""
    def too_long(*_):
        raise drive.Failed(f"the whole took longer than {WHOLE} s")

    signal.signal(signal.SIGALRM, too_long)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    signal.alarm(WHOLE)
    with drive.Screen() as screen, kind(screen, sys.argv[1]) as program:
        play(program)
        expect(set(program.said().splitlines()), set(complaints), "complaints of the program")
