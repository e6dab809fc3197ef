"""Drives the desktop offscreen through automation and saves a picture of each window in each palette."""

import json
import os
import pathlib
import socket
import subprocess
import sys
import tempfile
import time

PALETTES = ("Day", "Dusk", "Night")

# What is done before the pictures; then each window and how it is opened.
PREPARE = [
    ("set", {"path": "frmPosition[1].txtSOG", "value": "12.4"}),
    ("set", {"path": "frmPosition[1].txtCOG", "value": "47.0"}),
    ("click", {"path": "frmPosition[1].cmdStart"}),
    ("set", {"path": "frmPosition[1].cmbInView", "value": 14}),
    ("click", {"path": "frmMain.mnuTraffic"}),
    ("click", {"path": "frmMain.mnuMonitor"}),
    ("click", {"path": "frmMain.mnuExtendedMonitor"}),
    ("set", {"path": "frmExtendedMonitor.cmbComPort", "value": "TCP/IP"}),
    ("advance", {"seconds": 21}),
    ("set", {"path": "frmTraffic.hfgTraffic", "value": 20}),
]
WINDOWS = [
    ("frmPosition[1]", "gnss", []),
    ("frmPosition[1]", "gnss-wide", [
        ("set", {"path": "frmPosition[1].chkGST", "value": True}), ("advance", {"seconds": 1})]),
    ("frmPosition[2]", "gnss-2", []),
    ("frmTraffic", "traffic", []),
    ("frmMonitor", "monitor", []),
    ("frmExtendedMonitor", "extended-monitor", []),
    ("frmTCPIP", "tcpip", []),
    ("frmGNSS[1]", "gnss-configuration", [("click", {"path": "frmPosition[1].cmdGNSS"})]),
    ("frmIEC61162", "iec61162-450", [("click", {"path": "frmMain.mnuOptionIEC450"})]),
    ("frmGeoFormat", "position-format", [("click", {"path": "frmMain.mnuSetupLatLonFormat"})]),
    ("frmSetup", "port-setup", [("click", {"path": "frmMain.mnuSetupPort"})]),
    ("frmComportInfo", "comport-info", [("click", {"path": "frmSetup.cmdComInfo"})]),
    ("frmMain", "main-fault", [
        ("close", {"path": "frmSetup"}), ("close", {"path": "frmIEC61162"}), ("close", {"path": "frmGeoFormat"}),
        ("close", {"path": "frmGNSS[1]"}), ("close", {"path": "frmComportInfo"}),
        ("click", {"path": "frmMain.mnuOptionsFaultyChecksum"})]),
]


class Automation:
    def __init__(self, path, program):
        deadline = time.monotonic() + 60
        while True:
            try:
                self.link = socket.socket(socket.AF_UNIX)
                self.link.connect(path)
                break
            except OSError:
                if time.monotonic() > deadline or program.poll() is not None:
                    raise SystemExit("the program did not start")
                time.sleep(0.05)
        self.lines = self.link.makefile("rw")

    def call(self, method, params):
        self.lines.write(json.dumps({"jsonrpc": "2.0", "id": 1, "method": method, "params": params}) + "\n")
        self.lines.flush()
        while True:
            answer = json.loads(self.lines.readline())
            if "id" in answer:
                break
        if "error" in answer:
            raise SystemExit(f"{method} {params}: {answer['error']['message']}")
        return answer["result"]


def picture_palette(bin_dir, root, pictures, palette):
    with tempfile.TemporaryDirectory() as folder:
        screen = {"name": "bench", "x": 0, "y": 0, "width": 1366, "height": 768, "logicalDpi": 96, "dpr": 1}
        (pathlib.Path(folder) / "screen.json").write_text(json.dumps({"screens": [screen]}))
        (pathlib.Path(folder) / "application-settings.ini").write_text(f"[Settings]\nPalette={palette}\n")
        path = folder + "/automation"
        program = subprocess.Popen(
            [f"{bin_dir}/brinewright", "--setup", f"{root}/examples/demo.ini", "--no-save", "--data-folder", folder,
             "--automation", path, "--virtual", "--start-time", "2026-06-21T10:15:00", "--seed", "7"],
            env={**os.environ, "QT_QPA_PLATFORM": f"offscreen:configfile={folder}/screen.json", "QT_LOGGING_RULES": "*=false"},
            stderr=subprocess.DEVNULL)
        try:
            drive = Automation(path, program)
            for method, params in PREPARE:
                drive.call(method, params)
            for form, name, steps in WINDOWS:
                for method, params in steps:
                    drive.call(method, params)
                drive.call("grab", {"path": form, "file": f"{pictures}/{name}-{palette.lower()}.png"})
            drive.call("click", {"path": "frmMain.mnuFileExit"})
            program.wait(20)
        finally:
            program.kill()
            program.wait()


def main():
    bin_dir, root, pictures = sys.argv[1:]
    for palette in PALETTES:
        picture_palette(bin_dir, root, pictures, palette)
    print(len(PALETTES) * len(WINDOWS), "pictures in", pictures)


main()
