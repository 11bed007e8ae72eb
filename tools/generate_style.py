#!/usr/bin/env python3
"""Writes what is made from the style descriptions in style/*.toml.

    generate_style.py vocabulary --style DIR --enumerations FILE... --output FILE.cpp
    generate_style.py reference  --style DIR --enumerations FILE... --output FILE.md
    generate_style.py sets       --style DIR --enumerations FILE... --output DIR
    generate_style.py walk       --style DIR --enumerations FILE... --output FILE.h

A wrong description ends the program with status 1 and one line for each fault: file, node, key, what is wrong, what would
be right. A file that would not change is left alone, so that nothing is built again for it.
"""

import argparse
import sys
from pathlib import Path

from vxstyle import property_sets, reference, vocabulary
from vxstyle.description import DescriptionError, load

# Each gives the text of a file, or for a folder the texts by file name.
WRITERS = {
    "vocabulary": vocabulary.write,
    "reference": reference.write,
    "sets": property_sets.write,
    "walk": property_sets.write_walk,
}


def write_if_changed(path: Path, text: str) -> None:
    if path.exists() and path.read_text(encoding="utf-8") == text:
        return
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8")


def main(arguments: list[str]) -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("what", choices=sorted(WRITERS))
    parser.add_argument("--style", type=Path, required=True, help="folder of the descriptions")
    parser.add_argument("--enumerations", type=Path, nargs="+", required=True, help="headers with the enumerations")
    parser.add_argument("--output", type=Path, required=True)
    options = parser.parse_args(arguments)
    try:
        written = WRITERS[options.what](load(options.style, options.enumerations))
    except DescriptionError as error:
        print(error, file=sys.stderr)
        return 1
    if isinstance(written, str):
        write_if_changed(options.output, written)
    else:
        for name, text in written.items():
            write_if_changed(options.output / name, text)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
