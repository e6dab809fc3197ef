"""The ship under way: the example setups, what readers of the field make of the stream, and every way to steer."""

import math
import socket
import unittest

import pynmea2

from harness import (EXAMPLES, Program, Setup, TcpClient, TestCase, UdpListener, checksum, fields, free_port, is_valid)


def kinds_of(lines):
    return {fields(line)[0] for line in lines if line.startswith("$")}


def last(lines, kind):
    return next(pynmea2.parse(line, check=True) for line in reversed(lines) if fields(line)[0] == kind)


def with_checksum(body):
    return f"${body}*{checksum(body)}\r\n".encode()


DEMO = {"GPGGA", "GPVTG", "GPRMC", "GPZDA", "HEHDT", "HEROT", "VWVHW", "VWVBW", "SDDBT", "SDDPT", "WIMWV", "WIMWD"}


class Examples(TestCase):
    def demo(self, *options):
        port = free_port()
        program = Program(self, *options, setup=Setup("demo.ini").tcp(port))
        return program, TcpClient(port, self)

    def test_the_demo_is_a_ship_under_way_as_readers_of_the_field_understand_it(self):
        program, client = self.demo()
        remote = program.automation()
        lines = client.lines(60, lambda all: DEMO <= kinds_of(all) and sum("HDT" in line for line in all) > 4)
        self.assert_valid(lines)
        heading, turn = last(lines, "HEHDT"), last(lines, "HEROT")
        self.assertEqual(turn.status, "A")
        self.assertGreater(abs(float(turn.rate_of_turn)), 0)
        self.assertLess(abs(float(turn.rate_of_turn)), 30)
        headings = [float(fields(line)[1]) for line in lines if fields(line)[0] == "HEHDT"]
        self.assertGreater(len(set(headings)), 1, "the ship does not turn")
        ground = last(lines, "GPVTG")
        self.assertEqual(float(ground.spd_over_grnd_kts), 12)
        water = last(lines, "VWVHW")
        self.assertEqual(float(water.water_speed_knots), 12)
        self.assertAlmostEqual(float(water.water_speed_km), 12 * 1.852, delta=0.01)
        self.assertAlmostEqual(float(water.heading_true), float(heading.heading), delta=2)
        depth = last(lines, "SDDBT")
        self.assertGreater(float(depth.depth_meters), 0)
        self.assertAlmostEqual(float(depth.depth_feet), float(depth.depth_meters) / 0.3048, delta=0.1)
        self.assertEqual(float(last(lines, "SDDPT").depth), float(depth.depth_meters))
        wind = last(lines, "WIMWV")
        self.assertEqual((wind.reference, wind.wind_speed_units, wind.status), ("R", "N", "A"))
        # From the true wind and the ship's motion, by plain vectors.
        true = last(lines, "WIMWD")
        course = math.radians(float(ground.true_track))
        blows_to = math.radians(float(true.direction_true) + 180)
        east = float(true.wind_speed_knots) * math.sin(blows_to) - 12 * math.sin(course)
        north = float(true.wind_speed_knots) * math.cos(blows_to) - 12 * math.cos(course)
        self.assertAlmostEqual(float(wind.wind_speed), math.hypot(east, north), delta=0.3)
        comes_from = math.degrees(math.atan2(-east, -north) - course) % 360
        self.assertLess(abs((float(wind.wind_angle) - comes_from + 180) % 360 - 180), 2)
        latitude = remote.get("state.Nav_Lat")
        remote.wait(lambda a: abs(a.get("state.Nav_Lat") - latitude) > 1e-5, "motion")
        self.assertEqual(program.boxes(), [])
        self.assertEqual(program.stop(), 0, program.stderr.text())

    def test_the_sensor_example_sends_what_its_script_starts(self):
        port = free_port()
        program = Program(self, "--script", EXAMPLES / "sensor.script", setup=Setup("sensor.ini").tcp(port))
        lines = TcpClient(port, self).lines(40, lambda all: sum(line.startswith("$GPVTG,045.0") for line in all) > 2)
        self.assert_valid(lines)
        self.assertEqual(program.boxes(), [])
        self.assertEqual(program.stop(), 0, program.stderr.text())

    def test_the_multicast_example_frames_its_sentences(self):
        port = free_port(socket.SOCK_DGRAM)
        setup = Setup("multicast.ini").udp(port, "127.0.0.1")
        program = Program(self, setup=setup)
        for datagram in UdpListener(self, port).take_datagrams(6):
            self.assertTrue(datagram.startswith(b"UdPbC\0\\"), datagram)
            self.assertTrue(is_valid(datagram.decode("latin-1").rsplit("\\")[-1].strip()), datagram)
        self.assertEqual(program.stop(), 0, program.stderr.text())


