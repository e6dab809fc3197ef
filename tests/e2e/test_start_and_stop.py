"""From start to end: setups good and bad, options, signals, and what is saved."""

import fcntl
import os
import signal
import socket
import subprocess
import time
import unittest

from harness import HEADLESS, Program, Refused, Setup, TcpClient, TestCase, free_port

FALLEN_BACK = "  Default data loaded"


class Saving(TestCase):
    def test_signals_end_it_as_exit_does_and_the_windows_come_back(self):
        tcp = free_port()
        setup = Setup().tcp(tcp).open_windows(1).only(1, "GGA").only(2, "VTG")
        first = Program(self, setup=setup)
        remote = first.automation()
        remote.click("frmMain.mnuOpenForm(2)")
        remote.set("frmPosition[2].txtSOG", "7.5")
        remote.set("frmPosition[1].cmbGGAInterval", 4)
        remote.set("frmPosition[2].Left", 4321)
        remote.call("close", path="frmPosition[1]")
        self.assertEqual(first.stop(signal.SIGINT), 0, first.stderr.text())
        saved = Setup()
        saved.lines = first.setup_file.read_bytes().decode("latin-1").split("\r\n")
        # Those that were open at the end stand in the list.
        places = [saved.row("Open forms", row) for row in range(1, 1 + int(saved.row("Open forms", 0)))]
        self.assertEqual([place.split(",")[:2] for place in places], [['"frmPosition"', "2"]])
        self.assertEqual(places[0].split(",")[3], "4321")
        self.assertEqual(saved.row("Active messages", 0), "#TRUE#,4")

        second = Program(self, folder=first.folder)
        remote = second.automation()
        self.assertEqual(remote.get("frmPosition[2].Left"), 4321)
        self.assertRaises(Refused, remote.get, "frmPosition[1]")  # closed by hand, closed at the next start
        remote.click("frmMain.mnuOpenForm(1)")
        self.assertEqual(remote.get("frmPosition[1].cmbGGAInterval.ListIndex"), 4)
        remote.click("frmMain.mnuMode(1)")  # what is changed must be saved also by the other signal
        self.assertEqual(second.stop(signal.SIGTERM), 0, second.stderr.text())
        saved.lines = second.setup_file.read_bytes().decode("latin-1").split("\r\n")
        self.assertEqual(saved.row("Mode", 0), '"Ship"')

    def test_a_virtual_run_of_its_own_ends_at_a_signal_too(self):
        for how in (signal.SIGTERM, signal.SIGINT):
            folder = self.new_folder()
            record = folder / "rec"
            run = subprocess.Popen([HEADLESS, "--data-folder", folder, "--virtual", "--duration", "1e9", "--record", record])
            deadline = time.monotonic() + 20
            while not record.exists() and time.monotonic() < deadline:
                time.sleep(0.05)
            time.sleep(0.3)
            run.send_signal(how)
            self.assertEqual(run.wait(20), 0)
            self.assertTrue((folder / "Brinewright.ini").read_bytes().startswith(b'"REM Mode"'))

    def test_a_save_that_fails_at_the_end_is_told_and_in_the_status(self):
        place = self.new_folder()
        done = self.run_to_end("--data-folder", place, "--setup", place / "no/such/x.ini", "--virtual", "--duration", 1, status=3)
        self.assertIn(f"could not be saved as {place}/no/such/x.ini: No such file or directory", done.stderr.decode())

    def test_no_save_leaves_the_bytes(self):
        setup = Setup().tcp(free_port()).open_windows(1).only(1, "GGA")
        program = Program(self, "--no-save", setup=setup)
        program.automation().click("frmMain.mnuOpenForm(2)")
        program.automation().click("frmMain.mnuFileExit")
        self.assertEqual(program.wait_exit(), 0, program.stderr.text())
        self.assertEqual(program.setup_file.read_bytes(), setup.bytes())

    def test_a_second_instance_has_a_setup_of_its_own(self):
        folder = self.new_folder()
        other = Setup().open_windows(1).bytes()
        (folder / "Brinewright.ini").write_bytes(other)
        (folder / "Brinewright_2.ini").write_bytes(Setup().tcp(free_port()).open_windows(2).only(2).bytes())
        program = Program(self, "--instance", 2, folder=folder)
        remote = program.automation()
        self.assertEqual(remote.get("frmMain.Caption"), "Brinewright  -2 - Version : 7.00 2026-04-21")
        self.assertEqual(remote.get("frmPosition[2].Tag"), "2")
        self.assertRaises(Refused, remote.get, "frmPosition[1]")
        (folder / "Brinewright_2.ini").unlink()
        self.assertEqual(program.stop(), 0, program.stderr.text())
        self.assertIn(b'"frmPosition",2,', (folder / "Brinewright_2.ini").read_bytes())
        self.assertEqual((folder / "Brinewright.ini").read_bytes(), other)

    def test_the_users_folders_are_those_of_the_xdg_rules(self):
        home = self.new_folder()
        env = dict(os.environ, HOME=str(home), XDG_DATA_HOME=str(home / "data"), XDG_CONFIG_HOME=str(home / "config"))
        done = self.run_to_end("--virtual", "--duration", 1, env=env)
        self.assertIn(b"No setupfile exist. Default data loaded and no comports initialized ! ", done.stderr)
        saved = (home / "data/Tidewerk/Brinewright/Brinewright.ini").read_bytes()
        self.assertTrue(saved.startswith(b'"REM Mode"\r\n"Ship"\r\n'))
        settings = (home / "config/Tidewerk/Brinewright.ini").read_text()
        for line in ("[Settings]", "MainLeft=1000", "MainTop=1000", "MainWidth=6500", "MainHeight=6500"):
            self.assertIn(line, settings.splitlines())


