"""UDP links: datagrams with tag blocks to one host and to a multicast group, and hosts that cannot be reached."""

import re
import socket
import unittest

from harness import Program, Setup, TcpClient, TestCase, UdpListener, checksum, fields, free_port, is_valid

LINK_0 = 18  # port number of UDP link 0
GROUP = "239.192.0.4"


class Framing(TestCase):
    def check_datagrams(self, datagrams):
        """Looks at the framing of one sensor's datagrams from its first on; comes back with the sentences."""
        sentences, groups = [], []
        for number, datagram in enumerate(datagrams, 1):
            self.assertTrue(datagram.startswith(b"UdPbC\0\\"), datagram)
            tags, sentence = re.fullmatch(r"UdPbC\0\\([^\\]*)\\(.*)\r\n", datagram.decode("latin-1")).groups()
            body, _, given = tags.rpartition("*")
            self.assertEqual(given, checksum(body), tags)
            self.assertTrue(is_valid(sentence), sentence)
            parts = body.split(",")
            self.assertEqual(parts[:2], ["s:GP0001", f"n:{number}"])
            if sentence.startswith("$GPGSV"):
                total, place = fields(sentence)[1:3]
                groups.append(tuple(map(int, re.fullmatch(r"g:(\d+)-(\d+)-(\d+)", parts[2]).groups())))
                self.assertEqual(groups[-1][:2], (int(place), int(total)))
            self.assertEqual(len(parts), 3 if sentence.startswith("$GPGSV") else 2, body)
            sentences.append(sentence)
        # Eight satellites make two sentences a series; each series has a group number of its own.
        self.assertGreaterEqual(len(groups), 4)
        self.assertEqual(groups, [(1 + i % 2, 2, 1 + i // 2) for i in range(len(groups))])
        return sentences

    def setup(self, port, host):
        return Setup("multicast.ini").udp(port, host).only(1, "GGA", "GSV").sentence("GGA", 1, True, 2)

    def test_datagrams_to_one_host(self):
        port = free_port(socket.SOCK_DGRAM)
        listener = UdpListener(self, port)
        program = Program(self, setup=self.setup(port, "127.0.0.1"))
        datagrams = listener.take_datagrams(12)
        self.assertEqual(program.stop(), 0, program.stderr.text())
        kinds = {fields(sentence)[0] for sentence in self.check_datagrams(datagrams)}
        self.assertEqual(kinds, {"GPGGA", "GPGSV"})

    def test_datagrams_to_a_multicast_group_on_the_loopback_interface(self):
        port = free_port(socket.SOCK_DGRAM)
        listener = UdpListener(self, port, GROUP)
        folder = self.new_folder()
        (folder / "application-settings.ini").write_text(
            "[Settings]\nUDP_Multicast_TTL=1\nUDP_Multicast_Interface=127.0.0.1\n")
        program = Program(self, setup=self.setup(port, GROUP), folder=folder)
        datagrams = listener.take_datagrams(12)
        self.assertEqual(program.stop(), 0, program.stderr.text())
        self.check_datagrams(datagrams)


class Unreachable(TestCase):
    def test_an_unreachable_host_is_ignored_and_a_wrong_one_told(self):
        # Nobody listens at the first host's port. The second is no address.
        for host, told in (("127.0.0.1", None), ("nowhere", "UDP Error : .* Select another port number")):
            with self.subTest(host=host):
                tcp = free_port()
                setup = Setup().tcp(tcp).udp(free_port(socket.SOCK_DGRAM), host).sensor(1, LINK_0).sensor(2, 17)
                setup.only(1, "GGA").only(2, "GGA", "VTG")
                program = Program(self, setup=setup)
                remote = program.automation()
                client = TcpClient(tcp, self)
                outcome = "failed" if told else "sent"
                remote.wait(lambda a: a.stats()[outcome].get(str(LINK_0), 0) >= 3, "sentences for the host")
                self.assert_valid(client.lines(4))
                self.assertEqual(program.stop(), 0, program.stderr.text())
                boxes = program.boxes()
                self.assertEqual(len(boxes), 1 if told else 0, boxes)
                if told:
                    self.assertRegex(boxes[0], told)


if __name__ == "__main__":
    unittest.main(verbosity=2)
