"""Files that the drives compare, and those that the program keeps for itself."""

import struct

from steps import expect


def expect_lines(found, wanted, what):
    """Two files of the code page 1250 are the same, byte for byte."""
    lines, wanted_lines = found.split(b"\r\n"), wanted.split(b"\r\n")
    for number, (line, wanted_line) in enumerate(zip(lines, wanted_lines), 1):
        if line != wanted_line:
            expect(line.decode("cp1250", "replace"), wanted_line.decode("cp1250", "replace"), f"{what}, line {number}")
    expect(len(lines), len(wanted_lines), f"lines of {what}")


def expect_files(folder, wanted, also):
    """The folder holds the wanted files, byte for byte, and those that it has besides."""
    names = sorted(path.name for path in wanted.iterdir())
    expect(sorted(path.name for path in folder.iterdir()), sorted([*names, *also]), f"files in {folder.name}")
    for name in names:
        expect_lines((folder / name).read_bytes(), (wanted / name).read_bytes(), name)


def expect_tree(folder, wanted):
    """The folder and all folders below it hold what the wanted one holds, byte for byte, and nothing else."""
    def paths(root):
        return sorted(str(path.relative_to(root)) for path in root.rglob("*"))
    expect(paths(folder), paths(wanted), f"the tree of {folder.name}")
    for name in paths(wanted):
        if (wanted / name).is_file():
            expect_lines((folder / name).read_bytes(), (wanted / name).read_bytes(), name)


def text(value):
    """A string as the program keeps it in its own files."""
    value = value.encode("cp1250")
    return struct.pack("<H", len(value)) + value


def settings_file(folder, pack="Czech.lng", tips=True):
    """Tarvinfo.cfg as a first start with that language pack leaves it."""
    colours = [(0xFF0000, -1, 0), (0x00FF00, 0, -1), (0x0040C0, -1, 0), (0x404040, -1, 0), (0x0000FF, 0, 0),
               (0x0080FF, 0, 0)]
    own = str(folder).replace("/", "\\")
    never_chosen = bytes(18)  # a font
    return (b"".join(struct.pack("<Ihh", *colour) for colour in colours) +
            text(own + "\\Bfdata\\languages\\Tv\\" + pack) + text(own + "\\tarvpbou.exe") + text("ZDROJ,CIL,2") +
            struct.pack("<hh", -1, -int(tips)) + text("Žofie Nováková") + text("zofie@example.org") + 3 * never_chosen)
