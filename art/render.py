"""Turns drawings into pictures with rsvg-convert and ImageMagick."""

import pathlib
import subprocess
import tempfile


def jpeg(svg, path, width, height, quality):
    """Renders `svg` into the JPEG file `path`; sizes in pixels."""
    with tempfile.TemporaryDirectory() as folder:
        drawing, bitmap = pathlib.Path(folder, "drawing.svg"), pathlib.Path(folder, "drawing.png")
        drawing.write_text(svg, encoding="utf-8")
        subprocess.run(["rsvg-convert", "-w", str(width), "-h", str(height), str(drawing), "-o", str(bitmap)],
                       check=True)
        subprocess.run(["convert", str(bitmap), "-background", "white", "-alpha", "remove", "-strip",
                        "-sampling-factor", "4:4:4", "-quality", str(quality), f"jpg:{path}"], check=True)
