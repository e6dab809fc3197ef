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
NEVER_OPENED = {"frmVirtualPort"}  # it is there and stays idle: nothing opens it

# For each setup: what is done before the pictures; then each window, the name of its picture and how it is opened.
SENSOR_PREPARE = [
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
GYRO = [
    ("click", {"path": "frmMain.mnuOpenForm(3)"}),
    ("set", {"path": "frmGyro[1].cmbComPort", "value": "TCP/IP"}),
    ("set", {"path": "frmGyro[1].txtHDG", "value": "312.5"}),
    ("set", {"path": "frmGyro[1].txtROT", "value": "-12.0"}),
    ("set", {"path": "frmGyro[1].txtRoll", "value": "8.5"}),
    ("set", {"path": "frmGyro[1].txtPitch", "value": "-3.0"}),
    ("set", {"path": "frmGyro[1].chkHDT", "value": True}),
    ("set", {"path": "frmGyro[1].chkROT", "value": True}),
    ("set", {"path": "frmGyro[1].chkPRDID", "value": True}),
    ("click", {"path": "frmGyro[1].cmdStart"}),
    ("advance", {"seconds": 6}),
]
LOG = [
    ("click", {"path": "frmMain.mnuOpenForm(5)"}),
    ("set", {"path": "frmLog[1].cmbComPort", "value": "TCP/IP"}),
    ("set", {"path": "frmLog[1].txtSpeed", "value": "12.3"}),
    ("set", {"path": "frmLog[1].chkVHW", "value": True}),
    ("set", {"path": "frmLog[1].chkVLW", "value": True}),
    ("advance", {"seconds": 6}),
]
ECHOSOUNDER = [
    ("click", {"path": "frmMain.mnuOpenForm(7)"}),
    ("set", {"path": "frmEchosounder[1].cmbComPort", "value": "TCP/IP"}),
    ("set", {"path": "frmEchosounder[1].txtDepth", "value": "86.4"}),
    ("set", {"path": "frmEchosounder[1].chkDPT", "value": True}),
    ("advance", {"seconds": 6}),
]
WIND = [
    ("click", {"path": "frmMain.mnuOpenForm(9)"}),
    ("set", {"path": "frmWind[1].cmbComPort", "value": "TCP/IP"}),
    ("set", {"path": "frmWind[1].txtHDG", "value": "270"}),
    ("set", {"path": "frmWind[1].txtSpeed", "value": "18.5"}),
    ("set", {"path": "frmWind[1].chkMWV", "value": True}),
    ("set", {"path": "frmWind[1].chkMWD", "value": True}),
    ("advance", {"seconds": 6}),
]
SENSOR_WINDOWS = [
    ("frmPosition[1]", "gnss", []),
    ("frmPosition[1]", "gnss-wide", [
        ("set", {"path": "frmPosition[1].chkGST", "value": True}), ("advance", {"seconds": 1})]),
    ("frmPosition[2]", "gnss-2", []),
    ("frmTraffic", "traffic", []),
    ("frmMonitor", "monitor", []),
    ("frmExtendedMonitor", "extended-monitor", []),
    ("frmTCPIP", "tcpip", []),
    ("frmGyro[1]", "gyro", GYRO),
    ("frmLog[1]", "log", LOG),
    ("frmEchosounder[1]", "echosounder", ECHOSOUNDER),
    ("frmWind[1]", "wind-sensor-mode", WIND),
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
SHIP_PREPARE = [("advance", {"seconds": 25})]
SHIP_WINDOWS = [
    ("frmShip", "ship", []),
    ("frmPosition[1]", "gnss-ship-mode", []),
    ("frmGyro[1]", "gyro-ship-mode", []),
    ("frmLog[1]", "log-ship-mode", []),
    ("frmEchosounder[1]", "echosounder-ship-mode", []),
    ("frmWind[1]", "wind", []),
    ("frmMain", "main", []),
    ("frmShipSetup", "ship-setup", [("click", {"path": "frmMain.mnuSetupShip"})]),
    ("frmSetSOG", "set-sog", [("click", {"path": "frmShip.cmdSetSOG"})]),
    ("frmShip", "ship-frozen-keyboard", [
        ("close", {"path": "frmShipSetup"}), ("close", {"path": "frmSetSOG"}),
        ("click", {"path": "frmShip.cmdFreeze"}), ("click", {"path": "frmShip.cmdPause"}),
        ("click", {"path": "frmShip.cmdArrows"})]),
    ("frmMain", "main-conning", [("click", {"path": "frmMain.mnuViewLayout(2)"}), ("advance", {"seconds": 2})]),
    ("frmMain", "main-sources", [
        ("click", {"path": "frmMain.mnuViewSources"}), ("advance", {"seconds": 2}),
        ("click", {"path": "frmMain.mnuViewLayout(3)"}), ("advance", {"seconds": 2})]),
    ("frmLayouts", "layouts", [("click", {"path": "frmMain.mnuViewLayouts"})]),
]
DETECTION_WINDOWS = [
    ("frmProgress", "port-detection", [
        ("click", {"path": "frmMain.mnuSetupPort"}), ("click", {"path": "frmSetup.cmdReset"})]),
    ("frmMain", "main-box", [("close", {"path": "frmSetup"})]),
]
RUNS = [
    ("sensor.ini", SENSOR_PREPARE, SENSOR_WINDOWS),
    ("demo.ini", SHIP_PREPARE, SHIP_WINDOWS),
    ("demo.ini", [], DETECTION_WINDOWS),
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


def picture_palette(bin_dir, root, pictures, palette, setup, prepare, windows, then=None):
    with tempfile.TemporaryDirectory() as folder:
        screen = {"name": "bench", "x": 0, "y": 0, "width": 1366, "height": 768, "logicalDpi": 96, "dpr": 1}
        (pathlib.Path(folder) / "screen.json").write_text(json.dumps({"screens": [screen]}))
        (pathlib.Path(folder) / "application-settings.ini").write_text(f"[Settings]\nPalette={palette}\n")
        path = folder + "/automation"
        program = subprocess.Popen(
            [f"{bin_dir}/brinewright", "--setup", f"{root}/examples/{setup}", "--no-save", "--data-folder", folder,
             "--automation", path, "--virtual", "--start-time", "2026-06-21T10:15:00", "--seed", "7"],
            env={**os.environ, "QT_QPA_PLATFORM": f"offscreen:configfile={folder}/screen.json", "QT_LOGGING_RULES": "*=false"},
            stderr=subprocess.DEVNULL)
        try:
            drive = Automation(path, program)
            for method, params in prepare:
                drive.call(method, params)
            for form, name, steps in windows:
                for method, params in steps:
                    drive.call(method, params)
                drive.call("grab", {"path": form, "file": f"{pictures}/{name}-{palette.lower()}.png"})
            if then:
                then(drive)
            drive.call("click", {"path": "frmMain.mnuFileExit"})
            program.wait(20)
        finally:
            program.kill()
            program.wait()


def open_pictures(bin_dir, root, pictures, palette, done):
    """A picture of every window that the menus open and that no scene has shown; the names of those that are left."""
    left = []

    def walk(drive):
        for window in drive.call("list", {"path": "windows"}):
            path = window["path"]
            kind = path.partition("[")[0]
            if kind in done:
                continue
            done.add(kind)
            if kind in NEVER_OPENED:
                continue
            if "menu" not in window:
                left.append(kind)
                continue
            drive.call("click", {"path": window["menu"]})
            drive.call("advance", {"seconds": 2})
            drive.call("grab", {"path": path, "file": f"{pictures}/{kind}-{palette.lower()}.png"})

    picture_palette(bin_dir, root, pictures, palette, "demo.ini", SHIP_PREPARE, [], walk)
    return left


def main():
    bin_dir, root, pictures = sys.argv[1:]
    for palette in PALETTES:
        for setup, prepare, windows in RUNS:
            picture_palette(bin_dir, root, pictures, palette, setup, prepare, windows)
        done = {path.partition("[")[0] for _, _, windows in RUNS for path, _, _ in windows}
        left = open_pictures(bin_dir, root, pictures, palette, done)
    print(len(list(pathlib.Path(pictures).glob("*.png"))), "pictures in", pictures)
    if left:
        raise SystemExit("no scene shows " + ", ".join(left))


main()
