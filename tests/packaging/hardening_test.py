"""The program that people get is built hardened; a program that is not is told apart."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts/lib"))

from hardening import findings

COMPILER, RELEASE = os.environ["QUILLON_COMPILER"], pathlib.Path(os.environ["QUILLON_RELEASE"])
HARDENED = ["-O2", "-fPIE", "-pie", "-fstack-protector-strong", "-U_FORTIFY_SOURCE", "-D_FORTIFY_SOURCE=2",
            "-fcf-protection", "-Wl,-z,relro", "-Wl,-z,now"]
SOURCE = "#include <cstdio>\n#include <cstring>\n" + "".join(
    f"void f{i}(char* b, const char* t) {{ char own[16]; strcpy(own, t); std::snprintf(b, 16, \"%s{i}\", own); }}\n"
    for i in range(8)) + "int main(int, char** v) { char b[16]; f1(b, v[0]); f7(b, v[0]); return b[0]; }\n"


class HardeningTest(unittest.TestCase):
    @staticmethod
    def findings_with(*options):
        with tempfile.TemporaryDirectory() as folder:
            source, program = pathlib.Path(folder, "source.cpp"), pathlib.Path(folder, "program")
            source.write_text(SOURCE)
            subprocess.run([COMPILER, *HARDENED, *options, source, "-o", program], check=True, stdin=subprocess.DEVNULL)
            return list(findings(str(program)))

    def test_a_hardened_program_passes(self):
        self.assertEqual(self.findings_with(), [])

    def test_whatever_is_missing_is_found(self):
        for options, finding in ((["-fno-pie", "-no-pie"], "is not position-independent"),
                                 (["-Wl,-z,norelro"], "has no read-only relocations"),
                                 (["-Wl,-z,lazy"], "does not bind its symbols at the start"),
                                 (["-Wl,-z,execstack"], "has a stack that can be executed"),
                                 (["-fno-stack-protector"], "has no stack protector"),
                                 (["-U_FORTIFY_SOURCE"], "has no checked library calls"),
                                 (["-fcf-protection=none"], "has no control-flow protection")):
            self.assertEqual(self.findings_with(*options), [finding], options)

    def test_the_release_program_is_hardened(self):
        programs = [RELEASE] if RELEASE.exists() else []
        for program in programs:
            self.assertEqual(list(findings(str(program))), [])


if __name__ == "__main__":
    unittest.main()
