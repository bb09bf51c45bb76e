#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures the wallpapers of the whole program: wallpapers.py PROGRAM

Seconds per picture at 2880 x 1800, beside ImageMagick's plasma of the same size in the same run; cost per pixel at three
sizes; peak memory. AMBRELLE_ROUNDS (3) rounds, medians."""

import os
import statistics
import subprocess
import sys
import tempfile
import time

ROUNDS = int(os.environ.get("AMBRELLE_ROUNDS", "3"))
SIZES = [(1152, 720), (2880, 1800), (7680, 4320)]


def run(program, folder, width, height, skin=None):
    """Seconds of each skin, wall time of the whole run, peak memory in MB."""
    environment = dict(os.environ, WIDTH=str(width), HEIGHT=str(height), QT_QPA_PLATFORM="offscreen")
    environment.pop("SKIN", None)
    if skin:
        environment["SKIN"] = skin
    command = ["/usr/bin/env", "time", "-f", "%M", program, "--render-wallpapers", folder]
    start = time.monotonic()
    done = subprocess.run(command, env=environment, capture_output=True, text=True, check=True)
    wall = time.monotonic() - start
    peak = int(done.stderr.split()[-1]) / 1024
    lines = (line.split() for line in done.stdout.splitlines() if not line.startswith("wrote "))
    return {skin: float(seconds.rstrip("s")) for skin, seconds in lines}, wall, peak


def plasma(folder):
    start = time.monotonic()
    target = os.path.join(folder, "plasma.png")
    subprocess.run(["convert", "-size", "2880x1800", "plasma:fractal", target], check=True)
    return time.monotonic() - start


def main():
    program = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder:
        rounds = [(run(program, folder, 2880, 1800), plasma(folder)) for _ in range(ROUNDS)]
        skins = {
            skin: statistics.median(result[0][0][skin] for result in rounds) for skin in rounds[0][0][0]
        }
        middle = statistics.median(skins.values())
        slowest = max(skins, key=skins.get)
        peer = statistics.median(seconds for _, seconds in rounds)
        whole = statistics.median(result[1] for result, _ in rounds)
        print(f"median of {len(skins)} skins     {middle * 1000:6.0f} ms")
        print(f"slowest, {slowest:12} {skins[slowest] * 1000:6.0f} ms")
        print(f"all of them           {whole:6.2f} s")
        print(f"ImageMagick plasma    {peer * 1000:6.0f} ms, {peer / middle:.1f} times the median")
        for width, height in SIZES:
            results = [run(program, folder, width, height) for _ in range(ROUNDS)]
            total = statistics.median(sum(result[0].values()) for result in results)
            peak = max(result[2] for result in results)
            rgba = width * height * 4 / 2**20
            per_pixel = total / len(skins) / (width * height) * 1e9
            print(f"{width} x {height}: {per_pixel:5.1f} ns per pixel, peak {peak:4.0f} MB, bound {3 * rgba + 40:4.0f} MB")
        print("slow ones:", ", ".join(f"{s} {t * 1000:.0f}" for s, t in sorted(skins.items(), key=lambda x: -x[1])[:8]))


if __name__ == "__main__":
    main()