class BadSetups(TestCase):
    def run_with(self, setup_file):
        folder = self.new_folder()
        done = self.run_to_end("--data-folder", folder / "data", "--setup", setup_file, "--virtual", "--duration", 20,
                               "--stdout")
        return done.stderr.decode()

    def test_a_setup_that_cannot_be_read_gives_defaults_and_stays_as_it_is(self):
        good = Setup().bytes()
        cases = {
            "truncated": good[: good.index(b"REM Talker ID") + 30],
            "cut in a text": good[: good.index(b'"GNSS2"') + 4],
            "wrong field": good.replace(b"62.4722", b"sixty-two"),
            "too many windows": good.replace(b'"REM Open forms"\r\n2', b'"REM Open forms"\r\n2000'),
            "number too large": good.replace(b"4800,8", b"4800,99999", 1),
        }
        for name, content in cases.items():
            with self.subTest(name=name):
                self.assertNotEqual(content, good)
                file = self.new_folder() / "bad.ini"
                file.write_bytes(content)
                self.assertIn(FALLEN_BACK, self.run_with(file))
                self.assertEqual(file.read_bytes(), content)

    def test_a_folder_and_a_huge_file(self):
        place = self.new_folder()
        (place / "folder.ini").mkdir()
        self.assertIn(FALLEN_BACK, self.run_with(place / "folder.ini"))
        self.assertEqual(list((place / "folder.ini").iterdir()), [])
        with open(place / "huge.ini", "wb") as huge:
            huge.write(Setup().bytes())
            huge.truncate(100_000_000)
        before = (place / "huge.ini").stat()
        self.assertIn(FALLEN_BACK, self.run_with(place / "huge.ini"))
        after = (place / "huge.ini").stat()
        self.assertEqual((after.st_ino, after.st_size, after.st_mtime_ns), (before.st_ino, before.st_size, before.st_mtime_ns))

    def test_a_file_of_another_kind_is_not_overwritten(self):
        for content in (b"Dear diary,\nit rained.\n", bytes(range(256)) * 40):
            file = self.new_folder() / "other.ini"
            file.write_bytes(content)
            self.run_with(file)
            self.assertEqual(file.read_bytes(), content)


class Options(TestCase):
    def test_wrong_options_are_told_in_one_line(self):
        place = self.new_folder()
        (place / "script").write_text("1 {nonsense\n")
        cases = ["--bogus", "surplus", "--duration", "--duration 0", "--duration nan", "--instance 4", "--seed x", "--seed -1", "--seed 18446744073709551616", "--com 17=/dev/x",
                 "--com 1=", "--setup=", "--virtual", "--virtual --duration 1 --start-time yesterday", "--start-time 2026-01-01",
                 f"--data-folder {place} --virtual --script {place}/script", f"--data-folder {place} --virtual --script {place}/none",
                 f"--data-folder {place} --virtual --duration 1 --record {place}/none/x",
                 f"--data-folder {place} --automation {place}/{'x' * 200}"]
        for arguments in cases:
            with self.subTest(arguments=arguments):
                done = self.run_to_end(*arguments.split(), status=2)
                self.assertEqual(done.stdout, b"")
                self.assertRegex(done.stderr.decode(), r"\Abrinewright-headless: [^\n]+\n\Z")

    def test_help_tells_every_option(self):
        self.assertEqual(self.run_to_end("--version").stdout, b"Brinewright 7.00 2026-04-21\n")
        text = self.run_to_end("--help").stdout.decode()
        for option in ("setup FILE", "no-save", "data-folder DIR", "instance 1|2|3", "com N=DEVICE", "stdout", "record FILE",
                       "script FILE", "automation PATH", "hold-boxes", "seed N", "duration S", "virtual", "start-time ISO"):
            self.assertIn("--" + option, text)

    def test_a_script_line_that_is_refused_is_told_and_the_status_says_so(self):
        place = self.new_folder()
        (place / "script").write_text('# one\n1 {"method": "click", "params": {"path": "frmMain.mnuNothing"}}\n2 {"method": "ping"}\n')
        done = self.run_to_end("--data-folder", place, "--virtual", "--script", place / "script", status=1)
        self.assertRegex(done.stderr.decode(), r"script line 2: .*frmMain\.mnuNothing")


