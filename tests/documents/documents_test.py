#!/usr/bin/env python3
"""Tests the documents: links resolve, code compiles, and programs print the output shown after them.

Usage: documents_test.py COMPILER ARCHIVE TEXT_LIBRARY
"""
import glob
import os
import re
import subprocess
import sys
import tempfile
import unittest

TOP = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
COMPILER, ARCHIVE, TEXT_LIBRARY = sys.argv[1:4]
PAGES = [os.path.relpath(page, TOP) for folder in ("", "docs", "python", "samples", "examples")
         for page in glob.glob(os.path.join(TOP, folder, "*.md"))]
# Decodes the README's message and calls the document's function.
DRIVER = """
int main() {
  const uint8_t datagram[] = {0x08, 0x00, 0x00, 0x04, 0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, 0x05, 0x20, 0x00};
  kelvra::h225::RasMessageRecord record;
  if (KelvraDecodeRASMessage(&record, datagram, sizeof datagram) == 0) return 1;
  Print(record);
  KelvraFreeRASMessage(&record);
}
"""


def page(name):
    with open(os.path.join(TOP, name), encoding="utf-8") as file:
        return file.read()


def blocks(name, language):
    """Each block of the language, with the text after it."""
    text = page(name)
    return [(match.group(1), text[match.end():])
            for match in re.finditer(rf"^```{language}\n(.*?)^```\n", text, re.DOTALL | re.MULTILINE)]


def output_of_program(source):
    with tempfile.TemporaryDirectory() as folder:
        program = os.path.join(folder, "program")
        subprocess.run([COMPILER, "-std=c++17", "-Wall", "-Wextra", "-Werror", "-I" + os.path.join(TOP, "include"),
                        "-x", "c++", "-", "-x", "none", ARCHIVE, "-o", program], input=source.encode(), check=True)
        return subprocess.run([program], stdout=subprocess.PIPE, check=True).stdout.decode()


class Documents(unittest.TestCase):
    def test_links_lead_to_files(self):
        self.assertGreater(len(PAGES), 10)
        for name in PAGES:
            for target in re.findall(r"\]\(([^)#:]+)\)", page(name)):
                self.assertTrue(os.path.exists(os.path.join(TOP, os.path.dirname(name), target)), (name, target))

    def test_programs_print_what_is_shown(self):
        ((source, after), *_) = blocks("README.md", "cpp")
        self.assertIn("# " + output_of_program(source).strip() + "\n", after)

    def test_functions_compile_and_print_what_is_shown(self):
        sources = blocks("docs/reading.md", "cpp")
        self.assertEqual(len(sources), 2)
        for source, after in sources:
            if "void Print(" not in source:
                subprocess.run([COMPILER, "-std=c++17", "-Wall", "-Wextra", "-Werror", "-fsyntax-only",
                                "-I" + os.path.join(TOP, "include"), "-x", "c++", "-"], input=source.encode(),
                               check=True)
            else:
                shown = re.search(r"```text\n(.*?)```", after, re.DOTALL).group(1)
                self.assertEqual(output_of_program(source + DRIVER), shown)

    def test_python_prints_what_is_shown(self):
        ((source, _), *_) = blocks("README.md", "python")
        result = subprocess.run([sys.executable, "-c", source], stdout=subprocess.PIPE, check=True, cwd=TOP,
                                env={**os.environ, "PYTHONPATH": "python", "KELVRA_TEXT_LIBRARY": TEXT_LIBRARY})
        self.assertEqual(result.stdout.decode().split(), re.findall(r"# (\S+)$", source, re.MULTILINE))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
