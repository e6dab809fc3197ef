"""Automation over the local socket: the examples, the command-line client, and peers that talk nonsense."""

import json
import os
import re
import stat
import subprocess
import sys
import unittest

from harness import (CTL, DEADLINE_S, EXAMPLES, Automation, Collector, Program, Refused, Setup, TcpClient, TestCase,
                     free_port)

CLOSED, REFUSED, VALUE_REFUSED, READ_ONLY, NOT_VIRTUAL, NOT_AVAILABLE, UNKNOWN_BOX = -32001, -32002, -32003, -32004, -32005, -32006, -32007
UNKNOWN_PATH, PARSE, INVALID_REQUEST, UNKNOWN_METHOD, PARAMS = -32000, -32700, -32600, -32601, -32602


class AutomationCase(TestCase):
    def start(self, *options, setup=None):
        program = Program(self, *options, setup=setup or Setup().open_windows(1).tcp(free_port()).only(1, "GGA"))
        return program, program.automation()

    def ctl(self, program, *arguments, status=0):
        return self.run_to_end("--socket", program.socket_path, *arguments, program=CTL, status=status)

    def refusal(self, remote, method, **params):
        with self.assertRaises(Refused) as told:
            remote.call(method, **params)
        return told.exception.code


class Examples(AutomationCase):
    def run_example(self, *command, program):
        env = dict(os.environ, BRINEWRIGHT_CTL=CTL)
        done = subprocess.run([*map(str, command), str(program.socket_path)], stdin=subprocess.DEVNULL, capture_output=True,
                              text=True, timeout=3 * DEADLINE_S, env=env)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done

    def check(self, program, remote, latitude):
        start = 54 + 10.5 / 60
        self.assertGreater(latitude, start)
        self.assertLess(latitude, start + 0.05)
        self.assertEqual(remote.get("frmPosition[1].txtSOG"), "12.0")
        self.assertEqual(remote.get("frmPosition[1].cmbGGAInterval"), "0.5 sec")
        self.assertEqual(program.stop(), 0, program.stderr.text())

    def test_python_and_shell_in_virtual_and_in_real_time(self):
        for options in (("--virtual",), ()):
            with self.subTest(example="automation.py", options=options):
                program, remote = self.start(*options)
                done = self.run_example(sys.executable, EXAMPLES / "automation.py", program=program)
                self.assertIn("refused: ", done.stdout)
                latitude = float(re.search(r"^latitude now (.*)$", done.stdout, re.M)[1])
                self.assertGreaterEqual(int(re.search(r"^changes seen (\d+)$", done.stdout, re.M)[1]), 1)
                self.check(program, remote, latitude)
            with self.subTest(example="automation.sh", options=options):
                program, remote = self.start(*options)
                done = self.run_example("sh", EXAMPLES / "automation.sh", program=program)
                self.assertRegex(done.stdout, r"(?m)^sent\.17 \d+$")
                self.check(program, remote, float(re.search(r"^latitude (.*)$", done.stdout, re.M)[1]))