class RealTime(TestCase):
    def test_a_taken_port_is_told_and_the_program_ends_after_its_duration(self):
        with socket.socket() as taken:
            taken.bind(("0.0.0.0", 0))
            taken.listen()
            setup = Setup().tcp(taken.getsockname()[1]).open_windows(1).only(1, "GGA")
            program = Program(self, "--duration", 2.5, setup=setup)
            remote = program.automation()
            remote.wait(lambda a: a.stats()["failed"].get("17", 0) >= 2, "sentences that go on")
            self.assertEqual(remote.stats()["sent"], {})
            self.assertGreater(remote.stats()["uptime_s"], 0)
            self.assertEqual(program.wait_exit(), 0, program.stderr.text())
        self.assertEqual(program.boxes(), ["TCP/IP Error : Address already in use Select another port number"])
        self.assertIn("could not be opened", program.stderr.text())

    def test_output_that_nobody_takes_any_more_does_not_end_it(self):
        reading, writing = os.pipe()
        os.close(reading)
        tcp = free_port()
        setup = Setup().tcp(tcp).open_windows(1).only(1, "GGA")
        program = Program(self, "--stdout", "--record", "/dev/full", setup=setup, stdout=writing)
        os.close(writing)
        program.told("stdout: Broken pipe; nothing more is written to it")
        program.told("/dev/full: No space left on device; nothing more is written to it")
        self.assert_valid(TcpClient(tcp, self).lines(3))
        self.assertEqual(program.stop(), 3, program.stderr.text())  # the recording is not there

    def test_a_pipe_that_nobody_reads_holds_nothing_up(self):
        reading, writing = os.pipe()
        self.addCleanup(os.close, reading)
        fcntl.fcntl(writing, fcntl.F_SETPIPE_SZ, 4096)
        tcp = free_port()
        program = Program(self, "--stdout", setup=Setup().tcp(tcp).open_windows(1).dense(1), stdout=writing)
        os.close(writing)
        TcpClient(tcp, self).lines(100)  # more than the pipe holds
        self.assertEqual(program.stop(), 0, program.stderr.text())
        self.assertRegex(program.stderr.text(), r"stdout: \d+ sentences dropped\n")
        text = os.read(reading, 65536)
        self.assert_valid(text.decode().split("\r\n")[:-1])
        self.assertTrue(text.endswith(b"\r\n"))

    def test_what_a_killed_run_left_is_removed(self):
        folder = self.new_folder()
        gone = subprocess.Popen(["true"])
        gone.wait()
        left, foreign = folder / f".brinewright-{gone.pid}-0.tmp", folder / f".brinewright-{os.getpid()}-0.tmp"
        left.touch(), foreign.touch()
        self.run_to_end("--data-folder", folder, "--virtual", "--duration", 1)
        self.assertFalse(left.exists())
        self.assertTrue(foreign.exists())

    def test_a_held_box_stops_output_until_it_is_answered(self):
        tcp = free_port()
        program = Program(self, "--hold-boxes", setup=Setup().tcp(tcp).open_windows(1).only(1, "GGA"))
        remote = program.automation()
        client = TcpClient(tcp, self)
        client.lines(2)
        remote.click("frmMain.mnuOptionsFaultyChecksum")
        sent = remote.stats()["sent"]
        remote.wait(lambda a: a.stats()["dropped_by_box"] >= 5, "dropped sentences")
        self.assertEqual(remote.stats()["sent"], sent)
        [box] = remote.call("boxes")
        self.assertEqual(box["text"], "Faulty checksum enabled. All simulated NMEA messages will be simulated with faulty checksum")
        remote.call("answer", id=box["id"])
        self.assertEqual(remote.call("boxes"), [])
        client.lines(len(client.lines()) + 3)
        self.assertEqual(program.stop(), 0, program.stderr.text())


if __name__ == "__main__":
    unittest.main(verbosity=2)
