#!/usr/bin/env python3
"""Reads files as a release compiles them: with the flags of build/dev but without precompiled headers.

Usage: sin_precompilar.py FILE.cpp... Prints what the compiler says; ends with 1 where a file lacks an include.
"""
import concurrent.futures
import json
import os
import re
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def check(entry):
    command = re.sub(r" (-Winvalid-pch|-include \S+\.hxx|-M[DTF]( \S+\.(o|d))?|-o \S+)", "", entry["command"])
    return subprocess.run(command.replace("ccache ", "", 1) + " -O0 -fsyntax-only", shell=True,
                          cwd=entry["directory"]).returncode


with open(os.path.join(ROOT, "build/dev/compile_commands.json"), encoding="utf-8") as f:
    wanted = {os.path.join(ROOT, name) for name in sys.argv[1:]}
    entries = [e for e in json.load(f) if e["file"] in wanted]
with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
    sys.exit(int(any(pool.map(check, entries))))