class CommandLine(AutomationCase):
    def test_verbs_and_exit_codes(self):
        program, remote = self.start("--virtual", "--hold-boxes", "--start-time", "2026-05-04T12:00:00")

        def told(*arguments, status=0):
            done = self.ctl(program, *arguments, status=status)
            return (done.stderr if status else done.stdout).decode().rstrip("\n")

        self.assertEqual(told("ping"), "pong")
        self.assertIn("version 7.00", told("version"))
        self.assertEqual(told("set", "frmPosition[1].txtSOG", "9.5"), "")
        self.assertEqual(told("get", "frmPosition[1].txtSOG"), "9.5")
        self.assertEqual(told("--json", "get", "frmPosition[1].txtSOG"), '"9.5"')
        self.assertEqual(told("get", "state.GNSS_SOG[1]"), "9.5")
        told("type", "frmPosition[1].txtCOG", "12.5")
        self.assertEqual(told("get", "state.GNSS_COG[1]"), "0.0")  # typed, not left yet
        told("leave")
        self.assertEqual(told("get", "state.GNSS_COG[1]"), "12.5")
        told("click", "frmPosition[1].cmdArrows")
        told("key", "frmPosition[1]", "Right")
        told("key", "frmPosition[1]", "38")
        self.assertEqual((told("get", "state.GNSS_COG[1]"), told("get", "state.GNSS_SOG[1]")), ("12.6", "9.6"))
        told("focus", "frmPosition[1].txtLat")
        self.assertEqual(told("get", "frmPosition[1].txtLat.Focus"), "true")
        self.assertIn("frmPosition[1]", told("list"))
        self.assertRegex(told("list", "frmPosition[1]"), r"(?m)^frmPosition\[1\]\.chkGGA kind=Check_Box .*Value=true")
        self.assertIn("GNSS_Lat", told("list", "state"))
        told("click", "frmPosition[1].cmdStart")
        self.assertIn("12:01:0", told("advance", "60"))
        stats = json.loads(told("--json", "stats"))
        self.assertIn(stats["sent"]["17"], range(590, 621))  # GGA each 0.1 s, for a minute and the opening
        self.assertTrue(stats["local_time"].startswith("2026-05-04T12:01:0"))

        told("click", "frmMain.mnuOptionCuttedMsg")
        number, text = told("boxes").split(" ", 1)
        self.assertIn("Cutted messages will be simulated.", text)
        told("answer", number)
        self.assertEqual(told("boxes"), "")
        told("close", "frmPosition[1]")
        self.assertIn("frmPosition[1]", told("get", "frmPosition[1].txtSOG", status=1))

        self.assertIn("no such", told("get", "frmNothing", status=1))
        told("grab", "frmMain", "picture.png", status=1)
        told("answer", "999", status=1)
        for usage in (("get",), ("frobnicate",), (), ("advance", "soon"), ("set", "a")):
            told(*usage, status=2)
        self.assertEqual(self.run_to_end("--socket", program.folder / "none", "ping", program=CTL, status=3).stdout, b"")
        self.assertEqual(remote.call("ping"), "pong")

    def test_watch_prints_each_change(self):
        program, remote = self.start("--virtual")
        watching = subprocess.Popen([CTL, "--socket", str(program.socket_path), "watch", "state.GNSS_SOG[1]", "--count", "2"],
                                    stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, bufsize=0)
        self.addCleanup(watching.stdout.close)
        self.addCleanup(watching.wait)
        self.addCleanup(watching.kill)
        output = Collector("watch", lambda: os.read(watching.stdout.fileno(), 4096))
        output.wait(lambda data: data.endswith(b"\n"), "first value")
        remote.set("frmPosition[1].txtSOG", "3.5")
        remote.set("frmPosition[1].txtSOG", "40.5")
        self.assertEqual(output.wait_end(), b"state.GNSS_SOG[1] 0.0\nstate.GNSS_SOG[1] 3.5\nstate.GNSS_SOG[1] 40.5\n")
        self.assertEqual(watching.wait(DEADLINE_S), 0)


class Socket(AutomationCase):
    def test_only_its_user_may_open_it_and_it_goes_with_the_program(self):
        program, remote = self.start("--virtual")
        found = program.socket_path.stat()
        self.assertTrue(stat.S_ISSOCK(found.st_mode))
        self.assertEqual(stat.S_IMODE(found.st_mode), 0o600)
        second = self.run_to_end("--data-folder", program.folder, "--virtual", "--automation", program.socket_path, status=2)
        self.assertIn(b"is in use by another process", second.stderr)
        self.assertEqual(program.stop(), 0, program.stderr.text())
        self.assertFalse(program.socket_path.exists())

    def test_nonsense_is_answered_with_errors_and_changes_nothing(self):
        program, remote = self.start("--virtual")
        before = remote.call("list", path="frmPosition[1]")
        lines = {
            b"nonsense": PARSE, b'{"jsonrpc": "2.0", "id": 1': PARSE, b"\xff\xfe\x00": PARSE, b"[]": INVALID_REQUEST,
            b"17": INVALID_REQUEST, b"{}": INVALID_REQUEST, b"[" * 5000: INVALID_REQUEST,
            b'{"jsonrpc": "1.0", "id": 1, "method": "ping"}': INVALID_REQUEST,
            b'{"jsonrpc": "2.0", "id": 1, "method": 5}': INVALID_REQUEST,
            b'{"jsonrpc": "2.0", "id": 1, "method": "fly"}': UNKNOWN_METHOD,
            b'{"jsonrpc": "2.0", "id": 1, "method": "get"}': PARAMS,
            b'{"jsonrpc": "2.0", "id": 1, "method": "ping", "params": {"x": 1}}': PARAMS,
        }
        for line, code in lines.items():
            with self.subTest(line=line[:60]):
                remote.send(line + b"\n")
                self.assertEqual(remote.message()["error"]["code"], code)
        peer = Automation(program.socket_path, self)
        peer.send(b"x" * 1_000_000 + b"\n")
        self.assertEqual(peer.message()["error"]["code"], INVALID_REQUEST)
        Automation(program.socket_path, self).send(b'{"jsonrpc": "2.0", "id": 1, "method"')  # and no more of it

        gnss = "frmPosition[1]."
        for code, method, params in (
                (UNKNOWN_PATH, "get", {"path": "state.Nothing"}), (UNKNOWN_PATH, "get", {"path": "state.GNSS_Lat[3]"}),
                (UNKNOWN_PATH, "get", {"path": gnss + "chkXYZ"}), (CLOSED, "get", {"path": "frmPosition[2].chkGGA"}),
                (REFUSED, "click", {"path": gnss + "cmdPause"}), (REFUSED, "click", {"path": gnss + "chkFixOffset"}),
                (VALUE_REFUSED, "set", {"path": gnss + "cmbGGAInterval", "value": 99}),
                (VALUE_REFUSED, "set", {"path": gnss + "cmbGGAInterval", "value": "7 sec"}),
                (VALUE_REFUSED, "set", {"path": gnss + "scrSOG", "value": 401}),
                (VALUE_REFUSED, "set", {"path": gnss + "chkGGA", "value": "yes"}),
                (VALUE_REFUSED, "set", {"path": gnss + "txtTalker", "value": None}),
                (READ_ONLY, "set", {"path": "state.GNSS_Lat[1]", "value": 5}), (UNKNOWN_BOX, "answer", {"id": 12345}),
                (VALUE_REFUSED, "advance", {"seconds": -1}), (NOT_AVAILABLE, "grab", {"path": "frmMain", "file": "x"})):
            with self.subTest(method=method, params=params):
                self.assertEqual(self.refusal(remote, method, **params), code)
        self.assertEqual(remote.call("list", path="frmPosition[1]"), before)
        self.assertEqual(program.boxes(), [])
        self.assertEqual(program.stop(), 0, program.stderr.text())