class Steering(TestCase):
    def start(self, *options, setup=None):
        self.port = free_port()
        setup = setup or Setup("demo.ini")
        folder = self.new_folder()
        (folder / "Quillon_UDP_port.txt").write_text(f"{getattr(self, 'control', 0)}\r\n")
        return Program(self, *options, setup=setup.tcp(self.port), folder=folder)

    def test_control_datagrams_steer_the_ship(self):
        self.control = free_port(socket.SOCK_DGRAM)
        program = self.start("--control-input")
        remote = program.automation()
        self.assertIn(f"Dedicated Quillon UDP port  {self.control} opened for NMEA VTG and ROT input. NB! Only relevant for Ship "
                      "mode.", program.boxes()[0])
        sender = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self.addCleanup(sender.close)

        def send(datagram):
            sender.sendto(datagram, ("127.0.0.1", self.control))

        send(with_checksum("GPVTG,045.0,T,046.0,M,20.0,N,037.0,K,A"))
        send(with_checksum("TIROT,-12.5,A"))
        remote.wait(lambda a: a.get("frmShip.sldRudder") == -125, "the commanded rate of turn")
        self.assertEqual(remote.get("frmShip.sldThrottle"), -50)
        self.assertEqual(remote.get("state.Nav_SOG"), 20)
        # What is no such sentence steers nothing, and none of it ends the program.
        for datagram in (b"", b"\0", b"$GP", b"\xff" * 60000, b"VTG" * 20000, b"$GPGGA,1,2,3", b"$GPVTG", b"$XXROT",
                         b"$GPVTG,,T,,M,nan,N,inf,K*", b"$GPROT,1e999,A"):
            send(datagram)
        send(b"$IIROT,+3.0,A")  # neither checksum nor line end is asked for
        remote.wait(lambda a: a.get("frmShip.sldRudder") == 30, "the last command")
        self.assertTrue(math.isfinite(remote.get("state.Nav_SOG")))
        client = TcpClient(self.port, self)
        self.assert_valid(client.lines(20))
        self.assertFalse([line for line in client.lines() if "nan" in line.lower() or "inf" in line.lower()])
        # In Sensor mode it is told once that they count for nothing.
        remote.click("frmMain.mnuMode(2)")
        told = len(program.boxes())
        for _ in range(3):
            send(with_checksum("GPVTG,045.0,T,046.0,M,5.0,N,009.3,K,A"))
        program.told("is only relevant in Ship mode. UDP input ignored! ")
        remote.click("frmMain.mnuMode(1)")
        send(b"$IIROT,4.5,A")  # what was left unread comes before it
        remote.wait(lambda a: a.get("frmShip.sldRudder") == 45, "a command after the change of mode")
        self.assertEqual(remote.get("state.Nav_SOG"), 5)
        self.assertEqual(len(program.boxes()), told + 1)
        self.assertEqual(program.stop(), 0, program.stderr.text())

    def test_a_control_input_without_a_port_is_told(self):
        for content in (None, "", "many", "0", "-5", "70000"):
            with self.subTest(content=content):
                folder = self.new_folder()
                if content is not None:
                    (folder / "Quillon_UDP_port.txt").write_text(content)
                program = Program(self, "--control-input", setup=Setup("demo.ini").tcp(free_port()), folder=folder)
                remote = program.automation()
                remote.wait(lambda a: a.stats()["sent"].get("17", 0) > 5, "sentences")
                self.assertEqual(len(program.boxes()), 1, program.boxes())
                self.assertEqual(program.stop(), 0, program.stderr.text())

    def test_the_keyboard_steers_with_all_its_modifiers(self):
        program = self.start("--virtual", "--start-time", "2026-06-21T10:15:00")
        remote = program.automation()
        remote.click("frmShip.cmdZero")
        remote.click("frmShip.cmdArrows")

        def press(code, *held):
            remote.call("key", path="frmShip", code=code, held=list(held))
            return remote.get("frmShip.sldThrottle"), remote.get("frmShip.sldRudder")

        limit = round(remote.get("state.Max_Rudder") * 10)
        for keys, wanted in ((("Up",), (-1, 0)), (("Page_Up",), (-11, 0)), (("Down", "Shift"), (-1, 0)),
                             (("Right", "Shift"), (-1, 10)), (("Left",), (-1, 9)), (("Up", "Ctrl"), (-100, 9)),
                             (("Left", "Ctrl"), (-100, -limit)), (("Down", "Alt"), (0, -limit)), (("Right", "Alt"), (0, 0)),
                             (("Page_Down", "Ctrl"), (100, 0))):
            with self.subTest(keys=keys):
                self.assertEqual(press(*keys), wanted)
        self.assertEqual(remote.get("state.Nav_SOG"), -remote.get("state.Max_Speed_Astern"))
        remote.call("advance", seconds=2)
        course, heading = remote.get("state.Nav_COG"), remote.get("state.Nav_HDG")
        self.assertAlmostEqual((course - heading) % 360, 180, delta=1e-6)
        self.assertEqual(program.stop(), 0, program.stderr.text())

    def test_a_joystick_script_steers(self):
        folder = self.new_folder()
        script = folder / "stick"
        script.write_text("# seconds x y buttons\n0 32768 32768 0\n10 40000 32768 0\n11 32768 32768 0\n"
                          "20 32768 0 0\n20.5 32768 32768 0\n30 32768 32768 1\n31 gone\n")
        program = self.start("--virtual", "--start-time", "2026-06-21T10:15:00", "--joystick-script", script)
        remote = program.automation()
        rudder, throttle = remote.get("frmShip.sldRudder"), remote.get("frmShip.sldThrottle")
        self.assertFalse(remote.get("frmShip.cmdFreeze.Visible"))
        remote.call("advance", seconds=15)
        self.assertAlmostEqual(remote.get("frmShip.sldRudder"), rudder + 10, delta=1)
        remote.call("advance", seconds=10)
        self.assertAlmostEqual(remote.get("frmShip.sldThrottle"), max(-100, throttle - 50), delta=10)
        remote.call("advance", seconds=15)
        self.assertEqual((remote.get("frmShip.sldRudder"), remote.get("frmShip.sldThrottle")), (0, 0))
        self.assertEqual(remote.get("state.Nav_SOG"), 0)
        self.assertEqual(program.stop(), 0, program.stderr.text())


if __name__ == "__main__":
    unittest.main(verbosity=2)
