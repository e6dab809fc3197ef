#!/usr/bin/env python3
"""Holds the includes of the tree against cmake/layers.txt: check_layers.py ROOT. With --folders it prints the folders.

An include is allowed from a folder to itself and to those below it in the list. A folder with sources that is not in the list,
and a folder that uses one above it, are faults; so is a header of the toolkit or of the operating system below platform_*."""
import pathlib
import re
import sys

OUTSIDE = ("tests", "benchmarks", "build", ".git")
FREE = ("platform_qt", "platform_linux", "ui", "app")  # where toolkit and operating system may be seen
FOREIGN = re.compile(r'#include <(Q[A-Z]|SDL|dlfcn|unistd|sys/|termios|fcntl|netinet|arpa/|poll|csignal)')


def layers(root):
    uses = {}
    for line in (root / "cmake/layers.txt").read_text().splitlines():
        if not line or line.startswith("#"):
            continue
        folder, below = line.split(":")
        direct = below.split()
        for other in direct:
            if other not in uses:
                sys.exit(f"cmake/layers.txt: {folder} uses {other}, which does not stand above it in the list")
        uses[folder] = set(direct).union(*(uses[other] for other in direct)) if direct else set()
    return uses


def main():
    root = pathlib.Path(sys.argv[1])
    uses = layers(root)
    if "--folders" in sys.argv:
        print("\n".join(uses))
        return
    faults = []
    for source in sorted([*root.rglob("*.cpp"), *root.rglob("*.hpp")]):
        name = source.relative_to(root)
        if name.parts[0] in OUTSIDE:
            continue
        folder = str(name.parent)
        if folder not in uses:
            faults.append(f"{name}: {folder} is not in cmake/layers.txt")
            continue
        for number, line in enumerate(source.read_text().splitlines(), 1):
            if name.parts[0] not in FREE and FOREIGN.match(line):
                faults.append(f"{name}:{number}: {line} belongs into platform_qt/, platform_linux/, ui/ or app/")
            used = re.match(r'#include "([^"]+)/[^"/]+"', line)
            if used and used[1] != folder and used[1] not in uses[folder]:
                faults.append(f"{name}:{number}: {folder} may not use {used[1]}")
    if faults:
        sys.exit("\n".join(faults))


main()
