#!/usr/bin/env python3
"""Writes the golden tables of this folder. Nothing of the program is used.

Geodesics come from GeodSolve (Debian package geographiclib-tools, which is not needed to run the tests), rhumb
lines from the closed formulas of the sphere, with the northing as asinh(tan(latitude)).
"""

import math
import pathlib
import random
import subprocess

FOLDER = pathlib.Path(__file__).parent


def geod_solve(rows, *options):
    text = "\n".join(" ".join(f"{x:.12f}" for x in row) for row in rows)
    done = subprocess.run(["GeodSolve", "-p", "9", *options], input=text, capture_output=True, text=True, check=True)
    return [[float(x) for x in line.split()] for line in done.stdout.splitlines()]


def write(name, header, rows):
    lines = ["# " + header] + [" ".join(f"{x:.12f}" for x in row) for row in rows]
    (FOLDER / name).write_text("\n".join(lines) + "\n")


def wrapped(lon):
    return (lon + 180) % 360 - 180


def starts(rng, lons=(-180, 180), lats=(-89, 89)):
    return rng.uniform(*lats), rng.uniform(*lons)


def scattered_pairs(rng):
    """Pairs of positions at all ranges up to near the antipode, in all directions."""
    steps = []
    for low_m, high_m, count in ((1, 1e3, 60), (1e3, 5e5, 120), (5e5, 5e6, 120), (5e6, 9.9e6, 60), (1.01e7, 1.75e7, 60)):
        steps += [(*starts(rng), rng.uniform(0, 360), rng.uniform(low_m, high_m)) for _ in range(count)]
    ends = geod_solve(steps)
    return [(s[0], s[1], e[0], wrapped(e[1])) for s, e in zip(steps, ends)]


def special_pairs(rng):
    pairs = []
    for lon in (-170, -20, 0, 40, 175):
        for change in (0.001, 1, 30, 80):
            for signed in (change, -change):
                pairs.append((0, lon, 0, wrapped(lon + signed)))  # along the equator, date line included
                pairs.append((-3, lon, -3 + signed, lon))  # along a meridian
    for lat in (-70, -10, 0.5, 55):
        for change in (0.001, 0.3, 20):
            pairs.append((lat, 180 - change / 3, lat + change / 5, -180 + change / 2))
            pairs.append((lat, -180 + change / 3, lat - change / 5, 180 - change / 2))
    for pole in (90, -90):
        for lon in (-150, 0, 77):
            pairs.append((pole, lon, pole * 0.8, lon + 33))  # from a pole
            pairs.append((pole * 0.8, lon, pole, lon + 33))  # to a pole
            pairs.append((pole * 0.9, lon, pole * 0.95, wrapped(lon + 179)))  # past a pole
    return pairs


def ellipsoid_inverse(rng):
    pairs = scattered_pairs(rng) + special_pairs(rng)
    solved = geod_solve(pairs, "-i")
    write("ellipsoid_inverse.txt", "lat1 lon1 lat2 lon2 (degrees) distance (m) azimuth (degrees)",
          [(*p, s[2], s[0] % 360) for p, s in zip(pairs, solved)])


def ellipsoid_direct(rng):
    steps = []
    for lat in range(-88, 89, 8):
        for azimuth in range(0, 360, 30):
            steps.append((lat + rng.random(), rng.uniform(-180, 180), azimuth, 10 ** rng.uniform(-1, 5)))
    for lon in (179.9999, -179.9999):
        steps += [(rng.uniform(-60, 60), lon, azimuth, 5e4) for azimuth in (45, 90, 135, 225, 270, 315)]
    steps += [(0, 10, azimuth, 1e5) for azimuth in range(0, 360, 45)]
    steps += [(-0.2, 10, azimuth, 1e5) for azimuth in (0, 20, 330)]
    write("ellipsoid_direct.txt", "lat lon azimuth (degrees) distance (m) new lat, new lon (degrees)",
          [(*s, e[0], wrapped(e[1])) for s, e in zip(steps, geod_solve(steps))])


def northing(lat):
    return math.asinh(math.tan(lat))


def rhumb_lines(rng):
    """Columns of the end and of the course; latitudes stay so that the course is never within 0.5 deg of east."""
    rows = []
    for _ in range(400):
        lat, lon = starts(rng, lats=(-84, 84))
        course = rng.choice((0, 90, 180, 270)) + rng.uniform(-89, 89) * rng.choice((1, 0.01))
        if abs(math.cos(math.radians(course))) < 0.01:
            course += 10
        distance = 10 ** rng.uniform(0.5, 2.8)
        new_lat = lat + distance / 60 * math.cos(math.radians(course))
        if abs(new_lat) > 86:
            continue
        change = (northing(math.radians(new_lat)) - northing(math.radians(lat))) * math.tan(math.radians(course))
        rows.append((lat, lon, distance, course % 360, new_lat, wrapped(lon + math.degrees(change))))
    write("rhumb.txt", "lat lon (degrees) distance (nautical miles) course, new lat, new lon (degrees)", rows)


if __name__ == "__main__":
    RNG = random.Random(7)
    ellipsoid_inverse(RNG)
    ellipsoid_direct(RNG)
    rhumb_lines(RNG)
