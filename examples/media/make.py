#!/usr/bin/env python3
"""Makes the demo's sounds and its overview picture anew, beside itself.

The tones are synthesised here and turned into Ogg files by oggenc (vorbis-tools); the picture is drawn here and turned
into a JPEG by rsvg-convert (librsvg2-bin) and convert (imagemagick). What it makes is kept, so a build needs none of
these tools.
"""

import array
import math
import pathlib
import random
import subprocess
import tempfile
import wave

HERE = pathlib.Path(__file__).resolve().parent
RATE = 22050


def tone(frequency, seconds, loudness=0.4, overtones=(1.0,)):
    """Samples of one tone, from -1 to 1, that fades in at once and out slowly."""
    count = int(RATE * seconds)
    for i in range(count):
        t = i / RATE
        envelope = min(1.0, i / 200) * math.exp(-2.5 * t / seconds)
        yield loudness * envelope * sum(
            share * math.sin(2 * math.pi * frequency * (n + 1) * t) for n, share in enumerate(overtones))


def silence(seconds):
    return [0.0] * int(RATE * seconds)


def call_sign():
    """Two short beeps, as a field radio opens its channel."""
    return [*tone(880, 0.12), *silence(0.05), *tone(1175, 0.2), *silence(0.1)]


def night_march():
    """A slow tune on what could be a guitar."""
    samples = []
    for note in (220.00, 261.63, 329.63, 293.66, 261.63, 246.94, 220.00):
        samples += tone(note, 0.55, 0.35, (1.0, 0.5, 0.25, 0.12))
    return samples


def save_ogg(name, samples):
    with tempfile.TemporaryDirectory() as folder:
        wav = pathlib.Path(folder) / "tone.wav"
        with wave.open(str(wav), "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(RATE)
            file.writeframes(array.array("h", (int(32767 * max(-1, min(1, s))) for s in samples)).tobytes())
        subprocess.run(["oggenc", "--quiet", "--serial", "1", "-q", "1", "-o", str(HERE / name), str(wav)], check=True)


def picture():
    """The road to the depot an hour before sunrise, 256 by 128."""
    dice = random.Random(1985)
    trees = []
    for _ in range(46):
        x, depth = dice.uniform(-4, 260), dice.random()
        if 96 < x < 176 and depth > 0.3:
            continue  # the road stays free
        foot, tall = 78 + 38 * depth, 10 + 22 * depth
        shade = int(26 - 14 * depth)
        trees.append((depth, f'<path d="M{x:.1f} {foot - tall:.1f} l{tall / 3.2:.1f} {tall:.1f} h{-tall / 1.6:.1f} z" '
                             f'fill="rgb({shade},{shade + 12},{shade + 10})"/>'))
    stars = "".join(f'<circle cx="{dice.uniform(0, 256):.1f}" cy="{dice.uniform(0, 40):.1f}" '
                    f'r="{dice.uniform(0.3, 0.9):.2f}" fill="#dfe6f2"/>' for _ in range(40))
    return f'''<svg xmlns="http://www.w3.org/2000/svg" width="256" height="128" viewBox="0 0 256 128">
  <defs>
    <linearGradient id="sky" x2="0" y2="1">
      <stop offset="0" stop-color="#131d36"/><stop offset="0.45" stop-color="#34466b"/>
      <stop offset="0.62" stop-color="#b77c5c"/><stop offset="0.66" stop-color="#e0a871"/>
    </linearGradient>
    <linearGradient id="road" x2="0" y2="1"><stop offset="0" stop-color="#6d6258"/><stop offset="1" stop-color="#3a342f"/></linearGradient>
  </defs>
  <rect width="256" height="128" fill="url(#sky)"/>{stars}
  <path d="M0 82 Q40 62 82 76 T160 74 T256 66 V128 H0 Z" fill="#27352f"/>
  <path d="M0 90 Q70 78 128 86 T256 82 V128 H0 Z" fill="#1d2a24"/>
  <path d="M132 84 L138 84 Q128 98 176 128 L92 128 Q118 100 132 84 Z" fill="url(#road)"/>
  {"".join(shape for _, shape in sorted(trees))}
  <g fill="#14180f"><rect x="121" y="88" width="15" height="9" rx="1"/><rect x="136" y="91" width="6" height="6" rx="1"/>
    <circle cx="124.5" cy="98" r="2.2"/><circle cx="132" cy="98" r="2.2"/><circle cx="139" cy="98" r="2.2"/></g>
  <circle cx="142.5" cy="94.5" r="1.1" fill="#ffe9a8"/>
  <path d="M143 94 L170 92 L170 101 Z" fill="#ffe9a8" opacity="0.35"/>
</svg>
'''


def save_jpeg(name, svg):
    with tempfile.TemporaryDirectory() as folder:
        drawing, pixels = pathlib.Path(folder) / "drawing.svg", pathlib.Path(folder) / "drawing.png"
        drawing.write_text(svg, encoding="utf-8")
        subprocess.run(["rsvg-convert", "-o", str(pixels), str(drawing)], check=True)
        subprocess.run(["convert", str(pixels), "-strip", "-quality", "88", str(HERE / name)], check=True)


if __name__ == "__main__":
    save_ogg("callsign.ogg", call_sign())
    save_ogg("nocturne.ogg", night_march())
    save_jpeg("levie.jpg", picture())
