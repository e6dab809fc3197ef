"""What the end-to-end tests share: setups, the running programs, what they send, and an independent look at it.

Nothing here sleeps: a Collector takes what comes in on a thread of its own, and tests wait for a condition on it, up to
a deadline that only a hanging program meets.
"""

import json
import os
import pathlib
import re
import select
import signal
import socket
import subprocess
import tempfile
import threading
import time
import unittest

SOURCE = pathlib.Path(__file__).resolve().parents[2]
BIN = pathlib.Path(os.environ.get("BRINEWRIGHT_BIN", SOURCE / "build/release/bin"))
HEADLESS = str(BIN / "brinewright-headless")
CTL = str(BIN / "brinewright-ctl")
EXAMPLES = SOURCE / "examples"
DEADLINE_S = 90  # generous: a sanitized build on a busy machine

TYPES = ("GGA", "VTG", "GLL", "RMC", "ZDA", "GNS", "DTM", "GSA", "GSV", "GST")
# Fields behind the talker and type.
FIELD_COUNTS = {"GGA": 14, "VTG": 9, "GLL": 7, "RMC": 13, "ZDA": 6, "GNS": 13, "DTM": 8, "GSA": 17, "GSV": 19, "GST": 8}


def checksum(text):
    total = 0
    for byte in text.encode("latin-1"):
        total ^= byte
    return "%02X" % total


def is_valid(sentence):
    """A whole sentence with its right checksum, and nothing around it."""
    found = re.fullmatch(r"\$([^$*\\]+)\*([0-9A-F]{2})", sentence)
    return found is not None and checksum(found[1]) == found[2]


def fields(sentence):
    """The fields of a sentence: the first is talker and type, the checksum is gone."""
    return sentence[1:].partition("*")[0].split(",")


def of_type(lines, kind, talker="GP"):
    return [line for line in lines if line.startswith("$" + talker + kind + ",")]


def degrees(value, letter):
    """A position field of a sentence in signed degrees."""
    whole, minutes = value[: value.index(".") - 2], value[value.index(".") - 2 :]
    return (int(whole) + float(minutes) / 60) * (-1 if letter in "SW" else 1)


def free_port(kind=socket.SOCK_STREAM):
    with socket.socket(socket.AF_INET, kind) as trial:
        trial.bind(("127.0.0.1", 0))
        return trial.getsockname()[1]


class Setup:
    """A setup file made from one of the examples: values are put into its lines by marker and row."""

    ROWS = {"GGA": 0, "GLL": 2, "VTG": 4, "RMC": 6, "ZDA": 8, "GNS": 10, "DTM": 12}
    LONG_LISTS = ("GGA", "GNS", "VTG", "RMC", "GST")  # begin with 0.1 and 0.5 s

    def __init__(self, example="sensor.ini"):
        self.lines = (EXAMPLES / example).read_text(encoding="latin-1").splitlines()

    @staticmethod
    def field(value):
        if isinstance(value, bool):
            return "#TRUE#" if value else "#FALSE#"
        return f'"{value}"' if isinstance(value, str) else str(value)

    def put(self, marker, row, *values):
        place = self.lines.index(f'"REM {marker}"') + 1 + row
        self.lines[place] = ",".join(map(self.field, values))
        return self

    def row(self, marker, row):
        return self.lines[self.lines.index(f'"REM {marker}"') + 1 + row]

    def tcp(self, port):
        return self.put("TCP/IP settings", 0, True, True, port)

    def udp(self, port, host, mode=1):
        return self.put("UDP settings", 0, True, True, port).put("UDP Mode", 0, mode, host)

    def sensor(self, instance, port_number):
        return self.put("Sensor settings", instance - 1, f"GNSS{instance}", port_number)

    def open_windows(self, *instances):
        start = self.lines.index('"REM Open forms"') + 1
        end = self.lines.index('"REM Public variables"')
        self.lines[start:end] = [str(len(instances))]
        self.lines[start + 1 : start + 1] = [f'"frmPosition",{i},{200 * i},{200 * i},9330,9000' for i in instances]
        return self

    def sentence(self, kind, instance, enabled, interval=0):
        if kind in self.ROWS:
            return self.put("Active messages", self.ROWS[kind] + instance - 1, enabled, interval)
        return self.put(kind + " messages", instance - 1, enabled, interval)

    def only(self, instance, *kinds, interval=0):
        for kind in TYPES:
            self.sentence(kind, instance, kind in kinds, interval if kind in kinds else 0)
        return self

    def dense(self, *instances):
        """Every sentence once a second."""
        for instance in instances:
            for kind in TYPES:
                self.sentence(kind, instance, True, 2 if kind in self.LONG_LISTS else 0)
        return self

    def talker_of_second(self, talker):
        self.put("Talker ID", 0, "GP", talker, "HE", "HE")
        return self.put("GNSS Configuration", 12, "A", "A", "GPS", "GPS", "GP", talker)

    def bytes(self):
        return "".join(line + "\r\n" for line in self.lines).encode("latin-1")


