#!/usr/bin/env python3
"""Writes the golden rows beside this script: python3 tests/golden/sentences/generate.py

An implementation of the sentences of its own, on exact decimal arithmetic, that shares nothing with the program. A row
is the row's name, the inputs as key=value and the expected text, separated by tabs. Every random draw comes from a
fixed seed, so a second run writes the same bytes.
"""

import datetime
import math
import pathlib
import random

from sensor_kinds import PROPRIETARY, SENSOR_KINDS
from wire_text import EMPTY, Float, field, frame, pattern

HERE = pathlib.Path(__file__).parent


def moment(text):
    return datetime.datetime.fromisoformat(text)


def offset_s(row, instance):
    if instance == 2:
        return row["GNSS2_UTC_Offset_Hours"] * 60 + row["GNSS2_UTC_Offset_Seconds"]
    return row["UTC_Offset_Hours"] * 60


def time_field(row, apply_offset, instance=None):
    now = row["Clock"]
    instance = row["Instance"] if instance is None else instance
    shown = now + datetime.timedelta(seconds=offset_s(row, instance) if apply_offset else 0)
    text = shown.strftime("%H%M%S")
    if row["Decimals_Time"] in (1, 2, 3):
        midnight = now.replace(hour=0, minute=0, second=0, microsecond=0)
        day_s = Float((now - midnight) / datetime.timedelta(seconds=1))
        text += pattern(Float(day_s - math.floor(day_s)), "#." + "0" * row["Decimals_Time"])
    return text


def position(row):
    decimals = row["Decimals_Position"]
    if decimals not in (3, 4, 5, 6):
        return []
    fields = []
    for degrees, width, letters in ((row["Lat"], "00", "NS"), (row["Lon"], "000", "EW")):
        whole = math.floor(abs(degrees))
        minutes = (abs(degrees) - whole) * 60
        limit = float("59." + "9" * decimals)
        if minutes > 59.999:
            minutes = min(minutes, limit)
        fields += [pattern(whole, width) + pattern(minutes, "00." + "0" * decimals), letters[degrees < 0]]
    return fields


def gga(r):
    return [time_field(r, r["Use_UTC"]), *position(r), field(r["Quality"], "0"), field(r["Sats"], "0"),
            field(r["HDOP"], "0.0"), field(r["Alt"], "0.0"), "M", field(r["Geoid_Sep"], "0.0"), "M",
            field(r["Age"], "0.0"), field(r["Station_ID"], "0000")]


def gll(r):
    return [*position(r), time_field(r, r["Use_UTC"]), r["Status"], r["Mode"]]


def rmc(r):
    return [time_field(r, r["Use_UTC"]), r["Status"], *position(r), field(r["SOG"], "0.0"), field(r["COG"], "000.0"),
            r["Clock"].strftime("%d%m%y"), field(r["Mag_Var"], "000.0"), r["Mag_Dir"], r["Mode"], r["Nav_Status"]]


def gns(r):
    return [time_field(r, r["Use_UTC"]), *position(r), r["Mode"], field(r["Sats"], "0"), field(r["HDOP"], "0.0"),
            field(r["Alt"], "0.0"), field(r["Geoid_Sep"], "0.0"), field(r["Age"], "0.0"), field(r["Station_ID"], ""),
            r["Status"]]


def vtg(r):
    return [field(r["COG_True"], "000.0#"), "T", field(r["COG_Magnetic"], "000.0#"), "M",
            field(r["SOG_Knots"], "0.0#"), "N", field(r["SOG_Kmh"], "000.0#"), "K", r["Mode"]]


def zda(r):
    instance = 1 if r["Instance"] == 1 else 2
    minutes = r["UTC_Offset_Hours"] if instance == 1 else r["GNSS2_UTC_Offset_Hours"]
    date = r["Clock"] + datetime.timedelta(minutes=minutes)
    zone = r["UTC_Offset_Minutes"] if instance == 1 else r["GNSS2_UTC_Offset_Minutes"]
    return [time_field(r, True, instance), date.strftime("%d"), date.strftime("%m"), f"{date.year:04}",
            field(int(r["UTC_Offset_Hours"] / 60), "00"), field(zone, "00")]


def dtm(r):
    return [r["Local_Datum"], r["Sub_Division"], field(r["Lat_Offset"], ""), r["Lat_Dir"],
            field(r["Lon_Offset"], ""), r["Lon_Dir"], field(r["Alt_Offset"], ""), r["Ref_Datum"]]


def gsa(r):
    return [r["Mode"], field(r["Fix"], "0"), *["" if n == 0 else field(n, "0") for n in r["PRN"]],
            field(r["PDOP"], "0.0"), field(r["HDOP"], "0.0"), field(r["VDOP"], "0.0")]


