"""What cmake/Hardening.cmake asks the compiler and the linker for is in the program that users run.
scripts/common.sh calls this with the program's path."""

import platform
import re
import subprocess
import sys
import unittest

PROGRAM = sys.argv.pop()
ENDBR64 = b"\xf3\x0f\x1e\xfa"


def elf(*options):
    """What binutils say about the program."""
    command = ["readelf", "--wide", *options, PROGRAM]
    return subprocess.run(command, capture_output=True, text=True, check=True, env={"LC_ALL": "C"}).stdout


class Hardened(unittest.TestCase):
    def test_lies_at_an_address_that_nobody_knows(self):
        self.assertRegex(elf("--dynamic"), r"\(FLAGS_1\) .*\bPIE\b")

    def test_calls_what_it_was_linked_to_and_nothing_that_came_later(self):
        self.assertIn("GNU_RELRO", elf("--program-headers"))
        self.assertRegex(elf("--dynamic"), r"\(FLAGS_1\) .*\bNOW\b")

    def test_runs_nothing_that_lies_on_its_stack(self):
        self.assertRegex(elf("--program-headers"), r"GNU_STACK +(0x\w+ +){5}RW ")

    def test_notices_what_writes_beyond_a_buffer(self):
        called = set(re.findall(r"UND (__\w+_chk\w*)@", elf("--dyn-syms")))
        self.assertLessEqual({"__stack_chk_fail", "__snprintf_chk"}, called)

    @unittest.skipUnless(platform.machine() == "x86_64", "others mark such places in another way")
    def test_marks_where_a_jump_may_lead(self):
        with open(PROGRAM, "rb") as program:
            self.assertGreater(program.read().count(ENDBR64), 1000)

    def test_finds_its_libraries_where_the_system_has_them(self):
        self.assertNotRegex(elf("--dynamic"), r"\((RPATH|RUNPATH)\)")


if __name__ == "__main__":
    unittest.main()
