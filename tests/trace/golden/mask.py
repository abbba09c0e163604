#!/usr/bin/env python3
"""mask.py HOME <RECORDING >MASKED: takes out of a recording what differs from run to run and from
machine to machine: times, the date, the folders of libraries, and HOME, where it was made.

everything.trace is "trace_recorded everything", in a folder with files/one.txt of 5 bytes and
files/two/; slots.trace is the application with the sample host library and HOST_CALL_SLOTS=1. Both are
made with an empty store, and on the offscreen platform. An emulator has to be given the variables of
the recording itself, since it starts no programs: qemu-aarch64-static -E LD_PRELOAD=...
-E QUAYSIDE_TRACE_FILE=... PROGRAM."""

import re
import sys


def masked(line, home):
    line = re.sub(r'"(t|d|time)":\d+', r'"\1":0', line)
    line = re.sub(r'"started":"[^"]*"', '"started":"2026-01-01T00:00:00.000Z"', line)
    line = line.replace(home, "/home/user")
    if line.startswith(('{"quaysideTrace"', '{"library"')):
        line = re.sub(r'"path":"[^"]*/', '"path":"', line)
        line = re.sub(r'"program":\["[^"]*/', '"program":["', line)
    return line


if __name__ == "__main__":
    sys.stdout.writelines(masked(line, sys.argv[1]) for line in sys.stdin)