def gsv(r):
    fields = [field(r[key], "0") for key in ("Total", "Number", "In_View")]
    for i in range(4):
        used = r["PRN"][i] != 0
        fields += [field(r[key][i], "0") if used else "" for key in ("PRN", "Elevation", "Azimuth", "SNR")]
    return fields


def gst(r):
    return [time_field(r, r["Use_UTC"]), field(r["RMS"], "0.00"), field(r["Semi_Major"], "0.00"),
            field(r["Semi_Minor"], "0.00"), field(r["Orientation"], "000"), field(r["Sd_Lat"], "0.00"),
            field(r["Sd_Lon"], "0.00"), field(r["Sd_Alt"], "0.00")]


TIME = dict(Clock=moment("2026-03-14T10:15:00.402"), Use_UTC=False, UTC_Offset_Hours=0, UTC_Offset_Minutes=0,
            GNSS2_UTC_Offset_Hours=0, GNSS2_UTC_Offset_Minutes=0, GNSS2_UTC_Offset_Seconds=0, Decimals_Time=0,
            Instance=1)
PLACE = dict(Decimals_Position=4, Lat=62 + 35.5 / 60, Lon=6 + 10 / 60)
MIDNIGHT = dict(Clock=moment("2024-02-29T23:30:05.960"), UTC_Offset_Hours=60, GNSS2_UTC_Offset_Hours=-1441,
                GNSS2_UTC_Offset_Seconds=-30, GNSS2_UTC_Offset_Minutes=1, UTC_Offset_Minutes=0)
