#!/usr/bin/env python3
"""Operate a running simulator: open GNSS 1, set it up, let it run, look at the result.

    brinewright-headless --setup examples/sensor.ini --no-save --virtual --automation /tmp/b.sock &
    examples/automation.py /tmp/b.sock
"""

import json
import socket
import sys
import time


class Refused(Exception):
    """The simulator answered with an error; nothing has changed there."""

    def __init__(self, error):
        super().__init__(error["message"])
        self.code = error["code"]


class Simulator:
    def __init__(self, path):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(path)
        self.lines = self.socket.makefile("r", encoding="utf-8", newline="\n")
        self.last_id = 0
        self.changes = []  # of what is watched, as (path, value)

    def call(self, method, **params):
        self.last_id += 1
        request = {"jsonrpc": "2.0", "id": self.last_id, "method": method, "params": params}
        self.socket.sendall(json.dumps(request).encode() + b"\n")
        while True:
            message = json.loads(self.lines.readline())
            if message.get("method") == "changed":
                self.changes.append((message["params"]["path"], message["params"]["value"]))
            elif "error" in message:
                raise Refused(message["error"])
            else:
                return message["result"]

    def get(self, path):
        return self.call("get", path=path)

    def set(self, path, value):
        self.call("set", path=path, value=value)

    def click(self, path):
        self.call("click", path=path)

    def let_pass(self, seconds):
        if self.call("stats")["virtual"]:
            self.call("advance", seconds=seconds)
        else:
            time.sleep(seconds)
            self.call("ping")  # collects the changes that came meanwhile


CLOSED = -32001

simulator = Simulator(sys.argv[1])
simulator.click("frmMain.mnuMode(2)")  # Sensor mode, if it is not yet
try:
    simulator.get("frmPosition[1]")
except Refused as error:
    if error.code != CLOSED:
        raise
    simulator.click("frmMain.mnuOpenForm(1)")

gnss = "frmPosition[1]."
if not simulator.get(gnss + "txtLat.Enabled"):  # it moves already, and a start position is set at rest
    simulator.click(gnss + "cmdPause")
simulator.set(gnss + "chkGGA", True)
simulator.set(gnss + "cmbGGAInterval", "0.5 sec")  # by text; a number chooses by place, from 0
simulator.set(gnss + "txtLat", "54 10.500 N")  # types and leaves the box
simulator.set(gnss + "txtSOG", "12.0")

watched = simulator.call("watch", path="state.GNSS_Lat[1]")
simulator.click(gnss + "cmdStart")
simulator.let_pass(3)

print("latitude at first", watched)
print("latitude now", simulator.get("state.GNSS_Lat")["1"])
print("changes seen", len(simulator.changes))
print("sentences sent by port", simulator.call("stats")["sent"])
for box in simulator.call("boxes"):
    print("box:", box["text"])
    simulator.call("answer", id=box["id"])
try:
    simulator.set(gnss + "cmbGGAInterval", 99)
except Refused as error:
    print("refused:", error)
