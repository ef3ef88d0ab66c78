#!/usr/bin/env python3
"""Checks packages against the conventions of package managers and loaders on jailbroken phones.

Usage: package.py PACKAGE…"""
import plistlib
import re
import sys
from pathlib import Path

from debian_package import DebianPackage

FOLDER = "Library/MobileSubstrate/DynamicLibraries"
# By architecture: what every path begins with, and the firmware that the layout begins with.
LAYOUTS = {"iphoneos-arm64": ("./var/jb/", "15.0"), "iphoneos-arm": ("./", "14.5")}
REQUIRED = ["Package", "Name", "Version", "Architecture", "Maintainer", "Author", "Section",
            "Depends", "Description"]


def prefix(package):
    return LAYOUTS[package.fields["Architecture"]][0]


def expected_files(package):
    return {f"{prefix(package)}{FOLDER}/Wentra.{kind}" for kind in ("dylib", "plist")}


def files(package):
    return {name for name, (info, _) in package.files.items() if not info.isdir()}


def folders_hold(package):
    """Every folder leads to the files: no other is made on the phone."""
    paths = expected_files(package)
    return all(any(path.startswith(name + "/") for path in paths)
               for name, (info, _) in package.files.items() if info.isdir())


def filter_holds(package):
    path = f"{prefix(package)}{FOLDER}/Wentra.plist"
    rules = plistlib.loads(package.files[path][1]).get("Filter") if path in package.files else {}
    return rules and list(rules) == ["Bundles"] and rules["Bundles"] and all(
        isinstance(bundle, str) and bundle for bundle in rules["Bundles"])


def modes_hold(package):
    return all((info.uid, info.gid) == (0, 0) and (info.isdir() or info.isfile()) and
               info.mode == (0o755 if info.isdir() else 0o644) for info in package.infos())


def depends(package):
    return package.fields["Depends"].split(", ")


# What has to hold, and the test for it.
RULES = [
    ("it tells all the fields that managers show", lambda p: not set(REQUIRED) - p.fields.keys()),
    ("its identifier is a reverse domain name, and always the same",
     lambda p: p.fields["Package"] == "dev.wentra.wentra"),
    ("it stands under Tweaks", lambda p: p.fields["Section"] == "Tweaks"),
    ("its version sorts upwards",
     lambda p: re.fullmatch(r"\d+(\.\d+)*(~\w+(\.\w+)*)?", p.fields["Version"])),
    ("it holds the library and its filter, in the folder where loaders look",
     lambda p: files(p) == expected_files(p)),
    ("it makes no folder of another layout", folders_hold),
    ("its filter tells bundles, and nothing else", filter_holds),
    ("its files belong to root, are not executable, and none is set-id", modes_hold),
    ("its compression is read by old tools", lambda p: "data.tar.xz" in p.members),
    ("it needs the firmware of its layout",
     lambda p: f"firmware (>= {LAYOUTS[p.fields['Architecture']][1]})" in depends(p)),
    ("it needs any injection framework, not a particular one",
     lambda p: "mobilesubstrate" in depends(p) and not re.search("ellekit|substitute",
                                                                  p.fields["Depends"])),
    ("it has no settings pane, so it needs no loader of such",
     lambda p: "preferenceloader" not in depends(p) and not any("Preference" in f for f in files(p))),
    ("it runs no scripts", lambda p: set(p.control_files) - {"."} == {"./control"}),
    ("it holds no data of the user", lambda p: not any("var/mobile" in f for f in p.files)),
]


def main():
    problems = []
    packages = [(path, DebianPackage(Path(path))) for path in sys.argv[1:]]
    for path, package in packages:
        problems += [f"{path}: does not hold: {what}" for what, holds in RULES if not holds(package)]
    if {p.fields["Architecture"] for _, p in packages} != LAYOUTS.keys():
        problems.append("there is not one package for each layout")
    for problem in problems:
        print(problem, file=sys.stderr)
    print(f"package: {len(packages)} packages, {len(RULES)} rules, {len(problems)} problems")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