TIME_EDGES = {
    "two decimals": dict(Decimals_Time=2),
    "three decimals": dict(Decimals_Time=3),
    "four decimals append nothing": dict(Decimals_Time=4),
    "fraction rounds up to a whole second": dict(Decimals_Time=1, Clock=moment("2026-03-14T12:34:56.960")),
    "fraction in steps of 1/128 s": dict(Decimals_Time=3, Clock=moment("2026-03-14T22:00:00.010")),
    "offset wraps midnight": dict(Use_UTC=True, **MIDNIGHT),
    "offset not used": dict(Use_UTC=False, **MIDNIGHT),
    "offset of GNSS 2": dict(Use_UTC=True, Instance=2, **MIDNIGHT),
    "another instance has the offset of GNSS 1": dict(Use_UTC=True, Instance=3, **MIDNIGHT),
}
PLACE_EDGES = {
    "limit of the minutes": dict(Decimals_Position=3, Lat=59 + 59.9996 / 60, Lon=-(179 + 59.9999 / 60)),
    "south and west": dict(Lat=-0.5, Lon=-0.5),
    "equator": dict(Lat=0.0, Lon=0.0),
    "negative zero is north and east": dict(Lat=-0.0, Lon=-0.0),
    "six decimals at the end": dict(Decimals_Position=6, Lat=89.999999999, Lon=179.99999999),
    "five decimals at the end": dict(Decimals_Position=5, Lat=-89.9999999, Lon=-0.9999999),
    "more degrees than places": dict(Lat=123.25, Lon=-1234.75),
    "two decimals leave out the position": dict(Decimals_Position=2),
    "seven decimals leave out the position": dict(Decimals_Position=7),
}
F = Float
KINDS = {
    "gga": (gga, TIME | PLACE | dict(Quality=1, Sats=8, HDOP=F(1.4), Alt=F(0), Geoid_Sep=F(0), Age=F(5),
                                     Station_ID=100),
            TIME_EDGES | PLACE_EDGES | {
                "no fix": dict(Quality=0, Age=F(0)),
                "signs and ties": dict(Alt=F(-0.04), Geoid_Sep=F(-5.25), HDOP=F(0.95), Age=F(123.45)),
                "many digits": dict(Sats=63, Station_ID=123456, Alt=F(12345.678)),
                "all empty": dict(Quality=EMPTY, Sats=EMPTY, HDOP=F(EMPTY), Alt=F(EMPTY), Geoid_Sep=F(EMPTY),
                                  Age=F(EMPTY), Station_ID=EMPTY),
                "beside the marker": dict(Alt=F(-9999.5), Geoid_Sep=F(-9998))}),
    "gll": (gll, TIME | PLACE | dict(Status="A", Mode="A"),
            TIME_EDGES | PLACE_EDGES | {"invalid": dict(Status="V", Mode="N")}),
    "rmc": (rmc, TIME | PLACE | dict(Status="A", SOG=F(12.3), COG=F(45.6), Mag_Var=F(2.5), Mag_Dir="W", Mode="D",
                                     Nav_Status="S"),
            TIME_EDGES | PLACE_EDGES | {
                "one decimal of the course": dict(COG=F(123.45), SOG=F(0.25)),
                "invalid keeps its values": dict(Status="V"),
                "course is not wrapped": dict(COG=F(359.96)),
                "all empty": dict(SOG=F(EMPTY), COG=F(EMPTY), Mag_Var=F(EMPTY))}),
    "gns": (gns, TIME | PLACE | dict(Mode="AAN", Sats=8, HDOP=F(1.4), Alt=F(3.25), Geoid_Sep=F(-1.5), Age=F(5),
                                     Station_ID=100, Status="S"),
            TIME_EDGES | PLACE_EDGES | {
                "station 0": dict(Station_ID=0), "no mode": dict(Mode=""),
                "all empty": dict(Sats=EMPTY, HDOP=F(EMPTY), Alt=F(EMPTY), Geoid_Sep=F(EMPTY), Age=F(EMPTY),
                                  Station_ID=EMPTY)}),
    "vtg": (vtg, dict(COG_True=F(45.6), COG_Magnetic=F(43.25), SOG_Knots=F(12.3), SOG_Kmh=F(22.7796), Mode="A"),
            {"speed 0": dict(SOG_Knots=F(0), SOG_Kmh=F(0)), "two decimals": dict(COG_True=F(123.45)),
             "ties": dict(COG_True=F(0.005), COG_Magnetic=F(1.005), SOG_Knots=F(0.995), SOG_Kmh=F(99.995)),
             "all empty": dict(COG_True=F(EMPTY), COG_Magnetic=F(EMPTY), SOG_Knots=F(EMPTY), SOG_Kmh=F(EMPTY))}),
    "zda": (zda, TIME,
            TIME_EDGES | {
                "GNSS 2 shows the zone hours of GNSS 1": dict(MIDNIGHT, Instance=2),
                "the date takes no seconds": dict(Clock=moment("2025-12-31T23:59:50"), Instance=2,
                                                  GNSS2_UTC_Offset_Seconds=30),
                "negative zone": dict(UTC_Offset_Hours=-150, UTC_Offset_Minutes=30),
                "half an hour back": dict(UTC_Offset_Hours=-30, UTC_Offset_Minutes=30),
                "year end": dict(Clock=moment("2025-12-31T22:30:00"), UTC_Offset_Hours=90, UTC_Offset_Minutes=30),
                "empty minutes": dict(UTC_Offset_Minutes=EMPTY)}),
    "dtm": (dtm, dict(Local_Datum="W84", Sub_Division=" ", Lat_Offset=F(0), Lat_Dir="N", Lon_Offset=F(0),
                      Lon_Dir="E", Alt_Offset=F(0), Ref_Datum="W84"),
            {"offsets": dict(Local_Datum="E50", Lat_Offset=F(1.5), Lat_Dir="S", Lon_Offset=F(0.0375), Lon_Dir="W",
                             Alt_Offset=F(-12.25), Ref_Datum="P90"),
             "seven digits": dict(Lat_Offset=F(1 / 3), Lon_Offset=F(123.456789), Alt_Offset=F(-1234567.9)),
             "far values stay plain": dict(Lat_Offset=F(1e-9), Lon_Offset=F(1e20), Alt_Offset=F(-3.4e38)),
             "all empty": dict(Lat_Offset=F(EMPTY), Lon_Offset=F(EMPTY), Alt_Offset=F(EMPTY))}),
    "gsa": (gsa, dict(Mode="A", Fix=3, PRN=[3, 6, 8, 12, 19, 24, 25, 32, 0, 0, 0, 0], PDOP=F(1.4), HDOP=F(1),
                      VDOP=F(2.25)),
            {"no satellite": dict(Mode="M", Fix=1, PRN=[0] * 12),
             "all twelve": dict(PRN=[7, 120, 1, 2, 3, 4, 5, 9, 10, 11, 65, 158]),
             "gaps": dict(PRN=[0, 7, 0, 0, 120, 0, 0, 0, 0, 0, 0, 99]),
             "all empty": dict(Fix=EMPTY, PRN=[EMPTY] * 12, PDOP=F(EMPTY), HDOP=F(EMPTY), VDOP=F(EMPTY))}),
    "gsv": (gsv, dict(Total=3, Number=1, In_View=11, PRN=[3, 6, 8, 120], Elevation=[5, 45, 90, 31],
                      Azimuth=[0, 7, 123, 359], SNR=[0, 45, 99, 38]),
            {"last of a series": dict(Number=3, PRN=[7, 12, 25, 0], SNR=[0, 0, 0, 40]),
             "no satellite": dict(PRN=[0] * 4), "a gap": dict(PRN=[1, 0, 0, 32]),
             "all empty": dict(Total=EMPTY, Number=EMPTY, In_View=EMPTY, PRN=[EMPTY] * 4, Elevation=[EMPTY] * 4,
                               Azimuth=[EMPTY] * 4, SNR=[EMPTY] * 4)}),
    "gst": (gst, TIME | dict(RMS=F(1.25), Semi_Major=F(0.8), Semi_Minor=F(0.445), Orientation=5, Sd_Lat=F(2.005),
                             Sd_Lon=F(0), Sd_Alt=F(10)),
            TIME_EDGES | {"widest": dict(Orientation=359, RMS=F(1234.567)),
                          "all empty": dict(RMS=F(EMPTY), Semi_Major=F(EMPTY), Semi_Minor=F(EMPTY),
                                            Orientation=EMPTY, Sd_Lat=F(EMPTY), Sd_Lon=F(EMPTY),
                                            Sd_Alt=F(EMPTY))}),
}
KINDS |= SENSOR_KINDS
COMMON_EDGES = {"ordinary": {}, "no checksum": dict(No_Checksum=True), "another talker": dict(Talker="1A")}

