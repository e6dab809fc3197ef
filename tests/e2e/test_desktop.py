"""The desktop beside the program without windows: the same script and seed give the same bytes, and its pictures."""

import json
import os
import struct
import subprocess
import sys
import unittest

from harness import BIN, DEADLINE_S, HEADLESS, SOURCE, Automation, Collector, Refused, Setup, TestCase

DESKTOP = str(BIN / "brinewright")
OFFSCREEN = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "QT_LOGGING_RULES": "*=false"}

# What a user does in a session: (seconds from the last step, method, parameters).
STEPS = [
    (0.5, "set", {"path": "frmPosition[1].txtLat", "value": "62 28.332 N"}),
    (0, "set", {"path": "frmPosition[1].txtLon", "value": "006 08.970 E"}),
    (0, "set", {"path": "frmPosition[1].scrSOG", "value": 124}),
    (0, "click", {"path": "frmPosition[1].cmdStart"}),
    (1.3, "click", {"path": "frmMain.mnuTraffic"}),
    (0, "click", {"path": "frmMain.mnuMonitor"}),
    (0, "click", {"path": "frmMain.mnuExtendedMonitor"}),
    (0.2, "set", {"path": "frmPosition[2].txtTalker", "value": "in"}),
    (0, "set", {"path": "frmPosition[1].chkNoise", "value": True}),
    (1, "click", {"path": "frmPosition[1].cmdArrows"}),
    (0.1, "key", {"path": "frmPosition[1]", "code": "Left"}),
    (0.1, "key", {"path": "frmPosition[1]", "code": "Up"}),
    (3, "click", {"path": "frmPosition[1].cmdGNSS"}),
    (0.5, "set", {"path": "frmGNSS[1].chkUse(1)", "value": True}),
    (0, "click", {"path": "frmGNSS[1].cmdOK"}),
    (2, "click", {"path": "frmMain.mnuOptionsFaultyChecksum"}),
    (2, "click", {"path": "frmMain.mnuOptionsFaultyChecksum"}),
    (1, "close", {"path": "frmPosition[2]"}),
    (2, "click", {"path": "frmMain.mnuOpenForm(2)"}),
    (30, "click", {"path": "frmMain.mnuFileExit"}),
]


class Desktop(TestCase):
    def start(self, program, folder, *options):
        arguments = [program, "--data-folder", folder, "--automation", folder / "a.sock", "--virtual", "--start-time",
                     "2026-06-21T10:15:00", "--seed", "7", *options]
        process = subprocess.Popen(list(map(str, arguments)), stdin=subprocess.DEVNULL, stderr=subprocess.PIPE,
                                   stdout=subprocess.DEVNULL, env=OFFSCREEN, bufsize=0)
        told = Collector("stderr", lambda: os.read(process.stderr.fileno(), 65536))

        def end():
            if process.poll() is None:
                process.kill()
            process.wait()
            told.thread.join(5)
            process.stderr.close()

        self.addCleanup(end)
        told.wait(lambda data: b"Virtual time stands" in data, "start")
        return process, Automation(folder / "a.sock", self)

    def session(self, program):
        """Plays the steps by automation; comes back with the recording and the setup that was saved."""
        folder = self.new_folder()
        (folder / "Brinewright.ini").write_bytes(Setup().dense(1, 2).bytes())
        process, drive = self.start(program, folder, "--hold-boxes", "--record", folder / "rec")
        for seconds, method, parameters in STEPS:
            if seconds:
                drive.call("advance", seconds=seconds)
            if program == DESKTOP:
                # A picture makes the windows look, paint and follow the focus at every step.
                drive.call("grab", path="frmMain", file=str(folder / "step.png"))
            try:
                drive.call(method, **parameters)
                if parameters["path"] != "frmMain.mnuFileExit":
                    for box in drive.call("boxes"):
                        drive.call("answer", id=box["id"])
            except Refused as refusal:
                self.fail(f"{method} {parameters}: {refusal}")
        self.assertEqual(process.wait(DEADLINE_S), 0)
        return (folder / "rec").read_bytes(), (folder / "Brinewright.ini").read_bytes()

    def test_the_same_actions_give_the_same_bytes(self):
        bare, bare_setup = self.session(HEADLESS)
        shown, shown_setup = self.session(DESKTOP)
        self.assertGreater(bare.count(b"\n"), 500)
        self.assertIn(b"$INVTG", bare)
        self.assertEqual(shown, bare)
        self.assertEqual(shown_setup, bare_setup)

    def test_the_same_script_gives_the_same_bytes(self):
        folder = self.new_folder()
        (folder / "Brinewright.ini").write_bytes(Setup().dense(1, 2).bytes())
        # A fault option tells a box, which the program without windows answers at once and the desktop does not.
        steps = [step for step in STEPS if "Faulty" not in step[2]["path"]]
        lines = [f"+{seconds} {json.dumps({'method': method, 'params': parameters})}\n" for seconds, method, parameters in steps]
        (folder / "script").write_text("".join(lines))
        common = ["--no-save", "--script", folder / "script"]
        self.run_to_end("--data-folder", folder, "--virtual", "--start-time", "2026-06-21T10:15:00", "--seed", "7", *common,
                        "--record", folder / "bare")
        process, drive = self.start(DESKTOP, folder, *common, "--record", folder / "shown")
        drive.call("advance", seconds=sum(step[0] for step in steps) + 1)
        self.assertEqual(process.wait(DEADLINE_S), 0)
        bare = (folder / "bare").read_bytes()
        self.assertGreater(bare.count(b"\n"), 500)
        self.assertEqual((folder / "shown").read_bytes(), bare)

    def test_a_picture_of_a_window(self):
        folder = self.new_folder()
        (folder / "Brinewright.ini").write_bytes(Setup().bytes())
        _, drive = self.start(DESKTOP, folder)
        for path in ("frmMain", "frmPosition[1]"):
            file = folder / "window.png"
            drive.call("grab", path=path, file=str(file))
            data = file.read_bytes()
            self.assertEqual(data[:8], b"\x89PNG\r\n\x1a\n")
            width, height = struct.unpack(">II", data[16:24])
            self.assertGreater(min(width, height), 100)
            file.unlink()
        for path, file in (("frmSetup", folder / "x.png"), ("frmMain", folder / "no" / "such" / "folder.png")):
            with self.assertRaises(Refused):
                drive.call("grab", path=path, file=str(file))

    def test_pictures_of_all_windows_in_all_palettes(self):
        folder = self.new_folder()
        done = subprocess.run([sys.executable, "-B", str(SOURCE / "tools/screenshots.py"), str(BIN), str(SOURCE), str(folder)],
                              capture_output=True, timeout=5 * DEADLINE_S)
        self.assertEqual(done.returncode, 0, done.stderr.decode())
        pictures = sorted(file.name for file in folder.glob("*.png"))
        told = int(done.stdout.split()[0])
        self.assertEqual(len(pictures), told)
        for palette in ("day", "dusk", "night"):
            self.assertEqual(sum(name.endswith(f"-{palette}.png") for name in pictures), told / 3)
        self.assertGreater(min((folder / name).stat().st_size for name in pictures), 1000)


if __name__ == "__main__":
    if os.access(DESKTOP, os.X_OK):
        unittest.main(verbosity=2)
    print("built without the desktop: nothing to test")
