"""Portraits of people: plain vector drawings, 128 by 128, told apart by build, hair, beard, clothes and headgear.

What a portrait looks like follows from its number alone, so the same code gets the same face at every run."""

import random

SKINS = ["#f2cfae", "#e5b48c", "#c98d62", "#9a6440", "#f6dcc6", "#74492f", "#d9a27a"]
HAIRS = ["#3a2a1e", "#6b4526", "#1f1b1a", "#b98a4a", "#8c8a86", "#8a3f1d", "#d6b878"]
DARK_SKINS = ["#9a6440", "#74492f"]
DARK_HAIRS = ["#1f1b1a", "#2b201a", "#6f6d6a", "#241c19", "#33261e"]
EYES = ["#4a6b3a", "#5a3d24", "#3f6f95", "#6b6f73"]
GROUNDS = [("#c7d7df", "#8fa9b8"), ("#dcd3b4", "#b3a678"), ("#c9d8c0", "#8fab88"), ("#d9c8bd", "#ae9384"),
           ("#cfcfd8", "#9797ab")]

# Clothes: colour, colour of the pattern, pattern, colour of what shows at the neck.
CLOTHES = [("#5d6b3c", "#46512d", "plain", "#3d4727"), ("#6c7346", "#3f4a2a", "blotches", "#5a4a32"),
           ("#c2ab7c", "#8d7a52", "blotches", "#a58f63"), ("#4b5563", "#333b47", "plain", "#d7dce0"),
           ("#f0f0ea", "#4a6590", "stripes", "#f0f0ea"), ("#7a5a3c", "#5c422b", "plain", "#b9c4cf"),
           ("#7d8b5a", "#55613b", "dots", "#3d4727"), ("#38506b", "#2a3d52", "plain", "#e6e0d0"),
           ("#8a4038", "#6d312a", "knit", "#8a4038")]

MEN_HAIR = ["crew", "parted", "curly", "receding", "buzz", "swept", "bald", "mop"]
MEN_GEAR = ["none", "helmet", "none", "beret", "cap", "none", "boonie", "furcap", "none", "beanie", "sidecap",
            "none", "headset", "band"]
BEARDS = ["none", "none", "stubble", "moustache", "none", "beard", "none", "goatee", "none", "sideburns", "none"]
EXTRAS = ["none", "none", "glasses", "none", "scar", "none", "paint", "none", "sunglasses", "none", "freckles",
          "none", "plaster"]

WOMEN = [dict(hair="bob", colour=HAIRS[1], skin=SKINS[0], gear="none", clothes=CLOTHES[0], extra="none"),
         dict(hair="ponytail", colour=HAIRS[3], skin=SKINS[4], gear="cap", clothes=CLOTHES[6], extra="none"),
         dict(hair="bun", colour=HAIRS[2], skin=SKINS[6], gear="none", clothes=CLOTHES[7], extra="glasses"),
         dict(hair="long", colour=HAIRS[5], skin=SKINS[0], gear="none", clothes=CLOTHES[5], extra="freckles"),
         dict(hair="braids", colour=HAIRS[6], skin=SKINS[1], gear="scarf", clothes=CLOTHES[8], extra="none"),
         dict(hair="pixie", colour=HAIRS[0], skin=SKINS[2], gear="beret", clothes=CLOTHES[1], extra="none")]


def shade(colour, factor):
    """A colour made darker (factor below 1) or lighter (above 1)."""
    parts = [int(colour[i:i + 2], 16) for i in (1, 3, 5)]
    if factor <= 1:
        parts = [round(part * factor) for part in parts]
    else:
        parts = [round(part + (255 - part) * (factor - 1)) for part in parts]
    return "#%02x%02x%02x" % tuple(parts)