RANGES = dict(Decimals_Position=(3, 6), Decimals_Time=(0, 3), Instance=(0, 3), Decimals=(-1, 4), Log=(1, 2),
              Log_VLW_Seconds=(1, 5))


def random_value(draw, key, value):
    """A usual value of the kind of Value; texts stay as they are."""
    if key == "Clock":
        return moment("2000-01-01") + datetime.timedelta(microseconds=draw.randrange(40 * 365 * 86_400_000_000))
    if key in RANGES:
        return draw.randint(*RANGES[key])
    if key in ("Lat", "Lon"):
        return draw.uniform(-90, 90) * (1 if key == "Lat" else 2)
    if isinstance(value, bool):
        return draw.random() < 0.5
    if isinstance(value, Float):
        return Float(round(draw.uniform(-20, 360), draw.randint(0, 6)))
    if isinstance(value, int):
        return draw.randint(-720, 720) if "Offset" in key else draw.randint(0, 359)
    if isinstance(value, list):
        return [draw.choice([0, draw.randint(1, 158)]) for _ in value]
    return value


def written(value):
    if isinstance(value, datetime.datetime):
        return str((value - moment("1970-01-01")) // datetime.timedelta(microseconds=1))
    if isinstance(value, bool):
        return str(int(value))
    if isinstance(value, list):
        return " ".join(map(str, value))
    return value if isinstance(value, str) else repr(value)


def write_rows(name, rows):
    text = "".join("\t".join([title, *[f"{key}={written(v)}" for key, v in inputs.items()], expected]) + "\n"
                   for title, inputs, expected in rows)
    (HERE / f"{name}.txt").write_text(text, encoding="ascii", newline="\n")


def sentence_rows(name):
    compose, usual, edges = KINDS[name]
    usual = dict(Talker="GP", No_Checksum=False) | usual
    draw = random.Random(name)
    cases = [(title, usual | change) for title, change in (COMMON_EDGES | edges).items()]
    for number in range(1, (400 if name == "gll" else 60) + 1):
        inputs = {key: v if key in ("Talker", "No_Checksum") else random_value(draw, key, v)
                  for key, v in usual.items()}
        cases.append((f"random {number}", inputs))
    for title, inputs in cases:
        address = PROPRIETARY.get(name, inputs["Talker"] + name.upper())
        yield title, inputs, frame(address, compose(inputs), inputs["No_Checksum"])


def pattern_rows():
    pictures = ["0", "00", "000", "0000", "000000000", "0.0", "0.00", "0.000", "0.0000", "00.0", "000.0", "000.00",
                "000.000", "00.000", "00.0000", "00.00000", "00.000000", "0.0#", "000.0#", "#.0", "#.00", "#.000", "#",
                "", "0.0 m", "000 deg", "0.0000'", "00:", "0.####", "#0.0#", "0.00000000"]
    draw = random.Random("patterns")

    def value(kind):
        if kind is int:
            return draw.choice([draw.randint(-10000, 10000), draw.randint(-2**31, 2**31 - 1)])
        shape = draw.randrange(4)
        if shape == 0:
            number = draw.uniform(-400, 400)
        elif shape == 1:  # a tie of one of the decimals
            number = round(draw.randint(-40000, 40000) + 0.5, 1) / 10 ** draw.randint(0, 6)
        elif shape == 2:
            number = round(draw.uniform(0, 1000), draw.randint(0, 4))
        else:
            number = draw.choice([-1, 1]) * 10 ** draw.uniform(-30, 30)
        return kind(number)

    for number in range(5000):
        kind = draw.choice([Float, float, int])
        drawn = value(kind)
        picture = draw.choice(pictures)
        yield f"random {number}", dict(Kind=kind.__name__, Value=drawn, Picture=picture), pattern(drawn, picture)


if __name__ == "__main__":
    for kind in KINDS:
        write_rows(kind, sentence_rows(kind))
    write_rows("patterns", pattern_rows())
