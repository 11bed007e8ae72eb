"""Reads the enumerations of the function interface."""

import re
from dataclasses import dataclass
from pathlib import Path


@dataclass(frozen=True)
class Enumeration:
    """`enumerators` maps the name behind the prefix ("Solid") to the number, in the order of the header."""

    name: str
    enumerators: dict[str, int]

    @property
    def prefix(self) -> str:
        return self.name.removesuffix("_e") + "_"


def read_enumerations(headers: list[Path]) -> dict[str, Enumeration]:
    texts = (header.read_text(encoding="utf-8") for header in headers)
    text = re.sub(r"/\*.*?\*/", "", "\n".join(texts), flags=re.DOTALL)
    result = {}
    for body, name in re.findall(r"typedef\s+enum\s*\{(.*?)\}\s*(\w+)\s*;", text, flags=re.DOTALL):
        prefix = name.removesuffix("_e") + "_"
        result[name] = Enumeration(
            name, {key.removeprefix(prefix): int(number) for key, number in re.findall(r"(\w+)\s*=\s*(-?\d+)", body)}
        )
    return result
