"""Maps of places that are nowhere: coast, contours, forests, roads, villages and a grid, 480 units wide, 840 high.

The land is a field of heights, made of smooth noise and a shape that says where the sea is. All lines come from that
field by following its level lines; every map has its own seed, so it comes out the same at every run."""

import heapq
import math
import random

WIDTH, HEIGHT = 480, 840
STEP = 5
COLUMNS, ROWS = WIDTH // STEP, HEIGHT // STEP
MARGIN = 3  # cells beyond the frame, so that level lines close where nobody sees it

SUMMER = dict(sea="#bcd5e3", shallow="#cfe2ec", shore="#5f7f93", tints=["#eef0dc", "#e7e9cc", "#e3dfb9", "#dccfa2",
              "#d1bd8d", "#c6ab7b"], contour="#a5815a", forest="#b7cf9d", tree="#86a86e", grid="#6d8291")
DESERT = dict(sea="#c3dbe2", shallow="#d5e7ea", shore="#7d8f93", tints=["#f6ecd2", "#f1e2bd", "#ead5a6", "#e2c78f",
              "#d7b57b", "#caa36a"], contour="#b07c4c", forest="#cfd29b", tree="#a3a866", grid="#8b8272")
WINTER = dict(sea="#c4d3de", shallow="#d6e1e9", shore="#66798a", tints=["#fbfbf8", "#f4f5f3", "#eceef0", "#e2e6ea",
              "#d7dde3", "#cbd3db"], contour="#8f9aa8", forest="#c3d2c6", tree="#8fa795", grid="#8492a0")


def noise(rng, waves):
    """A smooth field over the map: values of a coarse grid, blended between its points. About -1 to 1."""
    high = math.ceil(waves * HEIGHT / WIDTH)
    points = [[rng.uniform(-1, 1) for _ in range(waves + 3)] for _ in range(high + 3)]

    def at(x, y):
        u, v = (x / WIDTH + 0.1) / 1.2 * waves, (y / WIDTH + 0.1) / 1.2 * waves
        u, v = min(max(u, 0), waves), min(max(v, 0), high)
        i, j = int(u), int(v)
        s, t = u - i, v - j
        s, t = s * s * (3 - 2 * s), t * t * (3 - 2 * t)
        top = points[j][i] * (1 - s) + points[j][i + 1] * s
        low = points[j + 1][i] * (1 - s) + points[j + 1][i + 1] * s
        return top * (1 - t) + low * t

    return at


def layered(rng, waves, layers=4):
    fields = [noise(rng, waves * 2 ** i) for i in range(layers)]
    return lambda x, y: sum(field(x, y) / 2 ** i for i, field in enumerate(fields))


def hill(cx, cy, radius, height):
    return lambda x, y: height * math.exp(-((x - cx) ** 2 + (y - cy) ** 2) / (radius * radius))


