"""The TCP server: the stream of sentences, the faults on it, and clients that misbehave."""

import json
import re
import shutil
import socket
import struct
import subprocess
import unittest

from harness import (FIELD_COUNTS, TYPES, Program, Setup, TcpClient, TestCase, checksum, degrees, fields, free_port,
                     is_valid, of_type)

KNOT_M_S = 1852 / 3600


def gpsdecode(lines):
    """The reports that the field's own decoder makes of the lines."""
    if not shutil.which("gpsdecode"):
        raise AssertionError("gpsdecode is missing; tools/test installs it with the package gpsd-clients")
    stream = "".join(line + "\r\n" for line in lines).encode("latin-1")
    done = subprocess.run(["gpsdecode", "-j"], input=stream, capture_output=True, timeout=90, check=True)
    return [json.loads(line) for line in done.stdout.splitlines()]


class Stream(TestCase):
    def test_every_sentence_of_both_windows_reaches_all_clients(self):
        port = free_port()
        setup = Setup().tcp(port).dense(1, 2).talker_of_second("GN")
        program = Program(self, "--stdout", setup=setup)
        early, late = TcpClient(port, self), TcpClient(port, self)
        wanted = {talker + kind for talker in ("GP", "GN") for kind in TYPES}
        late.lines(60, lambda lines: wanted <= {fields(line)[0] for line in lines})
        self.assertEqual(program.stop(), 0, program.stderr.text())

        stream = early.wait_end()
        self.assertTrue(stream.endswith(late.wait_end()), "the clients got different bytes")
        self.assertTrue(program.stdout.wait_end().endswith(stream), "--stdout is not what left on TCP")
        self.assertTrue(stream.endswith(b"\r\n"))
        self.assertEqual(stream.count(b"\r"), stream.count(b"\r\n"))
        self.assertEqual(stream.count(b"\n"), stream.count(b"\r\n"))
        lines = stream.decode("ascii").split("\r\n")[:-1]
        self.assert_valid(lines)
        for line in lines:
            first, *others = fields(line)
            self.assertIn(first, wanted)
            self.assertEqual(len(others), FIELD_COUNTS[first[2:]], line)

    def test_a_decoder_of_the_field_understands_it(self):
        port = free_port()
        program = Program(self, setup=Setup().tcp(port).open_windows(1).dense(1))
        remote = program.automation()
        for path, value in (("txtLat", "54 10.500 N"), ("txtLon", "007 53.250 E"), ("txtSOG", "12.0"), ("txtCOG", "45.0")):
            remote.set("frmPosition[1]." + path, value)
        remote.click("frmPosition[1].cmdStart")
        remote.wait(lambda a: a.get("state.GNSS_Lat[1]") > 54, "first step of the position")
        client = TcpClient(port, self)
        lines = client.lines(30, lambda all: len(of_type(all, "GSV")) >= 6 and len(of_type(all, "GGA")) >= 4)

        reports = gpsdecode(lines)
        fixes = [r for r in reports if r["class"] == "TPV" and r.get("mode", 0) >= 2 and "speed" in r]
        skies = [r for r in reports if r["class"] == "SKY" and r.get("satellites")]
        self.assertGreaterEqual(len(fixes), 2)
        self.assertGreaterEqual(len(skies), 1)
        sent = [(degrees(*fields(g)[2:4]), degrees(*fields(g)[4:6])) for g in of_type(lines, "GGA")]
        for fix in fixes:
            self.assertAlmostEqual(fix["speed"], 12 * KNOT_M_S, delta=0.06)
            self.assertAlmostEqual(fix["track"], 45, delta=0.1)
            self.assertTrue(any(abs(fix["lat"] - lat) < 1e-5 and abs(fix["lon"] - lon) < 1e-5 for lat, lon in sent), fix)
            # Minutes at most after the start, at 0.2 nautical miles a minute.
            self.assertAlmostEqual(fix["lat"], 54 + 10.5 / 60, delta=0.02)
            self.assertAlmostEqual(fix["lon"], 7 + 53.25 / 60, delta=0.02)
        self.assertEqual([s["PRN"] for s in skies[-1]["satellites"]], [3, 6, 8, 12, 19, 24, 25, 32])
        self.assertEqual(skies[-1]["hdop"], 1.4)


