"""Reads the text stubs that stand for the phone's libraries."""
import re
from pathlib import Path

SYMBOL = re.compile(r"^ {6}- (\S+)(?: # (\S+))?$", re.MULTILINE)


def read_stubs(folder):
    """By symbol: the stub's name, and the iOS version since which the phone has it ("" for what the
    jailbreak brings)."""
    return {symbol: (path.stem, since) for path in sorted(Path(folder).glob("*.tbd"))
            for symbol, since in SYMBOL.findall(path.read_text(encoding="utf-8"))}


def stub_problems(stubs, imports, minimum):
    """What is wrong between the stubs and the symbols that the library imports."""
    problems = [f"import {name}: in no stub" for name in sorted(imports - stubs.keys())]
    for name, (stub, since) in stubs.items():
        if name not in imports:
            problems.append(f"{stub}: {name} is used by nothing")
        if since and tuple(map(int, since.split("."))) > minimum:
            problems.append(f"{stub}: {name} only since iOS {since}")
        if not since and stub != "CydiaSubstrate":
            problems.append(f"{stub}: {name} without the iOS version that brought it")
    return problems
