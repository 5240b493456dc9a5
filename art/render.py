"""Turns drawings into pictures with rsvg-convert and ImageMagick."""

import pathlib
import subprocess
import tempfile


def jpeg(svg, path, size, quality):
    """Renders `svg`, `size` pixels wide and high, into the JPEG file `path`."""
    with tempfile.TemporaryDirectory() as folder:
        drawing, bitmap = pathlib.Path(folder, "drawing.svg"), pathlib.Path(folder, "drawing.png")
        drawing.write_text(svg, encoding="utf-8")
        subprocess.run(["rsvg-convert", "-w", str(size), "-h", str(size), str(drawing), "-o", str(bitmap)], check=True)
        subprocess.run(["convert", str(bitmap), "-background", "white", "-alpha", "remove", "-strip", "-sampling-factor",
                        "4:4:4", "-quality", str(quality), f"jpg:{path}"], check=True)
