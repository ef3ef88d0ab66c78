#!/usr/bin/env python3
"""Makes the files that the settings' package puts on a phone, below the root of its layout: the pane
that a preference loader shows, and the bundle with the pictures and colours that the library reads.

Usage: bundle.py rootful|rootless VERSION FOLDER: the folder is made anew."""
import plistlib
import shutil
import subprocess
import sys
from pathlib import Path

from table import read_table

HERE = Path(__file__).parent
BUNDLE = "Library/PreferenceBundles/hovtanprefs.bundle"
PANE = "Library/PreferenceLoader/Preferences/Wentra"
SCALES = {"": 1, "@2x": 2, "@3x": 3}
# A path takes the place of a name where the file is not among the system's own.
DOMAINS = {"rootful": "cn.zerk.hovtanprefs",
           "rootless": "/var/jb/var/mobile/Library/Preferences/cn.zerk.hovtanprefs"}


def value_cell(preference):
    """What is particular to the kind of the preference's values."""
    if preference["type"] == "switch":
        return {"cell": "PSSwitchCell"}
    if "minimum" in preference:
        return {"cell": "PSSliderCell", "min": preference["minimum"], "max": preference["maximum"],
                "default": preference["default"], "showValue": True}
    field = {"cell": "PSEditTextCell", "noAutoCorrect": True, "autoCaps": "none"}
    if "default" in preference:
        field["placeholder"] = str(preference["default"])
    if preference["type"] == "number":
        field["keyboard"] = "numbers"
    return field


def preference_cells(preference, domain):
    """A slider has no room for a title: a row above it shows that."""
    row = {**value_cell(preference), "key": preference["key"], "defaults": domain,
           "label": preference["zh"]}
    if row["cell"] != "PSSliderCell":
        return [row]
    return [{"cell": "PSStaticTextCell", "label": preference["zh"]}, row]


def footer(group):
    helps = [f"{preference['zh']}：{preference['help']}" for preference in group["preferences"]]
    return group.get("footer") or "\n".join(helps)


def group_cells(group, domain):
    yield {"cell": "PSGroupCell", "label": group["zh"], "footerText": footer(group)}
    for preference in group["preferences"]:
        yield from preference_cells(preference, domain)


def link_cell(pane):
    return {"cell": "PSLinkCell", "label": pane["zh"], "icon": f"{pane['file']}.png",
            "detail": "PLCustomListController", "pl_alt_plist_name": pane["file"]}


def pane_lists(panes, domain):
    """By file name: the property lists of the panes, of which the first leads to the others."""
    for pane in panes:
        items = [cell for group in pane["groups"] for cell in group_cells(group, domain)]
        yield pane["file"], {"title": pane["zh"], "items": items}


def with_links(first, others):
    first["items"] += [{"cell": "PSGroupCell", "label": "全部设置"}, *map(link_cell, others)]
    first["entry"] = {"cell": "PSLinkCell", "label": first["title"], "icon": "Wentra.png"}


def write_list(path, value):
    path.write_bytes(plistlib.dumps(value, sort_keys=False))


def write_pane(folder, domain):
    panes = read_table()
    lists = dict(pane_lists(panes, domain))
    with_links(lists[panes[0]["file"]], panes[1:])
    for name, value in lists.items():
        write_list(folder / f"{name}.plist", value)


def colours():
    for line in (HERE / "colors.txt").read_text(encoding="utf-8").splitlines():
        if not line.startswith("#"):
            value, name = line.split()
            yield {"color": value, "description": name}


def draw(picture, folder):
    """Draws the picture at each scale; one of its units is a point."""
    for mark, scale in SCALES.items():
        subprocess.run(["rsvg-convert", "--zoom", str(scale), "--output",
                        folder / f"{picture.stem}{mark}.png", picture], check=True)


def draw_all(pictures, folder):
    folder.mkdir(parents=True, exist_ok=True)
    for picture in sorted((HERE / "pictures" / pictures).glob("*.svg")):
        draw(picture, folder)


def write_bundle(folder, version):
    write_list(folder / "Info.plist", {
        "CFBundleIdentifier": "dev.wentra.settings", "CFBundleName": "Wentra",
        "CFBundlePackageType": "BNDL", "CFBundleInfoDictionaryVersion": "6.0",
        "CFBundleVersion": version, "CFBundleShortVersionString": version})
    write_list(folder / "colors.plist", list(colours()))


def main(layout, version, target):
    root = Path(target)
    shutil.rmtree(root, ignore_errors=True)
    draw_all("ball", root / BUNDLE)
    draw_all("tubiao", root / BUNDLE / "tubiao")
    draw_all("pane", root / PANE)
    write_bundle(root / BUNDLE, version)
    write_pane(root / PANE, DOMAINS[layout])


if __name__ == "__main__":
    if len(sys.argv) != 4 or sys.argv[1] not in DOMAINS:
        sys.exit(__doc__)
    main(*sys.argv[1:])
