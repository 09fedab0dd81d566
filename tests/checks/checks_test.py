#!/usr/bin/env python3
"""Tests that the checks of the library reject what they should: checks_test.py SCRIPTS LIBRARY DEF

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
        self.assert_passes("check-exports.sh", LIBRARY, DEF, "6")
        self.assert_refuses("does not export what", "check-exports.sh", LIBRARY, other, "6")

    def test_empty_list_of_names_is_refused(self):
        nothing = self.write("nothing.def", "LIBRARY kelvra\nEXPORTS\n")
        self.assert_refuses("does not list 6 names", "check-exports.sh", LIBRARY, nothing, "6")


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
    MACROS = "#define KELVRA_API\n#define KELVRA_CALL\n"
    REFUSAL = "#ifdef KELVRA_C_FUNCTIONS\n#error include kelvra/kelvra.h before it\n#endif\n"
    C_HEADER = "#ifndef KELVRA_API\n#define KELVRA_C_FUNCTIONS\n#endif\nextern int kelvra_c;\n"
    NOT_ALONE = r"headers: HEADER does not compile alone"
    NOT_STANDARD = r"(?m)^HEADER:\d+:"  # in the list of what is not standard

    def setUp(self):
        super().setUp()
        (self.folder / "kelvra").mkdir()
        self.write("kelvra/kelvra_c.h", self.C_HEADER)

    def write_headers(self, texts, guard="#pragma once\n"):
        """Writes a header per text, all included by kelvra.h. Returns their paths."""
        headers = [f"kelvra/header{i}.h" for i in range(len(texts))]
        for header, text in zip(headers, texts):
            self.write(header, guard + text + "\n")
        includes = "".join(f'#include "{header}"\n' for header in headers)
        self.write("kelvra/kelvra.h", "#pragma once\n" + includes + self.REFUSAL + self.MACROS)
        return headers

    def assert_headers_pass(self, *texts):
        self.write_headers(texts)
        self.assert_passes("check-headers.sh", self.folder)

    def assert_each_refused(self, reason, *texts, **options):
        """Asserts that each text as a header is refused for `reason`, a pattern in which HEADER is its path."""
        headers = self.write_headers(texts, **options)
        run = self.run_check("check-headers.sh", self.folder)
        self.assertEqual(run.returncode, 1, run.stdout)
        for header, text in zip(headers, texts):
            self.assertRegex(run.stderr, reason.replace("HEADER", header), text)

    def test_code_with_a_warning_is_refused(self):
        self.assert_headers_pass("inline int F(int x) { return x; }")
        self.assert_each_refused(self.NOT_ALONE,
                                 "inline int F(int x) { if (x = 1) return 1; return 0; }",
                                 "inline int F(int unused) { return 1; }",
                                 "inline char F(int x) { return x; }",
                                 "inline int F(int x) { int y = x; { int x = 1; y += x; } return y; }",
                                 "struct A { int none[0]; };")

    def test_a_header_that_cannot_stand_alone_or_twice_is_refused(self):
        self.assert_each_refused(self.NOT_ALONE, "inline uint32_t F() { return 1; }")
        self.assert_each_refused(self.NOT_ALONE, "struct A {};", guard="")

    def test_headers_are_compiled_for_windows_x86_and_x64_too(self):
        for condition, target in (("defined(__linux__)", "native"), ("defined(_WIN64)", "x86_64-pc-windows-msvc"),
                                  ("defined(_WIN32) && !defined(_WIN64)", "i686-pc-windows-msvc")):
            self.assert_each_refused(f"{self.NOT_ALONE} for {target}", f"#if {condition}\n#error\n#endif")

    def test_c_library_for_windows_has_only_memcpy(self):
        self.assert_headers_pass("#include <string.h>\ninline void F(int* x, int* y) { memcpy(x, y, sizeof *x); }")
        self.assert_each_refused(f"{self.NOT_ALONE} for x86_64-pc-windows-msvc", "#include <stdio.h>",
                                 '#include <string.h>\ninline bool F(const char* x) { return strchr(x, 1) != nullptr; }')

    def test_compiler_extensions_are_refused(self):
        self.assert_headers_pass("#define A(...) F(__VA_ARGS__)\n#undef A\n"
                                 "[[maybe_unused]] inline constexpr int kClass = 1;  // no __is_class here")
        self.assert_each_refused(self.NOT_STANDARD,
                                 "inline int F(unsigned x) { return __builtin_ctz(x); }",
                                 "struct S {};\ninline constexpr bool kIsClass = __is_class(S);",
                                 "__attribute__((always_inline)) inline int F() { return 1; }",
                                 "[[gnu::always_inline]] inline int F() { return 1; }",
                                 "[[ clang::noinline ]] inline int F() { return 1; }",
                                 "#define A(x, ...) F(x __VA_OPT__(,) __VA_ARGS__)\n#undef A",
                                 "#if defined(_WIN32)\n#define A __attribute__((cdecl))\n#undef A\n#endif",
                                 "#if !defined(_MSC_VER)\n#define A __forceinline\n#undef A\n#endif",
                                 "inline void F() { asm(\"nop\"); }",
                                 "_Static_assert(true, \"\");")

    def test_guarded_compiler_extensions_pass(self):
        self.assert_headers_pass("#if defined(__GNUC__)\n#define A __attribute__((always_inline)) inline\n"
                                 "#elif defined(_MSC_VER)\n#define A __forceinline\n#else\n#define A inline\n#endif\n"
                                 "A int F() { return 1; }\n#undef A")

    def test_macro_left_defined_is_refused(self):
        for name, text in (("KELVRA_MEMBER", "#define KELVRA_MEMBER"),
                           ("KELVRA_FIELD", "#define KELVRA_FIELD(member, ...) member"),
                           ("OTHER", "#if defined(_WIN64)\n#define OTHER 1\n#endif")):
            self.assert_each_refused(rf"leaves other macros [^:]*:\n(.*\n)*{name}\n", text)

    def test_missing_documented_macro_is_refused(self):
        self.assert_headers_pass("struct A {};")
        self.write("kelvra/kelvra.h", "#pragma once\n#define KELVRA_API\n")
        self.assert_refuses("leaves other macros", "check-headers.sh", self.folder)

    def test_c_header_that_is_not_c99_is_refused(self):
        self.write_headers([])
        for text in ("enum A : int { kB };", "struct B { int x; union { int y; int z; }; };"):
            self.write("kelvra/kelvra_c.h", self.C_HEADER + "#ifndef G\n#define G\n" + text + "\n#endif\n")
            with self.subTest(text):
                self.assert_refuses("does not compile as C99", "check-headers.sh", self.folder)

    def test_c_header_before_the_cpp_header_is_refused(self):
        self.write("kelvra/kelvra.h", "#pragma once\n" + self.MACROS)
        self.assert_refuses("is not refused before", "check-headers.sh", self.folder)

    def test_no_header_is_refused(self):
        (self.folder / "kelvra" / "kelvra_c.h").unlink()
        self.assert_refuses("no public header found", "check-headers.sh", self.folder)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