class Collector:
    """Takes bytes from a source on a thread until it ends; waits for conditions on them."""

    def __init__(self, name, read, close=lambda: None):
        self.name, self.read, self.close_source = name, read, close
        self.data, self.ended = bytearray(), False
        self.changed = threading.Condition()
        self.thread = threading.Thread(target=self.run, daemon=True)
        self.thread.start()

    def run(self):
        while True:
            try:
                piece = self.read()
            except OSError:
                piece = b""
            with self.changed:
                self.data += piece
                self.ended = self.ended or not piece
                self.changed.notify_all()
            if not piece:
                return

    def wait(self, condition, what, can_end=False):
        """Comes back with the first true value of condition(bytes so far)."""
        deadline = time.monotonic() + DEADLINE_S
        with self.changed:
            while True:
                result = condition(bytes(self.data))
                if result:
                    return result
                if self.ended and not can_end:
                    raise AssertionError(f"{self.name} ended before {what}: {bytes(self.data[-2000:])!r}")
                if not self.changed.wait(deadline - time.monotonic()):
                    raise AssertionError(f"{self.name}: no {what} in time: {bytes(self.data[-2000:])!r}")

    def wait_end(self):
        self.wait(lambda _: self.ended, "end", can_end=True)
        return bytes(self.data)

    def text(self):
        with self.changed:
            return self.data.decode("utf-8", "replace")

    def lines(self, count=1, want=lambda lines: True):
        """The whole lines so far, without CR LF, once there are count of them and want(lines) holds."""

        def whole(data):
            found = data.decode("latin-1").split("\r\n")[:-1]
            return found if len(found) >= count and want(found) else None

        return self.wait(whole, f"{count} lines as wanted")

    def close(self):
        self.close_source()
        self.thread.join(5)


class TcpClient(Collector):
    def __init__(self, port, case):
        self.socket = socket.create_connection(("127.0.0.1", port), timeout=DEADLINE_S)
        self.socket.settimeout(None)
        super().__init__(f"TCP client of {port}", lambda: self.socket.recv(65536), self.hang_up)
        case.addCleanup(self.close)

    def hang_up(self):
        try:
            self.socket.shutdown(socket.SHUT_RDWR)
        except OSError:
            pass
        self.socket.close()


class UdpListener(Collector):
    """Keeps datagrams apart."""

    def __init__(self, case, port, group=None):
        self.datagrams = []
        self.socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        if group:
            self.socket.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)
            self.socket.bind((group, port))
            member = socket.inet_aton(group) + socket.inet_aton("127.0.0.1")
            self.socket.setsockopt(socket.IPPROTO_IP, socket.IP_ADD_MEMBERSHIP, member)
        else:
            self.socket.bind(("127.0.0.1", port))
        self.socket.settimeout(0.2)  # only so that closing is noticed
        self.closing = False
        super().__init__(f"UDP {port}", self.take, self.stop)
        case.addCleanup(self.close)

    def take(self):
        while not self.closing:
            try:
                datagram = self.socket.recv(65536)
            except socket.timeout:
                continue
            self.datagrams.append(datagram)
            return datagram
        return b""

    def stop(self):
        self.closing = True
        self.thread.join()
        self.socket.close()

    def take_datagrams(self, count):
        self.wait(lambda _: len(self.datagrams) >= count, f"{count} datagrams")
        return list(self.datagrams)


class Refused(Exception):
    def __init__(self, error):
        super().__init__(error["message"])
        self.code = error["code"]


