#!/usr/bin/python3
"""Whether a program was built as cmake/hardening.cmake asks. Prints one line per thing that is missing."""

import platform
import re
import subprocess
import sys

LEAST_LANDING_PLACES = 5  # the C library's own start-up code brings one or two
CONTROL_FLOW_PROCESSORS = ("x86_64", "i686")


def told(*command):
    return subprocess.run(command, text=True, capture_output=True, check=True, stdin=subprocess.DEVNULL).stdout


def findings(program):
    headers = told("readelf", "--wide", "--file-header", "--program-headers", "--dynamic", program)
    symbols = told("readelf", "--wide", "--dyn-syms", program)
    if not re.search(r"FLAGS_1\).*\bPIE\b", headers):
        yield "is not position-independent"
    if "GNU_RELRO" not in headers:
        yield "has no read-only relocations"
    if not re.search(r"\(FLAGS(_1)?\).*\b(BIND_)?NOW\b", headers):
        yield "does not bind its symbols at the start"
    if not re.search(r"GNU_STACK .* RW ", headers):
        yield "has a stack that can be executed"
    if "__stack_chk_fail" not in symbols:
        yield "has no stack protector"
    if not re.search(r"__(?!stack)\w+_chk\b", symbols):
        yield "has no checked library calls"
    if platform.machine() in CONTROL_FLOW_PROCESSORS:
        code = told("objdump", "--disassemble", "--no-show-raw-insn", program)
        if len(re.findall(r"\bendbr(?:32|64)\b", code)) < LEAST_LANDING_PLACES:
            yield "has no control-flow protection"


def main():
    found = list(findings(sys.argv[1]))
    for finding in found:
        print(f"{sys.argv[1]} {finding}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
