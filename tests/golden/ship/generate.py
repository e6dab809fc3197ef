#!/usr/bin/env python3
"""Writes motion.txt: voyages of the ship, second by second. Nothing of the program is used.

Columns: what is set (start latitude, longitude, heading; throttle in percent, ahead negative; rate of turn in
tenths of deg/min; limits ahead, astern, rate; list index of the noise of speed and rate; seconds; offsets of
gyro 1 in degrees, log 1 in knots, position 2 in metres north and east), then what comes of it: latitude,
longitude, heading, course; GNSS speed; gyro rate; position 2; gyro 1; log 1; set, drift. The noise is drawn from
the 64-bit Mersenne twister with seed 0, afresh for each row."""

import math
import pathlib
import struct

PI = 3.14159265358979
RAD = 0.017453292519943278
DEG = 57.29577951308238


def f32(x):
    return struct.unpack("f", struct.pack("f", x))[0]


class Twister:
    """mt19937-64 after its authors' description."""

    def __init__(self, seed):
        self.mt = [seed]
        for i in range(1, 312):
            last = self.mt[-1]
            self.mt.append((6364136223846793005 * (last ^ (last >> 62)) + i) % 2**64)
        self.place = 312

    def twist(self):
        for i in range(312):
            x = (self.mt[i] & 0xFFFFFFFF80000000) | (self.mt[(i + 1) % 312] & 0x7FFFFFFF)
            self.mt[i] = self.mt[(i + 156) % 312] ^ (x >> 1) ^ (0xB5026F5AA96619E9 if x & 1 else 0)
        self.place = 0

    def draw(self):
        if self.place == 312:
            self.twist()
        x = self.mt[self.place]
        self.place += 1
        x ^= (x >> 29) & 0x5555555555555555
        x ^= (x << 17) & 0x71D67FFFEDA60000
        x ^= (x << 37) & 0xFFF7EEE000000000
        x ^= x >> 43
        return (x >> 11) / 2**53


def circle(angle):
    angle = math.fmod(angle, 360)
    return angle + 360 if angle < 0 else angle


def step_position(lat, lon, course, miles):
    """Along the rhumb line on the sphere; nowhere when that would pass a pole."""
    d = miles / 60 * RAD
    dlat = d * math.cos(course * RAD)
    end = lat * RAD + dlat
    if abs(end) > PI / 2 or d == 0:
        return lat, lon
    if abs(dlat) < 1e-5:
        dlon = d * math.sin(course * RAD) / math.cos(end)
    else:
        dlon = (math.asinh(math.tan(end)) - math.asinh(math.tan(lat * RAD))) * math.tan(course * RAD)
    new = lon * RAD + dlon
    return end * DEG, math.remainder(new * DEG, 360)


def set_drift(sog, cog, log, gyro):
    if f32(cog) == f32(gyro):
        gain = sog - log
        return (0 if gain == 0 else gyro if gain > 0 else circle(gyro + 180)), abs(gain)
    apart = math.remainder(cog - gyro, 360)
    clockwise = apart > 0
    across = math.radians(abs(apart))
    c = math.sqrt(max(sog * sog + log * log - 2 * sog * log * math.cos(across), 0))
    if c == 0:
        return 0, None
    a = math.degrees(math.asin(max(-1, min(1, math.sin(across) / c * (sog if clockwise else log)))))
    if clockwise:
        return circle(gyro + (a if sog >= log else 180 - a)), c
    return circle(cog + (a + 180 if sog < log else -a)), c


def voyage(lat, lon, hdg, throttle, rudder, ahead, astern, limit, sog_noise, rot_noise, seconds, gyro_off, log_off,
           north, east):
    draws = Twister(0)
    limit_tenths = limit * 10
    rudder = max(-limit_tenths, min(limit_tenths, rudder))
    set_rot = f32(rudder / 10)
    set_sog = f32((ahead if throttle < 0 else astern) * -throttle / 100)
    drift = 0
    for _ in range(seconds):
        rot, sog = set_rot, set_sog
        if rot_noise:
            rot = f32(set_rot + (2 * draws.draw() - 1) * f32(rot_noise / 10))
        if sog_noise:
            sog = f32(set_sog + (2 * draws.draw() - 1) * f32(sog_noise / 10))
        if sog >= 0:
            hdg = circle(hdg + rot / 60)
            cog = hdg
        else:
            hdg = circle(hdg - rot / 60)
            cog = circle(hdg + 180)
        lat, lon = step_position(lat, lon, cog, abs(sog) / 3600)
        log = f32(set_sog + f32(log_off))
        gyro = f32(circle(hdg + f32(gyro_off)))
        current, new_drift = set_drift(set_sog, cog, log, gyro)
        drift = drift if new_drift is None else new_drift
    lat_2 = lat + north / 1852 / 60
    lon_2 = lon + east / 1852 / 60 / math.cos(lat * RAD)
    return lat, lon, hdg, cog, sog, rot, lat_2, lon_2, gyro, log, current, drift


PLACES = [(62.5916666667, 6.1666666667), (-33.9, 151.3), (0.0001, -0.0001), (71.25, -179.99), (-54.8, 179.995)]
SETTINGS = [  # throttle, rudder, ahead, astern, limit, noise of speed and rate, seconds, offsets
    (-30, 0, 40, 5, 30, 0, 0, 1800, 0, 0, 0, 0),
    (-30, 200, 40, 5, 30, 0, 0, 700, 0, 1, 12.5, -3),
    (-100, -35, 25, 5, 60, 0, 0, 1200, 2.5, 0, -40, 25),
    (50, 60, 40, 5, 30, 0, 0, 900, 3, 0, 0, 0),
    (100, -3600, 40, 20, 360, 0, 0, 333, -1.5, -0.5, 5, 5),
    (0, 145, 40, 5, 30, 0, 0, 400, 0, 2, 0, 100),
    (-75, -10, 40, 5, 30, 10, 0, 600, 0, 0, 0, 0),
    (-1, 10, 40, 5, 30, 0, 10, 600, 1, 0, 0, 0),
    (-2, 25, 40, 5, 30, 10, 5, 900, -30, 0.3, 3, 4),
    (-60, 300, 40, 5, 30, 3, 7, 450, 350, -1.2, 0, 0),
    (-100, 0, 100, 5, 30, 0, 0, 300, 20, 3, 0, 0),
]

with open(pathlib.Path(__file__).parent / "motion.txt", "w", encoding="ascii") as file:
    file.write("# made by generate.py, which tells the columns\n")
    for number, (lat, lon) in enumerate(PLACES):
        for which, (throttle, rudder, *rest) in enumerate(SETTINGS):
            given = (lat, lon, (number * 77 + which * 53) % 360, throttle, rudder, *rest)
            file.write(" ".join(f"{x:.12g}" for x in given + voyage(*given)) + "\n")