class Automation:
    """JSON-RPC lines over the local socket of a program."""

    def __init__(self, path, case):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(DEADLINE_S)
        self.socket.connect(str(path))
        self.lines = self.socket.makefile("r", encoding="utf-8", newline="\n")
        self.changes, self.last_id = [], 0
        case.addCleanup(self.close)

    def close(self):
        self.lines.close()
        self.socket.close()

    def send(self, data):
        self.socket.sendall(data if isinstance(data, bytes) else data.encode())

    def message(self):
        line = self.lines.readline()
        if not line:
            raise AssertionError("the program closed the automation socket")
        return json.loads(line)

    def call(self, method, **params):
        self.last_id += 1
        self.send(json.dumps({"jsonrpc": "2.0", "id": self.last_id, "method": method, "params": params}) + "\n")
        while True:
            answer = self.message()
            if "id" not in answer:
                self.changes.append((answer["params"]["path"], answer["params"]["value"]))
                continue
            assert answer["id"] == self.last_id, answer
            if "error" in answer:
                raise Refused(answer["error"])
            return answer["result"]

    def get(self, path):
        return self.call("get", path=path)

    def set(self, path, value):
        return self.call("set", path=path, value=value)

    def click(self, path):
        return self.call("click", path=path)

    def stats(self):
        return self.call("stats")

    def next_change(self):
        """The next change of what is watched."""
        while not self.changes:
            told = self.message()
            self.changes.append((told["params"]["path"], told["params"]["value"]))
        return self.changes.pop(0)

    def wait(self, condition, what):
        """Asks until condition(self) is true."""
        deadline = time.monotonic() + DEADLINE_S
        while time.monotonic() < deadline:
            result = condition(self)
            if result:
                return result
            select.select([self.socket], [], [], 0.05)  # a change of what is watched asks again at once
        raise AssertionError(f"no {what} in time")


class Program:
    """A running brinewright-headless on a data folder of its own, ended with the test."""

    def __init__(self, case, *options, setup=None, folder=None, stdout=subprocess.PIPE):
        self.case = case
        self.folder = pathlib.Path(folder) if folder else case.new_folder()
        self.setup_file = self.folder / "Brinewright.ini"
        if setup is not None:
            self.setup_file.write_bytes(setup.bytes())
        self.socket_path = self.folder / "a.sock"
        arguments = [HEADLESS, "--data-folder", str(self.folder), "--automation", str(self.socket_path)]
        self.process = subprocess.Popen(
            arguments + list(map(str, options)),
            stdin=subprocess.DEVNULL, stdout=stdout, stderr=subprocess.PIPE, bufsize=0)
        self.pipes = [pipe for pipe in (self.process.stderr, self.process.stdout) if pipe]
        self.collectors = [Collector(f"output {pipe.fileno()}", lambda pipe=pipe: os.read(pipe.fileno(), 65536))
                           for pipe in self.pipes]
        self.stderr, self.stdout = self.collectors[0], self.collectors[-1]
        case.addCleanup(self.kill)
        self.told(r"Running\. |Virtual time stands")

    def told(self, pattern):
        """Waits until stderr says it."""
        return self.stderr.wait(lambda data: re.search(pattern, data.decode("utf-8", "replace")), pattern)

    def automation(self):
        return Automation(self.socket_path, self.case)

    def wait_exit(self):
        status = self.process.wait(DEADLINE_S)
        for collector in self.collectors:
            collector.wait_end()
        return status

    def boxes(self):
        """The texts of the message boxes so far, with their titles."""
        return re.findall(r"\[box \d+\] (.*)", self.stderr.text())

    def stop(self, how=signal.SIGTERM):
        self.process.send_signal(how)
        return self.wait_exit()

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        for collector, pipe in zip(self.collectors, self.pipes):
            collector.thread.join(5)
            pipe.close()


class TestCase(unittest.TestCase):
    def new_folder(self):
        folder = tempfile.TemporaryDirectory(prefix="bw-")
        self.addCleanup(folder.cleanup)
        return pathlib.Path(folder.name)

    def run_to_end(self, *arguments, program=HEADLESS, status=0, stdin=None, env=None):
        """Runs a program that ends by itself."""
        done = subprocess.run([program, *map(str, arguments)], stdin=subprocess.DEVNULL, capture_output=True,
                              timeout=5 * DEADLINE_S, env=env)
        self.assertEqual(done.returncode, status, done.stderr.decode("utf-8", "replace"))
        return done

    def assert_valid(self, sentences):
        self.assertTrue(sentences)
        for sentence in sentences:
            self.assertTrue(is_valid(sentence), sentence)
