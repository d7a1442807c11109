#!/usr/bin/env python3
"""Differential check of `kilnutil base64` against coreutils `base64`: random
inputs of random sizes (group boundaries, the tool's piece size), encoded with
the default, narrow and no wrapping and decoded back; outputs must be
byte-identical. Usage: base64_differential.py COREUTILS_BASE64 [EMULATOR] KILNUTIL
(EMULATOR runs a cross-built tool, such as wine for kilnutil.exe)."""
import random
import subprocess
import sys

reference, tool = sys.argv[1], sys.argv[2:]
rng = random.Random(20261123)
PIECE = 3 << 20  # the tool's read size: inputs around it cross a piece boundary
sizes = [0, 1, 2, 3, 4, 56, 57, 58, 76, 1000, PIECE - 1, PIECE, PIECE + 1, PIECE + 2]
sizes += [rng.randrange(0, 100000) for _ in range(8)]
failures = 0


def run(program, args, data):
    command = program if isinstance(program, list) else [program]
    return subprocess.run([*command, *args], input=data, capture_output=True)


for case, size in enumerate(sizes):
    data = rng.randbytes(size)
    wraps = (None, "0", "1", "5", "76", "100") if size < 200000 else (None, "0")
    for wrap in wraps:
        args = [] if wrap is None else ["-w", wrap]
        ours, theirs = run(tool, ["base64", *args], data), run(reference, args, data)
        if ours.stdout != theirs.stdout or ours.returncode != theirs.returncode:
            print(f"encode differs: size {size}, wrap {wrap}")
            failures += 1
            continue
        back = run(tool, ["base64", "-d"], ours.stdout)
        if back.stdout != data or back.returncode != 0:
            print(f"decode differs: size {size}, wrap {wrap}")
            failures += 1
    # Decoding text the reference would refuse or accept: both must agree on
    # the bytes written and on success.
    text = run(reference, [], data[:300]).stdout
    for mutation in range(4):
        damaged = bytearray(text)
        if damaged:
            damaged[rng.randrange(len(damaged))] = rng.choice(b"=*A\n \r")
        for args in ([ "-d"], ["-d", "-i"]):
            ours, theirs = run(tool, ["base64", *args], bytes(damaged)), run(reference, args, bytes(damaged))
            if ours.stdout != theirs.stdout or (ours.returncode == 0) != (theirs.returncode == 0):
                print(f"decode of damaged text differs: {bytes(damaged)!r} {args}")
                failures += 1

print(f"{len(sizes)} inputs, {failures} differences")
sys.exit(1 if failures else 0)