def man(number):
    """The looks of man `number`. The lists' lengths share few divisors, so looks repeat only after all 57."""
    skin = SKINS[(number * 3) % len(SKINS)]
    hairs = DARK_HAIRS if skin in DARK_SKINS else HAIRS
    worn = EXTRAS[(number * 5) % len(EXTRAS)]
    if worn == "freckles" and skin in DARK_SKINS:
        worn = "glasses"
    return dict(number=number, woman=False, skin=skin, colour=hairs[(number * 5 + number // 7) % len(hairs)],
                hair=MEN_HAIR[(number * 3) % len(MEN_HAIR)], gear=MEN_GEAR[number % len(MEN_GEAR)],
                beard=BEARDS[(number * 4) % len(BEARDS)], extra=worn, clothes=CLOTHES[(number * 2) % len(CLOTHES)],
                wide=22.5 + (number * 7 % 5) * 0.9, jaw=13 + (number * 5 % 4) * 2, chin=88 + (number * 3 % 3) * 2)


def woman(number):
    looks = dict(WOMEN[number])
    looks.update(number=number, woman=True, beard="none", wide=21.5 + (number % 3) * 0.7, jaw=9 + number % 3,
                 chin=87 + number % 2)
    return looks


def clothes(looks, rng):
    colour, other, pattern, neck = looks["clothes"]
    body = "M4 130 C6 108 30 103 50 98 L64 112 L78 98 C98 103 122 108 124 130 Z"
    parts = [f'<clipPath id="body"><path d="{body}"/></clipPath>',
             f'<path d="M44 99 L64 118 L84 99 L84 130 L44 130 Z" fill="{neck}"/>',
             f'<path d="{body}" fill="{colour}"/>', '<g clip-path="url(#body)">']
    if pattern == "blotches":
        for _ in range(26):
            x, y = rng.uniform(4, 124), rng.uniform(100, 128)
            parts.append(f'<ellipse cx="{x:.1f}" cy="{y:.1f}" rx="{rng.uniform(4, 9):.1f}" '
                         f'ry="{rng.uniform(2, 4):.1f}" fill="{rng.choice([other, shade(colour, 0.82)])}" '
                         f'transform="rotate({rng.uniform(-40, 40):.0f} {x:.1f} {y:.1f})"/>')
    elif pattern == "stripes":
        for y in range(103, 130, 6):
            parts.append(f'<path d="M0 {y + 4} C30 {y} 98 {y} 128 {y + 4}" stroke="{other}" stroke-width="2.6" '
                         'fill="none"/>')
    elif pattern == "dots":
        for _ in range(60):
            parts.append(f'<circle cx="{rng.uniform(4, 124):.1f}" cy="{rng.uniform(100, 128):.1f}" r="1.5" '
                         f'fill="{other}"/>')
    elif pattern == "knit":
        for x in range(4, 126, 5):
            parts.append(f'<path d="M{x} 98 V130" stroke="{other}" stroke-width="1.3"/>')
    parts.append("</g>")
    # The collar's two wings and the seams of the shoulders.
    if pattern not in ("stripes", "knit"):
        dark = shade(colour, 0.76)
        parts += [f'<path d="M49 97 L42 104 L55 117 L64 112 Z" fill="{shade(colour, 1.12)}" stroke="{dark}"/>',
                  f'<path d="M79 97 L86 104 L73 117 L64 112 Z" fill="{shade(colour, 1.12)}" stroke="{dark}"/>',
                  f'<path d="M64 112 V130" stroke="{dark}" stroke-width="1.4"/>']
    else:
        parts.append(f'<path d="M49 98 C54 113 74 113 79 98" stroke="{shade(other, 0.9)}" stroke-width="4" '
                     'fill="none" stroke-linecap="round"/>')
    return parts


def head_path(looks):
    w, jaw, chin = looks["wide"], looks["jaw"], looks["chin"]
    return (f"M{64 - w} 50 C{64 - w} 16 {64 + w} 16 {64 + w} 50 C{64 + w} 68 {64 + jaw + 4} {chin} 64 {chin} "
            f"C{64 - jaw - 4} {chin} {64 - w} 68 {64 - w} 50 Z")


def hair_behind(looks):
    colour, w = looks["colour"], looks["wide"]
    dark = shade(colour, 0.82)
    style = looks["hair"]
    if style == "bob":
        return [f'<path d="M{60 - w} 84 C{52 - w} 50 40 20 64 20 C88 20 {76 + w} 50 {68 + w} 84 '
                f'C80 92 48 92 {60 - w} 84 Z" fill="{dark}"/>']
    if style == "long":
        return [f'<path d="M{58 - w} 112 C{50 - w} 60 38 20 64 20 C90 20 {78 + w} 60 {70 + w} 112 '
                f'C84 104 44 104 {58 - w} 112 Z" fill="{dark}"/>']
    if style == "ponytail":
        return [f'<path d="M84 40 C112 42 106 78 98 100 C94 84 96 62 82 58 Z" fill="{dark}"/>']
    if style == "bun":
        return [f'<circle cx="64" cy="19" r="11" fill="{dark}"/>']
    if style == "braids":
        return ["".join(f'<ellipse cx="{64 + side * (27 - i * 0.5)}" cy="{66 + i * 9}" rx="5.4" ry="6" fill="{dark}" '
                        f'stroke="{shade(colour, 0.62)}"/>' for i in range(5)) for side in (-1, 1)]
    return []


def hair_front(looks):
    """Hair on the skull; under headgear only what shows below it."""
    colour, w, style, gear = looks["colour"], looks["wide"], looks["hair"], looks["gear"]
    left, right = 64 - w, 64 + w
    dark = shade(colour, 0.8)
    sides = (f'<path d="M{left - 0.6} 57 C{left - 1.5} 46 {left} 40 {left + 4} 34 L{left + 7} 40 '
             f'C{left + 4} 46 {left + 3} 50 {left + 2.5} 57 Z M{right + 0.6} 57 C{right + 1.5} 46 {right} 40 '
             f'{right - 4} 34 L{right - 7} 40 C{right - 4} 46 {right - 3} 50 {right - 2.5} 57 Z" fill="{colour}"/>')
    cap = (f"M{left - 1} 54 C{left - 5} 12 {right + 5} 12 {right + 1} 54 "
           f"C{right - 2} 48 {right - 3} 42 {right - 6} 39 ")
    if gear not in ("none", "headset", "band"):
        return [] if style == "bald" else [sides]
    if style == "bald":
        return [f'<path d="M54 33 C58 30 64 29.6 68 30.4" stroke="#ffffff" stroke-opacity="0.45" stroke-width="2.4" '
                'fill="none" stroke-linecap="round"/>']
    if style == "buzz":
        return [f'<path d="{cap}C76 34 52 34 {left + 6} 39 C{left + 3} 42 {left + 2} 48 {left - 1} 54 Z" '
                f'fill="{colour}" fill-opacity="0.72"/>']
    if style == "crew":
        return [f'<path d="{cap}C78 33 50 33 {left + 6} 39 C{left + 3} 42 {left + 2} 48 {left - 1} 54 Z" '
                f'fill="{colour}"/>',
                f'<path d="M48 29 C56 25 72 25 80 29" stroke="{shade(colour, 1.2)}" stroke-width="1.6" fill="none"/>']
    if style == "receding":
        return [f'<path d="{cap}C86 31 78 27 72 31 C68 27 60 27 56 31 C50 27 42 31 {left + 6} 39 C{left + 3} 42 '
                f'{left + 2} 48 {left - 1} 54 Z" fill="{colour}"/>']
    if style == "parted":
        return [f'<path d="{cap}C84 36 62 38 52 30 C50 36 46 40 {left + 5} 42 C{left + 3} 46 {left + 2} 50 '
                f'{left - 1} 54 Z" fill="{colour}"/>',
                f'<path d="M52 30 C53 27 55 25.4 58 24" stroke="{dark}" stroke-width="1.4" fill="none"/>']
    if style == "swept":
        return [f'<path d="{cap}C80 30 66 40 46 38 C44 42 {left + 3} 46 {left - 1} 54 Z" fill="{colour}"/>',
                f'<path d="M{left + 2} 38 C46 14 82 10 {right} 34 C78 24 58 24 {left + 2} 38 Z" '
                f'fill="{shade(colour, 1.14)}"/>']
    if style == "mop":
        return [f'<path d="M{left - 3} 60 C{left - 9} 10 {right + 9} 10 {right + 3} 60 C{right} 52 {right - 2} 46 '
                f'{right - 5} 41 C80 46 75 44 73 38 C70 44 65 44 62 38 C58 44 53 45 {left + 6} 40 C{left + 2} 48 '
                f'{left} 54 '
                f'{left - 3} 60 Z" fill="{colour}"/>']
    if style in ("curly", "pixie"):
        radius, rings = (7.4, 11) if style == "curly" else (6, 9)
        blobs = []
        for i in range(rings):
            t = i / (rings - 1)
            x = left + 1 + (right - left - 2) * t
            y = 43 - 19 * (1 - (2 * t - 1) ** 2) ** 0.5 - 1
            blobs.append(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{radius}" '
                         f'fill="{colour if i % 2 else shade(colour, 1.1)}"/>')
        return [f'<path d="{cap}C78 34 50 34 {left + 6} 39 L{left - 1} 54 Z" fill="{colour}"/>'] + blobs
    if style in ("bob", "long"):
        return [f'<path d="M{left - 3} 66 C{left - 9} 8 {right + 9} 8 {right + 3} 66 C{right} 52 {right - 2} 44 '
                f'76 34 C66 42 50 44 {left + 4} 44 C{left + 1} 50 {left} 58 {left - 3} 66 Z" fill="{colour}"/>',
                f'<path d="M50 24 C58 20 72 21 79 27" stroke="{shade(colour, 1.25)}" stroke-width="1.8" fill="none" '
                'stroke-linecap="round"/>']
    # ponytail, bun, braids: drawn back from a parting
    return [f'<path d="M{left - 1.5} 56 C{left - 6} 12 {right + 6} 12 {right + 1.5} 56 C{right - 2} 44 80 35 64 29 '
            f'C48 35 {left + 2} 44 {left - 1.5} 56 Z" fill="{colour}"/>',
            f'<path d="M64 29 V19" stroke="{dark}" stroke-width="1.2"/>']


def features(looks, rng):
    skin, woman_here = looks["skin"], looks["woman"]
    line = shade(skin, 0.55)
    iris = "#4a2f1c" if skin in DARK_SKINS else EYES[(looks["number"] * 3 + 1) % len(EYES)]
    apart = 10 + (looks["number"] % 3) * 0.5
    brow = shade(looks["colour"], 0.75) if looks["colour"] not in ("#8c8a86", "#d6b878") else looks["colour"]
    parts = []
    for side in (-1, 1):
        x = 64 + side * apart
        parts += [f'<ellipse cx="{x}" cy="56" rx="4.6" ry="3.2" fill="#fdfcf8"/>',
                  f'<circle cx="{x}" cy="56" r="2.5" fill="{iris}"/>', f'<circle cx="{x}" cy="56" r="1.3" '
                  f'fill="#17130f"/>',
                  f'<circle cx="{x - 0.9}" cy="55" r="0.8" fill="#ffffff"/>',
                  f'<path d="M{x - 5} 55.6 C{x - 3} 52 {x + 3} 52 {x + 5} 55.6" stroke="{shade(skin, 0.38)}" '
                  f'stroke-width="{1.9 if woman_here else 1.4}" fill="none" stroke-linecap="round"/>']
        if woman_here:
            parts.append(f'<path d="M{x + side * 4.6} 55 L{x + side * 7} 53" stroke="{shade(skin, 0.35)}" '
                         'stroke-width="1.4" stroke-linecap="round"/>')
        lift = (looks["number"] % 4) * 0.6
        parts.append(f'<path d="M{x - side * 5} {48.6 - lift} C{x} {46 - lift} {x + side * 3} {46 - lift} '
                     f'{x + side * 6.4} {49 - lift * 0.5}" stroke="{brow}" '
                     f'stroke-width="{1.8 if woman_here else 2.8}" fill="none" stroke-linecap="round"/>')
    nose = 67 + looks["number"] % 3
    parts.append(f'<path d="M63 57 C62.5 62 60.6 {nose - 2} 60.8 {nose} C62 {nose + 1.8} 66 {nose + 1.8} 67.2 {nose}" '
                 f'stroke="{line}" stroke-width="1.5" fill="none" stroke-linecap="round" stroke-linejoin="round"/>')
    for side in (-1, 1):
        parts.append(f'<ellipse cx="{64 + side * 14}" cy="67" rx="4.6" ry="3" fill="#e2705a" '
                     f'fill-opacity="{0.28 if woman_here else 0.17}"/>')
    mouth = 76.5
    if woman_here:
        parts += [f'<path d="M57 {mouth} C60 {mouth - 2} 62 {mouth - 2} 64 {mouth - 1} C66 {mouth - 2} 68 '
                  f'{mouth - 2} 71 '
                  f'{mouth} C68 {mouth + 4.4} 60 {mouth + 4.4} 57 {mouth} Z" fill="#b9504a"/>',
                  f'<path d="M57 {mouth} C61 {mouth + 1.4} 67 {mouth + 1.4} 71 {mouth}" stroke="#7d2f2b" fill="none"/>']
    elif looks["number"] % 3 == 1:
        parts.append(f'<path d="M56 {mouth - 1} C60 {mouth + 5.4} 68 {mouth + 5.4} 72 {mouth - 1} Z" fill="#ffffff" '
                     f'stroke="{shade(skin, 0.45)}" stroke-width="1.3" stroke-linejoin="round"/>')
    else:
        parts.append(f'<path d="M56.5 {mouth} C60 {mouth + 3.4} 68 {mouth + 3.4} 71.5 {mouth - 0.6}" '
                     f'stroke="{shade(skin, 0.45)}" stroke-width="1.9" fill="none" stroke-linecap="round"/>')
    return parts


def beard(looks):
    kind, colour, w, chin, jaw = looks["beard"], looks["colour"], looks["wide"], looks["chin"], looks["jaw"]
    left, right = 64 - w, 64 + w
    full = (f"M{left} 56 C{left + 1} 70 {64 - jaw - 5} {chin + 2} 64 {chin + 3} C{64 + jaw + 5} {chin + 2} "
            f"{right - 1} 70 "
            f"{right} 56 C{right - 3} 66 {right - 7} 71 74 71.6 C70 70 58 70 54 71.6 C{left + 7} 71 {left + 3} 66 "
            f"{left} 56 Z")
    if kind == "stubble":
        return [f'<path d="{full}" fill="{shade(colour, 0.7)}" fill-opacity="0.2"/>']
    if kind == "beard":
        return [f'<path d="{full} M57 76 C60 81 68 81 71 76 C67 74.6 61 74.6 57 76 Z" fill="{colour}" '
                'fill-rule="evenodd"/>']
    if kind == "moustache":
        return [f'<path d="M52.5 76 C54 71 60 70 64 72 C68 70 74 71 75.5 76 C71 74.4 68 74.4 64 74.8 C60 74.4 57 74.4 '
                f'52.5 76 Z" fill="{colour}"/>']
    if kind == "goatee":
        return [f'<path d="M57 {chin - 7} C60 {chin - 8.4} 68 {chin - 8.4} 71 {chin - 7} C71 {chin + 1} 68 '
                f'{chin + 4} 64 '
                f'{chin + 4} C60 {chin + 4} 57 {chin + 1} 57 {chin - 7} Z" fill="{colour}"/>',
                f'<path d="M54 75 C58 71.4 62 71.6 64 72.6 C66 71.6 70 71.4 74 75" stroke="{colour}" '
                f'stroke-width="2.2" '
                'fill="none" stroke-linecap="round"/>']
    if kind == "sideburns":
        return [f'<path d="M{left} 50 L{left + 0.4} 66 L{left + 5.4} 70 L{left + 4} 50 Z M{right} 50 L{right - 0.4} 66 '
                f'L{right - 5.4} 70 L{right - 4} 50 Z" fill="{colour}"/>']
    return []


def extra(looks):
    kind, w = looks["extra"], looks["wide"]
    apart = 10 + (looks["number"] % 3) * 0.5
    if kind == "paint":
        return [f'<path d="M{66 - w} 60 L56 66 L55 70 L{67 - w} 66 Z M{62 + w} 60 L72 66 L73 70 L{61 + w} 66 Z '
                'M52 42 L60 41 L59 44.4 L53 45 Z M68 41 L77 43 L75 46 L69 44.4 Z" fill="#36432a" fill-opacity="0.72"/>']
    if kind == "scar":
        return ['<path d="M77.5 61.5 L83 71 M77.6 65.6 L80.6 64 M80 69.4 L82.8 67.8" stroke="#a2473b" '
                'stroke-width="1.4" stroke-linecap="round" fill="none"/>']
    if kind == "freckles":
        spots = [(49, 64), (52, 66.4), (55, 64.4), (50.6, 69), (73, 64.4), (76, 66.4), (79, 64), (77.4, 69)]
        return [f'<circle cx="{x}" cy="{y}" r="0.9" fill="#b06a3e" fill-opacity="0.75"/>' for x, y in spots]
    if kind == "plaster":
        return ['<g transform="rotate(-24 50 69)"><rect x="44.5" y="66.6" width="11" height="4.8" rx="2" '
                'fill="#ead9b8" stroke="#b39d72" stroke-width="0.8"/><rect x="48.4" y="67.4" width="3.2" height="3.2" '
                'fill="#d3bd92"/></g>']
    if kind in ("glasses", "sunglasses"):
        dark = kind == "sunglasses"
        fill = 'fill="#22282c" fill-opacity="0.93"' if dark else 'fill="#dcecf4" fill-opacity="0.28"'
        frame = "#15181a" if dark else "#3b332b"
        parts = []
        for side in (-1, 1):
            x = 64 + side * apart
            parts += [f'<rect x="{x - 7.6}" y="50.4" width="15.2" height="11.6" rx="{4 if dark else 5.6}" {fill} '
                      f'stroke="{frame}" stroke-width="1.7"/>',
                      f'<path d="M{x + side * 7.4} 54 L{64 + side * w} 52.6" stroke="{frame}" stroke-width="1.7"/>']
            if dark:
                parts.append(f'<path d="M{x - 4.6} 57 L{x - 1} 52.8" stroke="#ffffff" stroke-opacity="0.5" '
                             'stroke-width="1.6" stroke-linecap="round"/>')
        parts.append(f'<path d="M{64 - apart + 7.4} 54.6 C62 52.8 66 52.8 {64 + apart - 7.4} 54.6" stroke="{frame}" '
                     'stroke-width="1.7" fill="none"/>')
        return parts
    return []


def headgear(looks, rng):
    kind, w = looks["gear"], looks["wide"]
    left, right = 64 - w, 64 + w
    colour = looks["clothes"][0] if looks["clothes"][2] not in ("stripes", "knit") else "#59663c"
    if kind == "helmet":
        colour = ["#5b6640", "#6f6a48", "#4d5548"][looks["number"] % 3]
        dome = (f"M{left - 5} 47 C{left - 8} 4 {right + 8} 4 {right + 5} 47 C{right - 6} 42 {left + 6} 42 {left - 5} "
                f"47 Z")
        net = "".join(f'<path d="M{x} 4 L{x + 22} 50 M{x + 22} 4 L{x} 50"/>' for x in range(18, 100, 11))
        return [f'<clipPath id="dome"><path d="{dome}"/></clipPath><path d="{dome}" fill="{colour}"/>',
                f'<g clip-path="url(#dome)" stroke="{shade(colour, 0.82)}" stroke-width="0.9" fill="none">{net}</g>',
                f'<path d="M{left - 6} 47.5 C{left + 6} 41.5 {right - 6} 41.5 {right + 6} 47.5" '
                f'stroke="{shade(colour, 0.62)}" stroke-width="3" fill="none" stroke-linecap="round"/>',
                f'<path d="M{left - 1} 47 C{left - 1} 68 52 {looks["chin"]} 64 {looks["chin"] + 1} C76 {looks["chin"]} '
                f'{right + 1} 68 {right + 1} 47" stroke="#5c4630" stroke-width="1.8" fill="none"/>']
    if kind == "beret":
        colour = ["#8b2f2a", "#2f5144", "#2c3550", "#5b2f3d"][looks["number"] % 4]
        return [f'<path d="M{left - 1} 41 C{left - 14} 20 50 10 74 13 C{right + 12} 16 {right + 7} 34 {right + 1} 41 '
                f'C78 35 50 35 {left - 1} 41 Z" fill="{colour}"/>',
                f'<path d="M{left - 1} 41.5 C50 35.5 78 35.5 {right + 1} 41.5" stroke="{shade(colour, 0.6)}" '
                'stroke-width="3.4" fill="none" stroke-linecap="round"/>',
                f'<circle cx="77" cy="29" r="3.6" fill="#d8b65a" stroke="{shade(colour, 0.6)}"/>']
    if kind == "cap":
        return [f'<path d="M{left - 1} 42 C{left - 4} 8 {right + 4} 8 {right + 1} 42 C76 36 52 36 {left - 1} 42 Z" '
                f'fill="{colour}"/>',
                f'<path d="M{left + 1} 40 C50 33.4 78 33.4 {right - 1} 40 C{right + 5} 47 {right - 3} 47.6 64 44.6 '
                f'C{left + 3} 47.6 {left - 5} 47 {left + 1} 40 Z" fill="{shade(colour, 0.72)}"/>',
                f'<path d="M64 17 V34 M50 20 C48 25 47 30 47 36 M78 20 C80 25 81 30 81 36" '
                f'stroke="{shade(colour, 0.8)}" stroke-width="1.1" fill="none"/>']
    if kind == "boonie":
        return [f'<path d="M{left} 38 C{left + 1} 10 {right - 1} 10 {right} 38 Z" fill="{colour}"/>',
                f'<path d="M{left} 32 C50 28 78 28 {right} 32 L{right} 38 L{left} 38 Z" fill="{shade(colour, 0.66)}"/>',
                f'<path d="M{left - 15} 45 C{left - 4} 33 {right + 4} 33 {right + 15} 45 C{right} 43 {left} 43 '
                f'{left - 15} '
                f'45 Z" fill="{shade(colour, 0.88)}" stroke="{shade(colour, 0.6)}" stroke-width="0.9"/>']
    if kind == "furcap":
        fur = ["#6d6a66", "#5a4632", "#8b7b64"][looks["number"] % 3]
        tufts = "".join(f'<circle cx="{left - 3 + i * (2 * w + 6) / 9:.1f}" cy="{33 + abs(i - 4.5) * 0.9:.1f}" r="6.4" '
                        f'fill="{fur if i % 2 else shade(fur, 1.1)}"/>' for i in range(10))
        flaps = "".join(f'<ellipse cx="{64 + s * (w + 3)}" cy="{y}" rx="6.2" ry="6.6" fill="{shade(fur, 1.06)}"/>'
                        for s in (-1, 1) for y in (44, 52, 60))
        return [f'<path d="M{left} 34 C{left} 8 {right} 8 {right} 34 Z" fill="{shade(fur, 0.72)}"/>', flaps, tufts,
                f'<path d="M64 25.4 L65.9 30 L70.8 30.3 L67 33.4 L68.3 38.2 L64 35.5 L59.7 38.2 L61 33.4 L57.2 30.3 '
                'L62.1 30 Z" fill="#c23b2e"/>' if looks["number"] % 2 else
                '<circle cx="64" cy="32" r="3.8" fill="#c9a94e"/>']
    if kind == "beanie":
        colour = ["#2f3a44", "#54603a", "#6b4a3a"][looks["number"] % 3]
        ribs = "".join(f'<path d="M{x} 33 V42" stroke="{shade(colour, 0.75)}" stroke-width="1.3"/>'
                       for x in range(42, 88, 4))
        return [f'<path d="M{left - 1.5} 40 C{left - 4} 8 {right + 4} 8 {right + 1.5} 40 Z" fill="{colour}"/>',
                f'<rect x="{left - 3}" y="32.6" width="{2 * w + 6}" height="10" rx="4" fill="{shade(colour, 1.14)}"/>',
                ribs]
    if kind == "sidecap":
        colour = ["#6e7350", "#4d5b6b"][looks["number"] % 2]
        return [f'<path d="M{left} 37 C{left + 4} 20 52 14 68 12 C80 16 {right - 1} 24 {right} 37 C80 30 50 31 '
                f'{left} 37 Z" '
                f'fill="{colour}"/>',
                f'<path d="M{left} 38 C50 31 80 30 {right} 38 L{right - 2} 29 C80 23 50 24 {left + 2} 30 Z" '
                f'fill="{shade(colour, 0.82)}"/>', '<circle cx="64" cy="28" r="2.6" fill="#c23b2e" stroke="#d8b65a"/>']
    if kind == "headset":
        return [f'<path d="M{left - 3} 54 C{left - 8} 8 {right + 8} 8 {right + 3} 54" stroke="#2b2f33" '
                'stroke-width="4" fill="none"/>',
                f'<rect x="{left - 8}" y="47" width="9" height="18" rx="4" fill="#2b2f33"/>',
                f'<rect x="{right - 1}" y="47" width="9" height="18" rx="4" fill="#2b2f33"/>',
                f'<path d="M{left - 3} 63 C{left - 1} 76 48 80 54 79" stroke="#2b2f33" stroke-width="2" fill="none"/>',
                '<circle cx="55" cy="79" r="2.6" fill="#2b2f33"/>']
    if kind == "band":
        colour = ["#7a2b26", "#3e4a2c", "#20252a"][looks["number"] % 3]
        return [f'<path d="M{left} 41 C50 34 78 34 {right} 41 L{right} 46 C78 39.6 50 39.6 {left} 46 Z" '
                f'fill="{colour}"/>',
                f'<path d="M{right - 1} 41 L{right + 8} 38 L{right + 6} 44 L{right + 10} 49 L{right} 46 Z" '
                f'fill="{shade(colour, 0.8)}"/>']
    if kind == "scarf":
        return [f'<path d="M{left - 2} 50 C{left - 7} 8 {right + 7} 8 {right + 2} 50 C{right - 4} 38 76 31 64 31 '
                f'C52 31 '
                f'{left + 4} 38 {left - 2} 50 Z" fill="#b5473c"/>',
                "".join(f'<circle cx="{x}" cy="{y}" r="1.7" fill="#f3e3c4"/>'
                        for x, y in [(48, 30), (56, 23), (64, 18), (64, 27), (72, 23), (80, 30), (43, 39), (85, 39)])]
    return []


def portrait(looks):
    """An SVG of the person."""
    rng = random.Random(looks["number"] + (1000 if looks["woman"] else 0))
    skin, w = looks["skin"], looks["wide"]
    light, deep = GROUNDS[(looks["number"] * 2 + looks["number"] // 5) % len(GROUNDS)]
    dark = shade(skin, 0.8)
    parts = ['<svg xmlns="http://www.w3.org/2000/svg" width="128" height="128" viewBox="7 7 114 114">',
             f'<defs><radialGradient id="ground" cx="0.5" cy="0.4" r="0.75"><stop offset="0" stop-color="{light}"/>'
             f'<stop offset="1" stop-color="{deep}"/></radialGradient></defs>',
             '<rect width="128" height="128" fill="url(#ground)"/>']
    parts += hair_behind(looks)
    neck = 9.5 if looks["woman"] else 12
    parts += [f'<path d="M{64 - neck} 74 V98 C{64 - neck} 108 {64 + neck} 108 {64 + neck} 98 V74 Z" fill="{dark}"/>']
    parts += clothes(looks, rng)
    parts += [f'<path d="M{64 - neck} 84 V99 C{60 - neck} 100 60 113 64 112 C68 113 {68 + neck} 100 {64 + neck} 99 '
              f'V84 Z" '
              f'fill="{dark}"/>']
    for side in (-1, 1):
        x = 64 + side * (w + 0.6)
        parts += [f'<ellipse cx="{x}" cy="57" rx="4.6" ry="7" fill="{skin}"/>',
                  f'<path d="M{x + side * 1.4} 53.4 C{x - side * 1} 55 {x - side * 1} 59 {x + side * 1.2} 60.6" '
                  f'stroke="{dark}" stroke-width="1.3" fill="none"/>']
    parts.append(f'<path d="{head_path(looks)}" fill="{skin}"/>')
    # Soft light from the left.
    parts.append(f'<clipPath id="head"><path d="{head_path(looks)}"/></clipPath><g clip-path="url(#head)">'
                 f'<path d="M{64 + w + 2} 20 V96 H66 C78 88 {64 + w - 5} 66 {64 + w - 5} 46 Z" fill="{dark}" '
                 'fill-opacity="0.5"/></g>')
    parts += beard(looks) if looks["beard"] in ("stubble", "beard", "sideburns") else []
    parts += features(looks, rng)
    parts += beard(looks) if looks["beard"] in ("moustache", "goatee") else []
    parts += extra(looks) if looks["extra"] in ("paint", "scar", "freckles", "plaster") else []
    parts += hair_front(looks)
    parts += headgear(looks, rng)
    parts += extra(looks) if looks["extra"] in ("glasses", "sunglasses") else []
    return "\n".join(parts) + "\n</svg>\n"


def own_face():
    """The face that a player brings: an outline that waits for a picture."""
    return """<svg xmlns="http://www.w3.org/2000/svg" width="128" height="128" viewBox="0 0 128 128">
<rect width="128" height="128" fill="#d9dde0"/>
<path d="M12 130 C14 106 40 104 52 98 V86 H76 V98 C88 104 114 106 116 130 Z" fill="#a9b3ba"/>
<path d="M40 50 C40 16 88 16 88 50 C88 70 78 90 64 90 C50 90 40 70 40 50 Z" fill="#b9c2c8"/>
<rect x="7" y="7" width="114" height="114" rx="8" fill="none" stroke="#3d6a8c" stroke-width="3" stroke-dasharray="9 7"/>
<circle cx="98" cy="98" r="19" fill="#3d6a8c"/>
<path d="M98 88 V108 M88 98 H108" stroke="#ffffff" stroke-width="5" stroke-linecap="round"/>
</svg>
"""


def portraits(catalogue):
    """Pairs of a face's code and its drawing, for the pairs (code, name) of the catalogue of faces."""
    men, women, drawn = 0, 0, []
    for code, name in catalogue:
        if code == "Custom":
            drawn.append((code, own_face()))
        elif "woman" in name:
            drawn.append((code, portrait(woman(women))))
            women += 1
        else:
            drawn.append((code, portrait(man(men))))
            men += 1
    return drawn