class Field:
    """Values at the corners of the cells, margin included."""

    def __init__(self, value):
        self.wide, self.high = COLUMNS + 2 * MARGIN + 1, ROWS + 2 * MARGIN + 1
        self.rows = [[value((i - MARGIN) * STEP, (j - MARGIN) * STEP) for i in range(self.wide)]
                     for j in range(self.high)]

    def at(self, x, y):
        i, j = x / STEP + MARGIN, y / STEP + MARGIN
        i, j = min(max(i, 0), self.wide - 1.001), min(max(j, 0), self.high - 1.001)
        a, b = int(i), int(j)
        s, t = i - a, j - b
        row, below = self.rows[b], self.rows[b + 1]
        return (row[a] * (1 - s) + row[a + 1] * s) * (1 - t) + (below[a] * (1 - s) + below[a + 1] * s) * t

    def slope(self, x, y):
        return math.hypot(self.at(x + STEP, y) - self.at(x - STEP, y), self.at(x, y + STEP) - self.at(x, y - STEP))

    def rings(self, level):
        """Closed lines around all that is above `level`. What lies at the border of the field counts as below it."""
        right, bottom = self.wide - 1, self.high - 1

        def value(i, j):
            return level - 1 if i in (0, right) or j in (0, bottom) else self.rows[j][i]

        def crossing(p, q):
            a, b = value(*p), value(*q)
            t = min(max((level - a) / (b - a), 0.02), 0.98)
            return ((p[0] + (q[0] - p[0]) * t - MARGIN) * STEP, (p[1] + (q[1] - p[1]) * t - MARGIN) * STEP)

        following, places = {}, {}
        for j in range(bottom):
            for i in range(right):
                corners = [(i, j), (i + 1, j), (i + 1, j + 1), (i, j + 1)]
                above = [value(*corner) >= level for corner in corners]
                # Walked clockwise: a segment runs from the side where land ends to the side where it began.
                enter = [k for k in range(4) if not above[k] and above[(k + 1) % 4]]
                leave = [k for k in range(4) if above[k] and not above[(k + 1) % 4]]
                if len(enter) == 2 and sum(value(*corner) for corner in corners) / 4 < level:
                    leave = [leave[1], leave[0]] if (enter[0] + 1) % 4 != leave[0] else leave
                elif len(enter) == 2:
                    leave = [leave[1], leave[0]] if (enter[0] + 1) % 4 == leave[0] else leave
                for out, into in zip(leave, enter):
                    keys = []
                    for k in (out, into):
                        side = tuple(sorted((corners[k], corners[(k + 1) % 4])))
                        places[side] = crossing(*side)
                        keys.append(side)
                    following[keys[0]] = keys[1]
        rings = []
        while following:
            start, side = following.popitem()
            ring = [places[start]]
            while side != start:
                ring.append(places[side])
                side = following.pop(side)
            rings.append(ring)
        return rings


def path_of(rings):
    return " ".join("M" + " L".join(f"{x:.1f} {y:.1f}" for x, y in ring) + " Z" for ring in rings if len(ring) > 5)


def smooth(line, turns=3):
    """Cuts the corners of an open line."""
    for _ in range(turns):
        cut = [line[0]]
        for (ax, ay), (bx, by) in zip(line, line[1:]):
            cut += [(ax * 0.75 + bx * 0.25, ay * 0.75 + by * 0.25), (ax * 0.25 + bx * 0.75, ay * 0.25 + by * 0.75)]
        line = cut + [line[-1]]
    return line


def open_path(line):
    return "M" + " L".join(f"{x:.1f} {y:.1f}" for x, y in line)


def road(land, start, goal, used):
    """The easiest way over land: around steep ground, along roads that are there. None when the sea is between."""
    def key(point):
        return round(point[0] / STEP), round(point[1] / STEP)

    first, last = key(start), key(goal)
    heap, best, origin = [(0.0, first)], {first: 0.0}, {}
    moves = [(a, b) for a in (-2, -1, 0, 1, 2) for b in (-2, -1, 0, 1, 2) if math.gcd(a, b) == 1]
    while heap:
        cost, here = heapq.heappop(heap)
        if here == last:
            line = [here]
            while here in origin:
                here = origin[here]
                line.append(here)
            return line[::-1]
        if cost > best[here]:
            continue
        height = land.at(here[0] * STEP, here[1] * STEP)
        for a, b in moves:
            there = (here[0] + a, here[1] + b)
            if not (0 <= there[0] <= COLUMNS and 0 <= there[1] <= ROWS):
                continue
            level = land.at(there[0] * STEP, there[1] * STEP)
            if level < 0.05:
                continue
            length = math.hypot(a, b)
            price = length * (1 + 14 * abs(level - height) / length + 0.5 * max(level - 0.9, 0))
            price *= 0.35 if there in used and here in used else 1
            if cost + price < best.get(there, math.inf):
                best[there] = cost + price
                origin[there] = here
                heapq.heappush(heap, (cost + price, there))
    return None


def villages(rng, land, count):
    """Places on low and flat land, far from each other."""
    places = []
    for apart in (105, 80, 60):
        for _ in range(600):
            if len(places) == count:
                return places
            x, y = rng.uniform(34, WIDTH - 34), rng.uniform(34, HEIGHT - 34)
            if 0.1 < land.at(x, y) < 0.75 and land.slope(x, y) < 0.16 and all(
                    math.hypot(x - a, y - b) > apart for a, b in places):
                places.append((x, y))
    return places


