"""Virtual time: runs that can be repeated byte by byte, recordings, rates, and the motion of a sensor."""

import codecs
import datetime
import json
import math
import re
import unittest

from harness import Setup, TestCase, degrees, fields, is_valid, of_type

START = datetime.datetime(2026, 1, 1)


def read_recording(data):
    """(seconds after START, port, text) for each line."""
    found = []
    for line in data.decode("ascii").splitlines():
        time, port, text = re.fullmatch(r"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{6}) (\d+) ([ -~]*)", line).groups()
        after = datetime.datetime.fromisoformat(time) - START
        found.append((after.total_seconds(), int(port), codecs.decode(text, "unicode_escape")))
    return found


class VirtualTime(TestCase):
    def record(self, setup, *options, seconds=3600, script=None, seed=1):
        folder = self.new_folder()
        (folder / "Brinewright.ini").write_bytes(setup.bytes())
        if script:
            (folder / "script").write_text("".join(script))
            options += ("--script", folder / "script")
        done = self.run_to_end("--data-folder", folder, "--no-save", "--virtual", "--duration", seconds, "--start-time",
                               START.isoformat(), "--seed", seed, "--record", folder / "rec", *options)
        return (folder / "rec").read_bytes(), done.stdout

    def test_an_hour_holds_every_sentence_at_its_rate(self):
        setup = Setup().dense(1, 2).talker_of_second("GN")
        setup.sentence("ZDA", 1, True, 6)  # 30 s
        setup.sentence("GGA", 2, True, 1)  # 0.5 s
        recording = read_recording(self.record(setup)[0])
        self.assertTrue(all(port == 17 and text.endswith("\r\n") for _, port, text in recording))
        times = {}
        for after, _, text in recording:
            self.assertTrue(is_valid(text[:-2]), text)
            times.setdefault(fields(text)[0], []).append(after)
            if text[3:6] in ("GGA", "RMC"):
                clock = START + datetime.timedelta(seconds=after)
                self.assertIn(fields(text)[1], {(clock + datetime.timedelta(seconds=s)).strftime("%H%M%S") for s in (0, 1)})
        self.assertEqual(len(times), 20)
        for kind, found in times.items():
            period = {"GPZDA": 30, "GNGGA": 0.5}.get(kind, 1)
            each = 2 if kind.endswith("GSV") else 1  # eight satellites make two sentences
            # Until all is open: 0.35 s and at most 1.25 s of staggering for each of the two windows.
            self.assertLessEqual(len(found), each * 3600 / period, kind)
            self.assertGreaterEqual(len(found), each * math.floor((3600 - 3.5) / period), kind)
            steady = [b - a for a, b in zip(found[::each], found[each::each]) if a > 4]
            self.assertLess(max(abs(step - period) for step in steady), 0.06, kind)  # the pacing of twenty sentences

    def test_same_inputs_and_seed_give_the_same_bytes(self):
        setup = Setup().open_windows(1).dense(1).put("Noise", 0, True, 19, False)  # up to 100 m
        script = ['1 {"method": "click", "params": {"path": "frmPosition[1].cmdStart"}}\n']
        one, same, other = (read_recording(self.record(setup, script=script, seconds=300, seed=seed)[0]) for seed in (5, 5, 6))
        self.assertEqual(one, same)
        self.assertGreater(len(one), 2500)

        def only(recording, *kinds):
            return [text for _, _, text in recording if text[3:6] in kinds]

        self.assertEqual(only(one, "VTG", "ZDA", "DTM", "GSA", "GST"), only(other, "VTG", "ZDA", "DTM", "GSA", "GST"))
        for kind in ("GSV", "GGA"):  # the sky and the noise are drawn
            differing = sum(a != b for a, b in zip(only(one, kind), only(other, kind)))
            self.assertGreater(differing, 250, kind)

    def test_a_recording_reads_back_as_what_left(self):
        setup = Setup("multicast.ini").dense(1)
        awkward = "back\\slash, n\xf8rd"
        setup.put("IEC 61162-450 extended", 0, True, True, False, False, "", "", True, True, True, "GP0001", True, awkward)
        data, stdout = self.record(setup, "--stdout", seconds=60)
        recording = read_recording(data)
        self.assertEqual("".join(text for _, _, text in recording).encode("latin-1"), stdout)
        self.assertTrue(all(port == 18 and text.startswith("UdPbC\0\\") and awkward in text for _, port, text in recording))

    def test_start_by_script_moves_the_sensor_at_the_set_speed_and_course(self):
        setup = Setup().open_windows(1).only(1, "GGA", "VTG", interval=2).put("No of decimals", 0, 6, 6)
        speed_kn, course = 31.5, 123.4
        script = ["# comment\n", "\n"]
        for path, value in (("txtLat", "62 28.332 N"), ("txtLon", "006 08.970 E"), ("txtSOG", str(speed_kn)), ("txtCOG", str(course))):
            line = {"method": "set", "params": {"path": "frmPosition[1]." + path, "value": value}}
            script.append(f"0.5 {json.dumps(line)}\n")
        script.append('+0.2 {"method": "click", "params": {"path": "frmPosition[1].cmdStart"}}\n')
        lines = [text[:-2] for _, _, text in read_recording(self.record(setup, script=script)[0])]
        track = [(degrees(*fields(g)[2:4]), degrees(*fields(g)[4:6])) for g in of_type(lines, "GGA")]
        track = [place for place in track if place != (0, 0)]  # before the first step
        self.assertGreater(len(track), 3590)
        for at in (1, 60, len(track) - 1):
            lat, lon = sail(*track[0], at * speed_kn * 1852 / 3600, course)
            self.assertAlmostEqual(track[at][0], lat, delta=2e-6)  # 0.2 m
            self.assertAlmostEqual(track[at][1], lon, delta=4e-6)
        self.assertEqual(fields(of_type(lines, "VTG")[-1])[1:9], ["123.4", "T", "123.4", "M", "31.5", "N", "058.34", "K"])

    def test_a_day_at_long_intervals(self):
        setup = Setup().open_windows(1).only(1, "GGA", interval=9)  # 60 s
        recording = read_recording(self.record(setup, seconds=86400)[0])
        self.assertIn(len(recording), (1439, 1440))


def sail(lat, lon, distance_m, course, steps=2000):
    """Rhumb line on the WGS 84 ellipsoid, integrated in small steps from its radii of curvature."""
    a, e2 = 6378137.0, 0.00669437999014
    phi, lam, azimuth, step = math.radians(lat), math.radians(lon), math.radians(course), distance_m / steps
    for _ in range(steps):
        north = step * math.cos(azimuth)
        middle = phi + north / (a * (1 - e2) / (1 - e2 * math.sin(phi) ** 2) ** 1.5) / 2
        w = 1 - e2 * math.sin(middle) ** 2
        phi += north / (a * (1 - e2) / w**1.5)
        lam += step * math.sin(azimuth) / (a / math.sqrt(w) * math.cos(middle))
    return math.degrees(phi), math.degrees(lam)


if __name__ == "__main__":
    unittest.main(verbosity=2)
