"""Serial ports on pseudo-terminals: sentences out, input on the monitor, devices that are missing, taken or go away."""

import fcntl
import os
import select
import tty
import unittest

from harness import Collector, Program, Setup, TcpClient, TestCase, free_port, of_type

NOT_AVAILABLE = " not available! Please re-arrange your COM Setup! (Use Reset buttom on Com Setup)"
WRITE_ERROR = "Comport error COM 1. Check your Comport settings!"


class Line:
    """A pseudo-terminal, whose far end is read by a collector until it is closed."""

    def __init__(self, case):
        self.far, near = os.openpty()
        tty.setraw(near)
        self.path = os.ttyname(near)
        self.near = open(near, "rb", buffering=0)  # as long as it is held, openings of others come and go unseen
        self.closing = False
        self.received = Collector("far end of " + self.path, self.take, self.stop)
        case.addCleanup(self.vanish)

    def take(self):
        while not self.closing:
            if select.select([self.far], [], [], 0.2)[0]:  # a limit only so that closing is noticed
                return os.read(self.far, 4096)
        return b""

    def stop(self):
        self.closing = True
        self.received.thread.join()
        os.close(self.far)

    def vanish(self):
        """Both of our ends go, as when an adapter is pulled out."""
        if not self.closing:
            self.near.close()
            self.received.close()


def serial_setup(tcp_port):
    """GNSS 1 on COM 1, GNSS 2 on TCP."""
    setup = Setup("serial.ini").tcp(tcp_port).sensor(2, 17).open_windows(1, 2)
    return setup.only(1, "GGA", "VTG").only(2, "GGA", "VTG")


class Output(TestCase):
    def test_sentences_and_input_on_the_monitor(self):
        line, tcp = Line(self), free_port()
        program = Program(self, "--com", "1=" + line.path, setup=serial_setup(tcp))
        sentences = line.received.lines(6, lambda all: of_type(all, "GGA") and of_type(all, "VTG"))
        self.assert_valid(sentences)

        remote = program.automation()
        os.write(line.far, b"before anybody looks\r\n")
        remote.click("frmMain.mnuExtendedMonitor")
        remote.set("frmExtendedMonitor.cmbComPort", "COM 1")
        os.write(line.far, b"$HEHDT,123.4,T*2A\r\nhalf a li")
        remote.wait(lambda a: "$HEHDT,123.4,T*2A" in a.get("frmExtendedMonitor.txtInput"), "input on the monitor")
        self.assertNotIn("half a li", remote.get("frmExtendedMonitor.txtInput"))
        os.write(line.far, b"ne\n")
        remote.wait(lambda a: "half a line" in a.get("frmExtendedMonitor.txtInput"), "rest of the line")
        remote.wait(lambda a: "$GPGGA" in a.get("frmExtendedMonitor.txtOutput"), "output on the monitor")
        self.assertEqual(program.boxes(), [])
        self.assertEqual(program.stop(), 0, program.stderr.text())

    def test_a_device_that_goes_away_is_told_once(self):
        line, tcp = Line(self), free_port()
        program = Program(self, "--com", "1=" + line.path, setup=serial_setup(tcp))
        line.received.lines(2)
        line.vanish()
        remote = program.automation()
        remote.wait(lambda a: a.stats()["failed"].get("1", 0) >= 4, "failed sentences")
        self.assert_valid(TcpClient(tcp, self).lines(4))
        self.assertEqual(program.stop(), 0, program.stderr.text())
        self.assertEqual(program.boxes(), ["Comport error: " + WRITE_ERROR])


class Opening(TestCase):
    def test_missing_and_taken_devices_are_told_and_the_rest_goes_on(self):
        taken = Line(self)
        fcntl.flock(taken.near, fcntl.LOCK_EX)
        for device, reason in (("/dev/no-such-device", "No such file or directory"),
                               (taken.path, "Device or resource busy"), (os.devnull, "Inappropriate ioctl for device")):
            with self.subTest(device=device):
                tcp = free_port()
                program = Program(self, "--com", "1=" + device, setup=serial_setup(tcp))
                remote = program.automation()
                remote.wait(lambda a: a.stats()["failed"].get("1", 0) >= 3, "failed sentences")
                self.assert_valid(TcpClient(tcp, self).lines(4))
                self.assertEqual(program.stop(), 0, program.stderr.text())
                self.assertEqual(program.boxes(), [reason + ". Comport  1" + NOT_AVAILABLE, "Comport error: " + WRITE_ERROR])
        self.assertEqual(taken.received.data, b"")


if __name__ == "__main__":
    unittest.main(verbosity=2)