def houses(rng, land, place, roads):
    """Small black blocks along the roads of a village."""
    near = [(x, y, bx - ax, by - ay) for line in roads for (ax, ay), (bx, by) in zip(line, line[1:])
            for x, y in [((ax + bx) / 2, (ay + by) / 2)] if math.hypot(x - place[0], y - place[1]) < 24]
    blocks, taken = [], []
    for _ in range(160):
        if len(taken) >= 13 or not near:
            break
        x, y, dx, dy = rng.choice(near)
        angle = math.atan2(dy, dx)
        side = rng.choice((-1, 1)) * rng.uniform(6, 9.5)
        hx, hy = x - math.sin(angle) * side, y + math.cos(angle) * side
        if land.at(hx, hy) < 0.05 or any(math.hypot(hx - a, hy - b) < 7.5 for a, b in taken):
            continue
        if any(math.hypot(hx - a, hy - b) < 4.6 for line in roads for a, b in line):
            continue
        taken.append((hx, hy))
        w, h = rng.uniform(4, 6.5), rng.uniform(3.4, 4.6)
        blocks.append(f'<rect x="{hx - w / 2:.1f}" y="{hy - h / 2:.1f}" width="{w:.1f}" height="{h:.1f}" '
                      f'transform="rotate({math.degrees(angle):.0f} {hx:.1f} {hy:.1f})"/>')
    return blocks


def summits(land, count):
    """The highest points, far from each other and from the frame."""
    found = []
    points = sorted(((land.at(x, y), x, y) for x in range(36, WIDTH - 36, 5) for y in range(36, HEIGHT - 36, 5)),
                    reverse=True)
    for height, x, y in points:
        if len(found) == count or height < 0.7:
            break
        if all(math.hypot(x - a, y - b) > 110 for _, a, b in found):
            found.append((height, x, y))
    return found


