"""Tests the package with the library that KELVRA_TEXT_LIBRARY names."""
import ctypes
import ctypes.util
import gc
import os
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile
import textwrap
import threading
import unittest
import unittest.mock
import warnings

import kelvra

TOP = pathlib.Path(__file__).resolve().parents[2]
SAMPLE = TOP / "samples" / "call.pcap"
PACKAGE = TOP / "python" / "kelvra"
REJECT = bytes.fromhex("08000004060008914a000520")


def python(program, *, folder=PACKAGE.parent, library=None, cwd=TOP):
    """Runs a program in its own interpreter, without the library that this one has loaded."""
    environment = {name: value for name, value in os.environ.items() if name != kelvra.LIBRARY_VARIABLE}
    environment["PYTHONPATH"] = str(folder)
    if library is not None:
        environment[kelvra.LIBRARY_VARIABLE] = str(library)
    return subprocess.run([sys.executable, "-c", textwrap.dedent(program)], env=environment, cwd=cwd,
                          capture_output=True, text=True, timeout=120)


def library_file():
    return pathlib.Path(os.environ[kelvra.LIBRARY_VARIABLE]).resolve()


class FolderCase(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def file(self, octets, name="a.pcap"):
        path = self.folder / name
        path.write_bytes(octets)
        return path


class Decode(unittest.TestCase):
    def test_a_whole_message(self):
        for octets in (REJECT, bytearray(REJECT), memoryview(REJECT)):
            message = kelvra.decode("ras", octets)
            self.assertEqual((message["name"], message["complete"], message["octets"]), ("gatekeeperReject", True, 12))
            self.assertEqual(message["message"]["gatekeeperReject"]["requestSeqNum"], 5)

    def test_each_family_has_decoders_of_its_own(self):
        self.assertEqual(kelvra.decode("h245", bytes.fromhex("0300"))["family"], "h245")
        self.assertEqual(kelvra.decode("q931", b"")["family"], "q931")
        self.assertFalse(kelvra.decode("q931", b"")["complete"])

    def test_octets_with_zeros_are_handed_over_whole(self):
        self.assertEqual(kelvra.decode("h245", bytes(500))["octets"], 500)

    def test_a_message_cut_short_is_raised_on_request_only(self):
        cut = kelvra.decode("ras", REJECT[:8])
        self.assertFalse(cut["complete"])
        with self.assertRaises(kelvra.MalformedMessage) as raised:
            kelvra.decode("ras", REJECT[:8], strict=True)
        self.assertEqual(raised.exception.message, cut)
        self.assertEqual(str(raised.exception), "gatekeeperReject: a length announces more octets than there are in "
                                                "protocolIdentifier at octet 5")
        with self.assertRaisesRegex(kelvra.MalformedMessage, "^a message: .*, after 0 octets at octet 0$"):
            kelvra.decode("q931", b"", strict=True)
        self.assertTrue(kelvra.decode("ras", REJECT, strict=True)["complete"])

    def test_wrong_arguments(self):
        with self.assertRaisesRegex(ValueError, "no family: 'sip'"):
            kelvra.decode("sip", REJECT)
        for octets in ("0800", 8, [8, 0]):
            with self.assertRaises(TypeError):
                kelvra.decode("ras", octets)

    def test_threads_decode_as_one_alone(self):
        expected = kelvra.decode("ras", REJECT)
        results = []

        def decode_many():
            results.append(all(kelvra.decode("ras", REJECT) == expected for _ in range(300)))

        threads = [threading.Thread(target=decode_many) for _ in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(results, [True] * 4)


class ReadCapture(FolderCase):
    def test_the_sample(self):
        messages = list(kelvra.read_capture(SAMPLE))
        self.assertGreater(len(messages), 5)
        self.assertEqual(messages[0]["frame"], 1)
        self.assertEqual({"time", "source", "destination"} - set(messages[0]), set())
        self.assertEqual(messages, list(kelvra.read_capture(str(SAMPLE), strict=True)))

    def test_captures_are_read_side_by_side(self):
        one, other = kelvra.read_capture(SAMPLE), kelvra.read_capture(SAMPLE)
        self.assertTrue(all(a == b for a, b in zip(one, other)))

    def test_a_capture_that_is_left_is_closed(self):
        descriptors = pathlib.Path("/proc/self/fd")
        if not descriptors.is_dir():
            self.skipTest("no /proc")
        before = len(list(descriptors.iterdir()))
        for _ in range(20):
            next(kelvra.read_capture(SAMPLE))
            kelvra.read_capture(SAMPLE)
        gc.collect()
        self.assertEqual(len(list(descriptors.iterdir())), before)

    def test_what_cannot_be_read_is_raised_at_once(self):
        for path in (self.folder / "missing.pcap", self.file(b"no capture")):
            with self.assertRaisesRegex(kelvra.UnreadableCapture, path.name):
                kelvra.read_capture(path)

    def test_a_capture_cut_short_fails_after_its_messages(self):
        read = []
        with self.assertRaises(kelvra.UnreadableCapture):
            for message in kelvra.read_capture(self.file(SAMPLE.read_bytes()[:-7])):
                read.append(message)
        self.assertEqual(read, list(kelvra.read_capture(SAMPLE))[:len(read)])
        self.assertGreater(len(read), 1)

    def test_a_loss_is_a_warning(self):
        octets = SAMPLE.read_bytes()
        start = octets.index(b"\x03\x00\x00")
        damaged = self.file(octets[:start] + b"\x09" + octets[start + 1:])
        with self.assertWarns(kelvra.CaptureLoss):
            self.assertGreater(len(list(kelvra.read_capture(damaged))), 1)
        with warnings.catch_warnings():
            warnings.simplefilter("error")
            list(kelvra.read_capture(SAMPLE))

    def test_further_ports(self):
        other = self.file(SAMPLE.read_bytes().replace(struct.pack(">H", 1719), struct.pack(">H", 1819)))
        without = list(kelvra.read_capture(other))
        self.assertGreater(len(list(kelvra.read_capture(other, ports={"ras": [1819]}))), len(without))
        list(kelvra.read_capture(other, ports={"q931": [1, 65535]}))
        for wrong in ({"ras": [0]}, {"ras": [65537]}, {"ras": [-1]}, {"sip": [5060]}):
            with self.assertRaises(ValueError):
                kelvra.read_capture(other, ports=wrong)

    def test_strict_stops_at_the_first_message_that_is_not_complete(self):
        octets = SAMPLE.read_bytes()
        header, length = octets[:24], struct.unpack("<I", octets[32:36])[0]
        packet = bytearray(octets[40:40 + length])
        udp = 14 + 20
        packet[udp + 8:] = packet[udp + 8:-3]  # the datagram is three octets shorter
        packet[16:18] = struct.pack(">H", len(packet) - 14)
        packet[udp + 4:udp + 6] = struct.pack(">H", len(packet) - udp)
        cut = self.file(header + octets[24:32] + struct.pack("<II", len(packet), len(packet)) + packet)
        self.assertEqual([message["complete"] for message in kelvra.read_capture(cut)], [False])
        with self.assertRaises(kelvra.MalformedMessage):
            list(kelvra.read_capture(cut, strict=True))


class StandIn:
    """Stands in for the library: each call of it returns the next status and text."""

    def __init__(self, *answers):
        self.answers = list(answers)
        self.texts = []  # not freed

    def answer(self, place):
        status, octets = self.answers.pop(0)
        if octets is not None:
            self.texts.append(ctypes.create_string_buffer(octets))
            place._obj.value = ctypes.addressof(self.texts[-1])
        return status

    def kelvra_text_decode(self, _family, _octets, _size, text):
        return self.answer(text)

    def kelvra_text_open_capture(self, _path, _capture, text):
        return self.answer(text)

    def kelvra_text_next(self, _capture, text):
        return self.answer(text)

    def kelvra_text_close_capture(self, _capture):
        pass

    def kelvra_text_free(self, text):
        self.texts = [held for held in self.texts if ctypes.addressof(held) != text.value]
        text.value = None


class Statuses(unittest.TestCase):
    def loaded(self, *answers):
        library = StandIn(*answers)
        replaced = unittest.mock.patch("kelvra._library._loaded", library)
        replaced.start()
        self.addCleanup(replaced.stop)
        return library

    def test_of_a_decode(self):
        for status, text, error, words in ((-1, b"broken \xff", kelvra.LibraryError, r"broken \\xff"),
                                           (-2, None, MemoryError, ""), (-9, None, kelvra.KelvraError, "-9")):
            library = self.loaded((status, text))
            with self.assertRaisesRegex(error, words):
                kelvra.decode("ras", REJECT)
            self.assertEqual(library.texts, [])

    def test_of_a_capture(self):
        library = self.loaded((0, None), (3, b"a remark"), (0, b'{"complete": true}'), (2, b"a loss"),
                              (9, b"of a later library"), (1, None))
        with warnings.catch_warnings(record=True) as caught:
            warnings.simplefilter("always")
            messages = list(kelvra.read_capture("any"))
        self.assertEqual(messages, [{"complete": True}])
        self.assertEqual([(warning.category, str(warning.message)) for warning in caught],
                         [(kelvra.CaptureNotice, "a remark"), (kelvra.CaptureLoss, "a loss"),
                          (kelvra.CaptureNotice, "of a later library")])
        self.assertEqual({warning.filename for warning in caught}, {__file__})  # where the capture is read
        self.assertEqual(library.texts, [])


class Library(FolderCase):
    DECODE = "import kelvra; print(kelvra.decode('h245', bytes(2))['family'])"

    def test_version(self):
        self.assertEqual(kelvra.library_version(), kelvra.__version__)

    def test_the_environment_names_the_library(self):
        self.assertEqual(python(self.DECODE, library=library_file()).stdout, "h245\n")

    def test_one_that_is_named_and_missing_is_an_error_though_others_are_there(self):
        self.copy_package()
        run = python("""
            import kelvra
            try:
                kelvra.decode("ras", b"")
            except kelvra.LibraryNotFound as error:
                assert "nothing.so" in str(error) and isinstance(error, kelvra.KelvraError), error
                print("not found")
            """, folder=self.folder, library=self.folder / "nothing.so")
        self.assertEqual(run.stdout, "not found\n", run.stderr)

    def test_the_folder_of_the_package_is_searched(self):
        self.copy_package()
        self.assertEqual(python(self.DECODE, folder=self.folder).stdout, "h245\n")

    def test_the_places_of_the_system_are_searched(self):
        other = shutil.copy(library_file(), self.folder / "libelsewhere.so")
        run = python(f"import ctypes.util\nctypes.util.find_library = lambda name: {str(other)!r}\n{self.DECODE}")
        self.assertEqual(run.stdout, "h245\n", run.stderr)

    def test_a_path_is_stronger_than_the_environment(self):
        run = python(f"import kelvra; kelvra.load_library({str(library_file())!r});{self.DECODE}",
                     library=self.folder / "nothing.so")
        self.assertEqual(run.stdout, "h245\n", run.stderr)

    def test_importing_needs_no_library(self):
        run = python("import kelvra; print(kelvra.FAMILIES)", library=self.folder / "nothing.so")
        self.assertEqual(run.stdout, "('ras', 'q931', 'h245')\n", run.stderr)

    def test_another_library_is_refused(self):
        another = ctypes.util.find_library("c")
        run = python(f"import kelvra\ntry: kelvra.load_library({another!r})\nexcept kelvra.LibraryError as e: print(e)")
        self.assertIn("is not kelvra_text", run.stdout)

    def copy_package(self):
        shutil.copytree(PACKAGE, self.folder / "kelvra")
        shutil.copy(library_file(), self.folder / "kelvra" / "libkelvra_text.so")


class Installing(FolderCase):
    def test_pip_installs_from_a_checkout_without_a_registry(self):
        source = self.folder / "source"
        shutil.copytree(PACKAGE.parent, source, ignore=shutil.ignore_patterns("build", "*.egg-info", "__pycache__"))
        target = self.folder / "site"
        run = subprocess.run([sys.executable, "-m", "pip", "install", "--quiet", "--no-build-isolation", "--no-index",
                              "--no-deps", "--target", target, source], capture_output=True, text=True, timeout=200)
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertTrue((target / "kelvra" / "py.typed").exists())
        run = python(Library.DECODE, folder=target, library=library_file(), cwd=self.folder)
        self.assertEqual(run.stdout, "h245\n", run.stderr)


if __name__ == "__main__":
    unittest.main()