class Faults(TestCase):
    def test_each_fault_option_on_the_wire(self):
        port = free_port()
        setup = Setup().tcp(port).open_windows(1).dense(1)
        for kind in Setup.LONG_LISTS:
            setup.sentence(kind, 1, True, 0)
        program = Program(self, setup=setup)
        remote = program.automation()

        def stream_with(option, lines=60):
            """What a client that comes after the option was clicked receives until it is clicked again."""
            remote.click("frmMain." + option)
            client = TcpClient(port, self)
            text = client.wait(lambda data: len(data) > 60 * lines and data.decode("ascii"), "stream")
            remote.click("frmMain." + option)
            client.close()
            return text

        bare = stream_with("mnuOptionsChecksumDisabled").split("\r\n")[:-1]
        for line in bare:
            self.assertRegex(line, r"\A\$GP[A-Z]{3},[^*$]*\Z")
        self.assertGreater(len(bare), 10)

        for line in stream_with("mnuOptionsFaultyChecksum").split("\r\n")[:-1]:
            body, _, given = line[1:].rpartition("*")
            right = checksum(body)
            self.assertEqual(given, right[0] + ("E" if right[1] == "F" else "F"), line)

        merged = stream_with("mnuOptionsCrLfDisabled")
        self.assertNotRegex(merged, r"[\r\n]")
        self.assert_valid(["$" + part for part in merged.split("$")[1:-1]])

        cut = stream_with("mnuOptionCuttedMsg", 30).split("\r\n")[:-1]
        for line in cut:
            self.assertNotRegex(line, r"\*[0-9A-F]{2}\Z")
            self.assertTrue(line == "" or line.startswith("$"), line)
        self.assertGreater(len({len(line) for line in cut}), 5, "always the same length")

        split = stream_with("mnuOptionSplittedMsg").split("\r\n")
        joined = "".join(split)
        self.assert_valid(["$" + part for part in joined.split("$")[1:-1]])
        self.assertTrue(any(not is_valid(line) for line in split[1:-1]), "nothing is split")

        self.assert_valid(TcpClient(port, self).lines(20))  # whole again: what split kept last is not sent any more
        boxes = program.boxes()
        self.assertEqual(boxes, [
            "Checksum disabled. All simulated NMEA messages will be without checksum",
            "Checksum enabled again. All simulated NMEA messages will be with checksum",
            "Faulty checksum enabled. All simulated NMEA messages will be simulated with faulty checksum",
            "Merged messages will be simulated. All simulated NMEA messages will be without Carriage return/Line Feed",
            "Cutted messages will be simulated. All simulated NMEA messages will be cutted at a random character",
            "Splitted messages will be simulated. All simulated NMEA messages will be cutted at a random character and "
            "remaining characters will start next message"])


class Clients(TestCase):
    def test_bad_clients_leave_a_good_one_undisturbed(self):
        port = free_port()
        # Long text tags and short intervals, so that a client that does not read falls behind within seconds.
        setup = Setup().tcp(port).dense(1, 2)
        for kind in Setup.LONG_LISTS:
            setup.sentence(kind, 1, True, 0).sentence(kind, 2, True, 0)
        setup.put("IEC 61162-450 extended", 0, True, False, False, False, "", "", False, True, False, "", True, "x" * 3000)
        program = Program(self, setup=setup)
        remote = program.automation()
        good = TcpClient(port, self)

        stalled = socket.socket()
        self.addCleanup(stalled.close)
        stalled.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 4096)
        stalled.connect(("127.0.0.1", port))
        rubbish = TcpClient(port, self)
        rubbish.socket.sendall(bytes(range(256)) * 4096)
        resetting = socket.create_connection(("127.0.0.1", port))
        resetting.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        remote.wait(lambda a: len(a.stats()["clients"]) == 4, "four clients")
        resetting.close()
        remote.wait(lambda a: len(a.stats()["clients"]) == 3, "notice of the reset")

        stats = remote.wait(lambda a: a.stats() if a.stats()["skipped"].get("TCP", 0) > 20 else None, "skipped sentences")
        self.assertEqual(sorted(c["skipped"] > 0 for c in stats["clients"]), [False, False, True])
        self.assertEqual(program.stop(), 0, program.stderr.text())

        def numbers(stream):
            """The n: of each sentence, after a look at all of it."""
            found = []
            for line in stream.decode("ascii").split("\r\n")[:-1]:
                tags, sentence = re.fullmatch(r"\\([^\\]*)\\(.*)", line).groups()
                self.assertEqual(checksum(tags[:-3]), tags[-2:])
                self.assertTrue(is_valid(sentence), sentence)
                found.append(int(re.match(r"n:(\d+),t:x+\*", tags)[1]))
            return found

        def steps(found):
            return {(after - before) % 999 for before, after in zip(found, found[1:])}

        self.assertEqual(steps(numbers(good.wait_end())), {1}, "the good client misses sentences")
        self.assertEqual(steps(numbers(rubbish.wait_end())), {1})
        stalled.settimeout(30)
        left = b""
        try:
            while piece := stalled.recv(65536):
                left += piece
        except ConnectionError:
            pass
        self.assertGreater(len(numbers(left)), 1)  # what it gets are whole sentences


if __name__ == "__main__":
    unittest.main(verbosity=2)