def marks(plan, places, line):
    """What somebody drew on the map: a way to go, a target, own positions."""
    parts = []
    if "way" in plan and line:
        inner = line[len(line) // 8:]
        if len(inner) > 6:
            (ax, ay), (bx, by) = inner[-5], inner[-1]
            angle = math.degrees(math.atan2(by - ay, bx - ax))
            parts += [f'<path d="{open_path(inner[:-2])}" fill="none" stroke="#c8442f" stroke-width="4.5" '
                      'stroke-dasharray="13 8" stroke-linecap="round"/>',
                      f'<path d="M3 0 L-15 -9 L-15 9 Z" fill="#c8442f" transform="translate({bx:.1f} {by:.1f}) '
                      f'rotate({angle:.0f})"/>']
    if "target" in plan and places:
        x, y = places[-1]
        parts += [f'<circle cx="{x:.1f}" cy="{y:.1f}" r="30" fill="none" stroke="#c8442f" stroke-width="4"/>']
    if "flag" in plan and places:
        x, y = places[0]
        parts += [f'<g transform="translate({x:.1f} {y:.1f})"><path d="M0 0 V-30" stroke="#26435c" stroke-width="3.4" '
                  'stroke-linecap="round"/><path d="M1.5 -30 C8 -34 14 -26 22 -30 V-17 C14 -13 8 -21 1.5 -17 Z" '
                  'fill="#2f6fa8" stroke="#26435c"/></g>']
    if "base" in plan and len(places) > 1:
        x, y = places[1]
        parts += [f'<g transform="translate({x:.1f} {y - 24:.1f})" fill="#dbe8f2" fill-opacity="0.9" stroke="#26435c" '
                  'stroke-width="2.6"><rect x="-15" y="-10" width="30" height="20"/>'
                  '<path d="M-15 -10 L15 10 M-15 10 L15 -10"/></g>']
    return parts


def draw(seed, shape, look, places=5, relief=1.0, woods=0.25, plan=()):
    """One map. `shape` gives the lie of the land on a square of 480: above 0 is land, about 2 the highest hills."""
    rng = random.Random(seed)
    rough = layered(rng, 4)
    cover = layered(rng, 7, 3)
    swell = [hill(rng.uniform(60, WIDTH - 60), rng.uniform(60, HEIGHT - 60), rng.uniform(30, 75),
                  rng.uniform(0.25, 0.8)) for _ in range(12)]

    def height(x, y):
        base = shape(x, y * WIDTH / HEIGHT)
        ground = base + 0.32 * rough(x, y)
        if ground <= 0:
            return ground
        return ground * 0.75 + relief * min(ground * 1.6, 1) * (
            sum(bump(x, y) for bump in swell) + 0.22 * (rough(y, x) + 0.5))

    land = Field(height)
    parts = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
             f'viewBox="0 0 {WIDTH} {HEIGHT}"><rect width="{WIDTH}" height="{HEIGHT}" fill="{look["sea"]}"/>']

    coast = path_of(land.rings(0))
    for level, opacity in ((-0.34, 0.5), (-0.16, 0.6)):
        parts.append(f'<path d="{path_of(land.rings(level))}" fill="{look["shallow"]}" fill-opacity="{opacity}" '
                     'fill-rule="evenodd"/>')
    parts.append(f'<path d="{coast}" fill="{look["tints"][0]}" fill-rule="evenodd"/>')
    for i, tint in enumerate(look["tints"][1:], 1):
        parts.append(f'<path d="{path_of(land.rings(0.36 * i))}" fill="{tint}" fill-rule="evenodd"/>')

    def wooded(x, y):
        ground = land.at(x, y)
        return min(cover(x, y) - 1.0 + woods * 2.4, (ground - 0.1) * 4, (2.1 - ground) * 2)

    forest = Field(wooded)
    parts.append(f'<path d="{path_of(forest.rings(0))}" fill="{look["forest"]}" fill-rule="evenodd" '
                 f'stroke="{look["tree"]}" stroke-width="0.8"/>')
    trees = []
    for y in range(6, HEIGHT, 9):
        for x in range(6 + (y // 9 % 2) * 5, WIDTH, 10):
            tx, ty = x + rng.uniform(-2, 2), y + rng.uniform(-2, 2)
            if forest.at(tx, ty) > 0.1:
                trees.append(f'<circle cx="{tx:.1f}" cy="{ty:.1f}" r="1.7"/>')
    parts.append(f'<g fill="{look["tree"]}">{"".join(trees)}</g>')

    level, count = 0.12, 0
    while level < 3.2:
        count += 1
        bold = count % 5 == 0
        parts.append(f'<path d="{path_of(land.rings(level))}" fill="none" stroke="{look["contour"]}" '
                     f'stroke-opacity="{0.95 if bold else 0.6}" stroke-width="{1.5 if bold else 0.8}"/>')
        level += 0.12
    parts.append(f'<path d="{coast}" fill="none" stroke="{look["shore"]}" stroke-width="2"/>')

    towns = villages(rng, land, places * 3 // 2)
    used, roads = set(), []
    for i, town in enumerate(towns[1:], 1):
        nearest = sorted(towns[:i], key=lambda other: math.hypot(town[0] - other[0], town[1] - other[1]))
        for other in nearest[:1 + i % 2]:
            cells = road(land, town, other, used)
            if cells:
                used.update(cells)
                roads.append(smooth([(a * STEP, b * STEP) for a, b in cells]))
    for i, line in enumerate(roads):
        main = i % 3 != 1
        parts.append(f'<path d="{open_path(line)}" fill="none" stroke="#5a5348" stroke-width="{5 if main else 3.6}" '
                     'stroke-linecap="round" stroke-linejoin="round"/>')
    for i, line in enumerate(roads):
        main = i % 3 != 1
        parts.append(f'<path d="{open_path(line)}" fill="none" stroke="{"#f6d88a" if main else "#ffffff"}" '
                     f'stroke-width="{3 if main else 1.9}" stroke-linecap="round" stroke-linejoin="round"/>')
    parts.append('<g fill="#2d2a26">')
    for town in towns:
        parts += houses(rng, land, town, roads)
    parts.append("</g>")

    for top, x, y in summits(land, 6):
        parts += [f'<path d="M{x} {y - 4.6} L{x + 4.6} {y + 3.6} L{x - 4.6} {y + 3.6} Z" fill="#5a4630"/>',
                  f'<text x="{x + 8}" y="{y + 4}" font-family="DejaVu Sans, sans-serif" font-size="13" fill="#4a3a28">'
                  f'{round(top * 145)}</text>']

    lines = "".join([f"M{x} 0 V{HEIGHT} " for x in range(60, WIDTH, 60)] +
                    [f"M0 {y} H{WIDTH} " for y in range(60, HEIGHT, 60)])
    parts.append(f'<path d="{lines}" stroke="{look["grid"]}" stroke-width="0.8" stroke-opacity="0.65"/>')
    parts.append(f'<g font-family="DejaVu Sans, sans-serif" font-size="11" fill="{look["grid"]}">')
    parts += [f'<text x="{i * 60 + 30}" y="14" text-anchor="middle">{"ABCDEFGH"[i]}</text>' for i in range(8)]
    parts += [f'<text x="7" y="{i * 60 + 34}">{i + 1}</text>' for i in range(HEIGHT // 60)]
    parts.append("</g>")
    parts += marks(plan, towns, roads[-1] if roads else None)
    parts.append(f'<rect x="1.5" y="1.5" width="{WIDTH - 3}" height="{HEIGHT - 3}" fill="none" stroke="{look["grid"]}" '
                 'stroke-width="3"/>')
    return "\n".join(parts) + "\n</svg>\n"


def island(cx, cy, rx, ry, top=1.1):
    return lambda x, y: top - 1.5 * ((((x - cx) / rx) ** 2 + ((y - cy) / ry) ** 2) ** 0.8)


def any_of(*shapes):
    return lambda x, y: max(shape(x, y) for shape in shapes)


def slanted(angle, at, rise=190):
    """Land on one side of a straight shore, rising inland."""
    dx, dy = math.cos(math.radians(angle)), math.sin(math.radians(angle))
    return lambda x, y: min(((x - 240) * dx + (y - 240) * dy + at) / rise, 1.15)


def inland(base):
    return lambda x, y: base


def valley(x, y):
    """High ground on both sides of a way from corner to corner."""
    return 0.42 + abs((x - y) * 0.75 + 26 * math.sin(x / 70)) / 250


def lake(x, y):
    return min(0.95, (math.hypot((x - 270) / 1.5, y - 215) - 72) / 110)


def bay(x, y):
    return min(1.1, (math.hypot(x - 250, (y - 30) / 1.25) - 165) / 150)


def strait(x, y):
    return min(1.1, (abs((x - 240) + 0.55 * (y - 240) + 45 * math.sin(y / 75)) - 62) / 130)


def peninsula(x, y):
    return min(1.0, 0.75 - abs(y - 250 - 0.18 * (x - 100)) / 120 - max(x - 330, 0) / 130 + max(90 - x, 0) / 160)


def maps():
    """Pairs of a file's name and its drawing."""
    return [
        ("archipelago", draw(11, any_of(island(130, 140, 120, 100), island(340, 110, 95, 80), island(260, 340, 150, 95),
                                        island(70, 380, 60, 60, 0.8)), SUMMER, places=6, plan=("flag",))),
        ("bay", draw(23, bay, SUMMER, places=6, woods=0.3, plan=("target",))),
        ("coast", draw(31, slanted(100, 90), SUMMER, places=5, woods=0.32, plan=("way",))),
        ("desert", draw(47, island(240, 240, 220, 190, 1.2), DESERT, places=4, woods=0.08, relief=1.2,
                        plan=("flag", "target"))),
        ("highland", draw(53, inland(1.05), SUMMER, places=4, woods=0.34, relief=1.7, plan=("base",))),
        ("hills", draw(61, inland(0.55), SUMMER, places=6, woods=0.27, relief=1.2, plan=("way", "flag"))),
        ("island", draw(71, island(245, 235, 235, 205, 1.25), SUMMER, places=6, plan=("way",))),
        ("lake", draw(83, lake, SUMMER, places=5, woods=0.36, plan=("target",))),
        ("peninsula", draw(97, peninsula, SUMMER, places=5, plan=("flag", "base"))),
        ("strait", draw(101, strait, SUMMER, places=6, woods=0.22, plan=("target", "flag"))),
        ("valley", draw(113, valley, SUMMER, places=5, woods=0.3, relief=1.3, plan=("way", "target"))),
        ("winter", draw(127, slanted(200, 120), WINTER, places=5, woods=0.33, relief=1.2, plan=("base",))),
    ]
