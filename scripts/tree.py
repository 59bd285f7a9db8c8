# SPDX-License-Identifier: MIT
"""What the tree says of itself: the classes by the hoxq_class() lines of the build, and the rooms of
ui/ by what their files include."""

import re
from collections import namedtuple
from pathlib import Path

# What one sees or needs who looks for the class, and the page of the gallery that shows it, or -.
Row = namedtuple("Row", "need page")
LINE = re.compile(r'^hoxq_class\(\S+ (?P<name>\w+) (?P<page>\S+)\s+"(?P<need>[^"]+)"(?P<more>[^)]*)\)',
                  re.M)
INCLUDE = re.compile(r'^#include "ui/([\w/]+)/\w+\.h"', re.M)


def public_classes():
    rows = {}
    for library in ("ui", "util", "system", "uitest"):
        for found in LINE.finditer(Path(library, "CMakeLists.txt").read_text()):
            described = re.search(r"DESCRIBES (\w+)", found["more"])
            name = described[1] if described else found["name"]
            rows[name] = Row(found["need"], found["page"])
    return rows


def rooms():
    """Each folder of ui/ with those that it includes."""
    uses = {}
    for path in sorted(Path("ui").glob("*/**/*")):
        if path.suffix in (".h", ".cpp"):
            room = path.parts[1]
            others = {name.split("/")[0] for name in INCLUDE.findall(path.read_text())}
            uses.setdefault(room, set()).update(others - {room})
    return uses


def reached(room, uses, seen=None):
    seen = set() if seen is None else seen
    for other in uses.get(room, ()):
        if other not in seen:
            seen.add(other)
            reached(other, uses, seen)
    return seen


def circles(uses):
    return sorted(room for room in uses if room in reached(room, uses))


def arrows(uses):
    """Without those that a longer way says too."""
    for room in sorted(uses):
        for other in sorted(uses[room]):
            if not any(other in reached(step, uses) for step in uses[room] - {other}):
                yield room, other
