#!/usr/bin/env python3
"""Plays the same random key streams into the component (capture_driver) and into the second telling (model.py)."""

import os
import subprocess
import sys
import time
import zlib

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import model  # noqa: E402

KEYS = [(0x11, 0x1D, 0), (0x11, 0x1D, 1), (0x10, 0x2A, 0), (0x10, 0x36, 0), (0x12, 0x38, 0), (0x12, 0x38, 1),
        (0x41, 0x1E, 0), (0x42, 0x30, 0), (0x31, 0x02, 0), (0x0D, 0x1C, 0), (0x0D, 0x1C, 1), (0x2C, 0x37, 1),
        (0x2C, 0x54, 0), (0x13, 0x45, 0), (0x03, 0x46, 1), (0x90, 0x45, 1), (0x91, 0x46, 0), (0x24, 0x47, 1),
        (0x67, 0x47, 0), (0x26, 0x48, 1), (0x21, 0x49, 1), (0x25, 0x4B, 1), (0x64, 0x4B, 0), (0x27, 0x4D, 1),
        (0x66, 0x4D, 0), (0x23, 0x4F, 1), (0x28, 0x50, 1), (0x22, 0x51, 1), (0x2D, 0x52, 1), (0x2E, 0x53, 1),
        (0x6E, 0x53, 0), (0x6F, 0x35, 1), (0xBF, 0x35, 0), (0x6A, 0x37, 0), (0x6B, 0x4E, 0), (0x6D, 0x4A, 0),
        (0x5B, 0x5B, 1), (0x5C, 0x5C, 1), (0x5D, 0x5D, 1), (0x70, 0x3B, 0), (0x7C, 0x64, 0), (0x87, 0x76, 0),
        (0xDB, 0x1A, 0), (0xDD, 0x1B, 0), (0xDC, 0x29, 0), (0xBA, 0x27, 0), (0xE2, 0x56, 0), (0xAD, 0x20, 1),
        (0x88, 0x5E, 0), (0xFF, 0x54, 0), (0x00, 0x00, 0), (0x00, 0x1E, 1), (0x41, 0x77, 0), (0x1B, 0x01, 0),
        (0x09, 0x0F, 0), (0x08, 0x0E, 0), (0x20, 0x39, 0), (0x0C, 0x4C, 0), (0x65, 0x4C, 0), (0x43, 0xFF, 1)]
CHARACTERS = {0x41: (1, "a"), 0x42: (1, "b"), 0x43: (1, "c"), 0x31: (1, "1"), 0xBF: (1, "/"), 0xDB: (1, "["),
              0xDD: (1, "]"), 0xDC: (-1, "^"), 0xBA: (1, "\u00fc"), 0xE2: (1, "<"), 0x6E: (1, "."), 0xFF: (-2, "")}
MODIFIERS = (0x10, 0x90, 0x12, 0x11)
MASK = (1 << 64) - 1


class Random:
    """splitmix64, the same as in capture_driver.cpp."""

    def __init__(self, seed):
        self.state = seed & MASK

    def below(self, bound):
        self.state = (self.state + 0x9E3779B97F4A7C15) & MASK
        z = self.state
        z = ((z ^ (z >> 30)) * 0xBF58476D1CE4E5B9) & MASK
        z = ((z ^ (z >> 27)) * 0x94D049BB133111EB) & MASK
        return (z ^ (z >> 31)) % bound


def play(target, stream, seed):
    random = Random(seed * 1000003 + stream)
    choice = random.below(3 if target == 0 else 4)
    column, row = 1 + random.below(2), 1 + random.below(4)
    limit = 43 if random.below(2) == 0 else 22
    capture = model.Capture(target, choice, column, limit, CHARACTERS)
    capture.layer = row - 1
    pool = [random.below(len(KEYS)) for _ in range(1 + random.below(12))]
    down = set()
    for _ in range(1 + random.below(48)):
        if random.below(8) == 0:
            down ^= {MODIFIERS[random.below(4)]}
        key, scan, extended = KEYS[pool[random.below(len(pool))]]
        capture.event(key, scan, extended, random.below(2) == 1, down)
    if random.below(4) != 0:
        for index in pool:
            key, scan, extended = KEYS[index]
            capture.event(key, scan, extended, True, down)
    data = bytearray()
    for press, release in zip(capture.press, capture.release):
        for buffer in (press, release):
            data += bytes(buffer.bytes)
            data.append(buffer.next & 0xFF)
    return "%08X %s" % (zlib.crc32(bytes(data)), capture.text)


def main():
    driver = sys.argv[1]
    streams = int(sys.argv[2]) if len(sys.argv) > 2 else 100000
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else int(time.time()) % 1000000
    print("seed %d, %d streams" % (seed, streams), flush=True)
    process = subprocess.Popen([driver, str(seed), str(streams)], stdout=subprocess.PIPE)
    differences, groups = 0, 0
    for stream in range(streams):
        heard = process.stdout.readline().decode("utf-8").rstrip("\n")
        told = play(0 if stream < streams // 2 else 2, stream, seed)
        groups += told.count("]")
        if heard != told:
            differences += 1
            if differences <= 10:
                print("stream %d\n  component %s\n  model     %s" % (stream, heard, told))
    status = process.wait()
    print("%d groups stored in cells, %d differences" % (groups, differences))
    if groups < streams // 10:
        print("the streams stored too little to prove anything")
        return 1
    return 1 if differences or status != 0 else 0


if __name__ == "__main__":
    sys.exit(main())
