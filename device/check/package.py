#!/usr/bin/env python3
"""Checks packages against the conventions of package managers and loaders on jailbroken phones.

Usage: package.py PACKAGE…"""
import re
import sys
from pathlib import Path

import library_package
import settings_package
from debian_package import DebianPackage

# By architecture: the firmware that its layout begins with.
FIRMWARES = {"iphoneos-arm64": "15.0", "iphoneos-arm": "14.5"}
KINDS = {"dev.wentra.wentra": library_package.RULES, "dev.wentra.settings": settings_package.RULES}
REQUIRED = ["Package", "Name", "Version", "Architecture", "Maintainer", "Author", "Section",
            "Depends", "Description"]


def layout_holds(package):
    """Nothing lies in the other layout's place, and every folder leads to a file: none is made besides."""
    prefix = package.prefix()
    inside = all(name.startswith(f"{prefix}Library/") for name in package.file_names())
    return inside and all(any(name.startswith(folder + "/") for name in package.file_names())
                          for folder in package.folder_names())


def modes_hold(package):
    return all((info.uid, info.gid) == (0, 0) and (info.isdir() or info.isfile()) and
               info.mode == (0o755 if info.isdir() else 0o644) for info in package.infos())


def needs_firmware(package):
    firmware = FIRMWARES[package.fields["Architecture"]]
    return f"firmware (>= {firmware})" in package.depends()


# What has to hold for every package, and the test for it.
RULES = [
    ("it tells all the fields that managers show", lambda p: not set(REQUIRED) - p.fields.keys()),
    ("its identifier is a reverse domain name, and always the same",
     lambda p: p.fields["Package"] in KINDS),
    ("it stands under Tweaks", lambda p: p.fields["Section"] == "Tweaks"),
    ("its version sorts upwards",
     lambda p: re.fullmatch(r"\d+(\.\d+)*(~\w+(\.\w+)*)?", p.fields["Version"])),
    ("it makes no folder of another layout", layout_holds),
    ("its files belong to root, are not executable, and none is set-id", modes_hold),
    ("its compression is read by old tools", lambda p: "data.tar.xz" in p.members),
    ("it needs the firmware of its layout", needs_firmware),
    ("it needs no particular injection framework",
     lambda p: not re.search("ellekit|substitute", p.fields["Depends"])),
    ("it runs no scripts", lambda p: set(p.control_files) - {"."} == {"./control"}),
    ("it holds no data of the user", lambda p: not any("var/mobile" in f for f in p.files)),
]


def rules_of(package):
    return RULES + KINDS.get(package.fields["Package"], [])


def main():
    packages = [(path, DebianPackage(Path(path))) for path in sys.argv[1:]]
    problems = [f"{path}: does not hold: {what}" for path, package in packages
                for what, holds in rules_of(package) if not holds(package)]
    found = {(p.fields["Package"], p.fields["Architecture"]) for _, p in packages}
    problems += [f"there is no {kind} for {architecture}" for kind in KINDS
                 for architecture in FIRMWARES if (kind, architecture) not in found]
    for problem in problems:
        print(problem, file=sys.stderr)
    rules = sum(len(rules_of(package)) for _, package in packages)
    print(f"package: {len(packages)} packages, {rules} rules, {len(problems)} problems")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