class Windows(AutomationCase):
    def test_watching_through_time_and_through_a_closed_window(self):
        program, remote = self.start("--virtual")
        remote.call("watch", path="frmPosition[1].lblLat")
        remote.set("frmPosition[1].txtSOG", "36")
        remote.click("frmPosition[1].cmdStart")
        latitude = remote.get("state.GNSS_Start_Lat[1]")
        passed = remote.call("advance", seconds=10)
        remote.call("advance", seconds=0)
        self.assertAlmostEqual(passed["uptime_s"], 10.4, delta=0.2)
        moved_m = (remote.get("state.GNSS_Lat[1]") - latitude) * 60 * 1855
        self.assertAlmostEqual(moved_m, 10 * 36 * 1852 / 3600, delta=1)
        self.assertEqual({path for path, _ in remote.changes}, {"frmPosition[1].lblLat"})
        self.assertGreaterEqual(len(remote.changes), 9)
        remote.changes.clear()
        remote.call("close", path="frmPosition[1]")
        self.assertEqual(remote.next_change(), ("frmPosition[1].lblLat", None))
        self.assertFalse(remote.get("frmMain.mnuOpenForm(1).Checked"))
        sent = remote.stats()["sent"]["17"]
        remote.call("advance", seconds=10)
        self.assertEqual(remote.stats()["sent"]["17"], sent)
        remote.click("frmMain.mnuOpenForm(1)")
        self.assertTrue(remote.next_change()[1])
        remote.call("advance", seconds=10)
        self.assertIn(remote.stats()["sent"]["17"] - sent, range(98, 102))
        self.assertEqual(self.refusal(self.start()[1], "advance", seconds=1), NOT_VIRTUAL)

    def test_file_dialogs_and_message_boxes(self):
        tcp = free_port()
        program, remote = self.start("--hold-boxes", setup=Setup().tcp(tcp).open_windows(1).only(1, "GGA"))
        other = program.folder / "other.ini"
        other.write_bytes(Setup().tcp(tcp).open_windows(2).only(2, "VTG", interval=1).talker_of_second("GN").bytes())

        def dialog(menu, path):
            remote.click("frmMain." + menu)
            [asked] = remote.call("boxes")
            remote.call("answer", id=asked["id"], path=str(path))
            return asked

        asked = dialog("mnuFileOpen", other)
        self.assertEqual((asked["kind"], asked["title"], asked["extension"], asked["folder"]),
                         ("open file", "Open Setup File", ".ini", str(program.folder) + "/"))
        self.assertEqual(asked["filter"], "Brinewright setup files (*.ini)|*.ini")
        self.assertEqual(self.refusal(remote, "get", path="frmPosition[1]"), CLOSED)
        client = TcpClient(tcp, self)
        self.assertTrue(all(line.startswith("$GNVTG,") for line in client.lines(3)))

        dialog("mnuFileOpen", program.folder / "none.ini")
        [box] = remote.call("boxes")
        self.assertEqual(box["text"], f"File {program.folder}/none.ini do not exist.")
        remote.call("answer", id=box["id"])
        dialog("mnuFileOpen", "")  # cancelled
        self.assertEqual(remote.call("boxes"), [])

        asked = dialog("mnuFileSaveAs", program.folder / "kept.ini")
        self.assertEqual((asked["kind"], asked["title"]), ("save file", "Save Setup As"))
        [box] = remote.call("boxes")
        self.assertEqual(box["text"], f"Setup saved as {program.folder}/kept.ini")
        self.assertIn(b'"frmPosition",2,', (program.folder / "kept.ini").read_bytes())
        remote.call("answer", id=box["id"])
        remote.click("frmMain.mnuFileSave")
        self.assertEqual(remote.call("boxes")[0]["text"], f"Setup saved as {program.setup_file}")
        self.assertIn(b'"frmPosition",2,', program.setup_file.read_bytes())
        self.assertEqual(program.stop(), 0, program.stderr.text())  # also while a box stands


if __name__ == "__main__":
    unittest.main(verbosity=2)
