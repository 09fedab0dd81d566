#!/usr/bin/env python3
"""That the checks of the library refuse what they are for: checks_test.py SCRIPTS LIBRARY DEF

LIBRARY is the shared library as shipped, DEF lists its exports.
"""
import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPTS, LIBRARY, DEF = (pathlib.Path(argument) for argument in sys.argv[1:4])


class ChecksTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def write(self, name, text):
        path = self.folder / name
        path.write_text(text)
        return path

    def run_check(self, script, *arguments):
        return subprocess.run([SCRIPTS / script, *arguments], capture_output=True, text=True, cwd=self.folder)

    def assert_passes(self, script, *arguments):
        run = self.run_check(script, *arguments)
        self.assertEqual(run.returncode, 0, run.stderr)

    def assert_refuses(self, reason, script, *arguments):
        run = self.run_check(script, *arguments)
        self.assertIn(reason, run.stderr)
        self.assertEqual(run.returncode, 1, run.stdout)


class ExportsTest(ChecksTest):
    def test_another_name_of_the_same_length_is_refused(self):
        names = DEF.read_text()
        self.assertIn("KelvraFreeRASMessage", names)
        other = self.write("other.def", names.replace("KelvraFreeRASMessage", "KelvraFreeRASMessagf"))
        self.assert_passes("check-exports.sh", LIBRARY, DEF)
        self.assert_refuses("does not export what", "check-exports.sh", LIBRARY, other)

    def test_a_list_of_no_names_is_refused(self):
        nothing = self.write("nothing.def", "LIBRARY kelvra\nEXPORTS\n")
        self.assert_refuses("does not list six names", "check-exports.sh", LIBRARY, nothing)


class GlobalsTest(ChecksTest):
    def library(self, source):
        path = self.folder / "library.so"
        subprocess.run(["c++", "-shared", "-fPIC", "-o", path, self.write("source.cpp", source)], check=True)
        return path

    def test_a_variable_that_is_not_allowed_is_refused(self):
        library = self.library("namespace kelvra { int allowed, other; int F() { return ++allowed + ++other; } }")
        self.assert_passes("check-globals.sh", "nm", library, "allowed", "other")
        self.assert_refuses("has writable variables", "check-globals.sh", "nm", library, "allowed")

    def test_a_variable_of_an_anonymous_namespace_is_refused(self):
        library = self.library("namespace { int other; } namespace kelvra { int F() { return ++other; } }")
        self.assert_refuses("has writable variables", "check-globals.sh", "nm", library)

    def test_a_variable_that_is_missing_is_refused(self):
        library = self.library("namespace kelvra { int F() { return 1; } }")
        self.assert_refuses("has no allowed", "check-globals.sh", "nm", library, "allowed")

    def test_a_library_without_functions_is_refused(self):
        library = self.library("int other() { return 1; }")
        self.assert_refuses("has no function", "check-globals.sh", "nm", library)


class HeadersTest(ChecksTest):
    COMPILERS = ("c++", "clang")

    def assert_header(self, refused, text, compiler):
        self.write("header.h", "#pragma once\n" + text + "\n")
        run = self.run_check("check-headers.sh", self.folder, compiler, "header.h")
        self.assertEqual(run.returncode, 1 if refused else 0, f"{compiler}: {text}\n{run.stderr}")

    def test_what_each_warning_is_for_is_refused(self):
        for compiler in self.COMPILERS:
            self.assert_header(False, "inline int F(int x) { return x; }", compiler)
            self.assert_header(True, "inline int F(int x) { if (x = 1) return 1; return 0; }", compiler)
            self.assert_header(True, "inline int F(int unused) { return 1; }", compiler)
            self.assert_header(True, "inline char F(int x) { return x; }", compiler)
            self.assert_header(True, "inline int F(int x) { int y = x; { int x = 1; y += x; } return y; }", compiler)
            self.assert_header(True, "struct A { int none[0]; };", compiler)

    def test_a_header_that_cannot_stand_alone_or_twice_is_refused(self):
        for compiler in self.COMPILERS:
            self.assert_header(True, "inline uint32_t F() { return 1; }", compiler)
            self.write("twice.h", "struct A {};\n")
            run = self.run_check("check-headers.sh", self.folder, compiler, "twice.h")
            self.assertEqual(run.returncode, 1)

    def test_clang_compiles_for_windows_x86_and_x64(self):
        for architecture in ("defined(_WIN32) && !defined(_WIN64)", "defined(_WIN64)", "defined(__linux__)"):
            self.assert_header(True, f"#if {architecture}\n#error\n#endif", "clang")

    def test_no_header_is_refused(self):
        self.assert_refuses("no public header found", "check-headers.sh", self.folder, "c++")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
