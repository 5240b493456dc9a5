"""start_window.py BUILD [RUNS]: from the start of the program to its main window painted, with a mission on the command
line, everything in the system's caches. It should stay under 400 ms.
"""

import pathlib
import shutil
import statistics
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "ui" / "drive"))
import drive  # noqa: E402


def start_once(program, mission):
    """Milliseconds of one start."""
    started = program.start(mission)
    painted = drive.wait_until(lambda: (program.window("frmmain") or {}).get("painted"), "the main window")
    program.close()
    return painted - started


def main():
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    with drive.Screen() as screen, drive.Program(screen, sys.argv[1]) as program:
        mission = program.scratch / "Demo.Eden" / "mission.sqm"
        mission.parent.mkdir()
        shutil.copyfile(ROOT / "examples" / "Demo.Eden" / "mission.sqm", mission)
        program.first_start("English.lng", {})
        program.wait_window("frmtips", active=False)
        program.close()
        start_once(program, mission)
        times = sorted(start_once(program, mission) for _ in range(runs))
    print(f"start to a painted main window: median {statistics.median(times):.0f} ms, "
          f"best {times[0]:.0f} ms, worst {times[-1]:.0f} ms of {runs}")


if __name__ == "__main__":
    main()
