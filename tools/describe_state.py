#!/usr/bin/env python3
"""Writes the header by which automation sees the state: describe_state.py ROOT OUTPUT HEADER...

Each HEADER (a *_state.hpp) holds plain records. From their declarations come Visit_Record for every record, which calls
Visit(name, reference) for each field, and Visit_State for all areas together: those are the records named *_State. A line that
is no plain field is an error, so that nothing is left out in silence. Records with a template in front describe themselves.
"""
import pathlib
import re
import sys

FIELD = re.compile(r"^[\w:<>, ]+[>\w] (\w+)(?:\{\}| = [^;{}]+)?;$")


def records(header):
    """(name, [field...]) of each plain struct of a header."""
    lines = re.sub(r"//[^\n]*", "", header.read_text()).splitlines()
    found, name, fields, held, template = [], None, [], "", False
    for number, raw in enumerate(lines, 1):
        line = raw.strip()
        if name is None:
            opened = re.fullmatch(r"struct (\w+) \{", line)
            if opened and not template:
                name, fields = opened[1], []
            template = line.startswith("template")
            continue
        if line == "};":
            found.append((name, fields))
            name = None
            continue
        held = (held + " " + line).strip()  # a field may go over lines
        if not held.endswith(";"):
            continue
        field = FIELD.match(held)
        if not field:
            sys.exit(f"{header}:{number}: no plain field: {held}")
        fields.append(field[1])
        held = ""
    return found


def main():
    root, output, headers = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sorted(map(pathlib.Path, sys.argv[3:]))
    includes, visits, areas = [], [], []
    for header in headers:
        includes.append(f'#include "{header.relative_to(root)}"')
        for name, fields in records(header):
            calls = "".join(f'    Visit("{field}", R.{field});\n' for field in fields)
            visits.append(f"template <class Visitor>\nvoid Visit_Record({name}& R, Visitor&& Visit) {{\n{calls}}}\n")
            if name.endswith("_State"):
                areas.append(f"    Visit_Record(S.Of<{name}>(), Visit);\n")
    text = (
        "// Made by tools/describe_state.py from the headers below; not to be edited.\n#pragma once\n\n"
        + "\n".join(includes) + '\n#include "shell/state/simulator_state.hpp"\n\nnamespace brinewright {\n\n'
        + "\n".join(visits)
        + "\n// Calls Visit(name, reference) for every variable of the state. A record or a table is handed over whole.\n"
        "template <class Visitor>\nvoid Visit_State(Simulator_State& S, Visitor&& Visit) {\n" + "".join(areas) + "}\n\n"
        "} // namespace brinewright\n")
    if not output.exists() or output.read_text() != text:
        output.parent.mkdir(parents=True, exist_ok=True)
        output.write_text(text)


main()
