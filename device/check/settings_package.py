"""What has to hold for the package of the settings: a preference loader shows the pane without any code
of the package's, and the library finds its pictures."""
import plistlib
import sys
from pathlib import Path
from xml.parsers.expat import ExpatError

sys.path.append(str(Path(__file__).parents[2] / "settings"))
from table import preferences_of, read_table

BUNDLE = "Library/PreferenceBundles/hovtanprefs.bundle/"
PANE = "Library/PreferenceLoader/Preferences/Wentra/"
SCALES = ["", "@2x", "@3x"]
# What the file browser shows: kinds of files, and what its toolbar says.
ICONS = [f"{kind}_icon" for kind in ("folder", "weizhi", "image", "text", "plist", "video", "txt",
                                     "zip", "deb", "ipa", "music", "pdf")]
ICONS += ["关闭", "日期", "大小", "新建", "收藏", "切换"]


def lists(package):
    """The property lists by their names, where they can be read."""
    found = {}
    for name in package.file_names():
        if name.endswith(".plist"):
            try:
                found[name.removeprefix(package.prefix())] = plistlib.loads(package.files[name][1])
            except (plistlib.InvalidFileException, ValueError, ExpatError):
                pass
    return found


def lists_hold(package):
    return len(lists(package)) == sum(name.endswith(".plist") for name in package.file_names())


def has_picture(package, name):
    start = b"\x89PNG\r\n\x1a\n"
    return all(package.files.get(f"{package.prefix()}{name}{scale}.png", (None, b""))[1]
               .startswith(start) for scale in SCALES)


def cells(package):
    return [cell for name, content in lists(package).items() if name.startswith(PANE)
            for cell in content["items"]]


def links_hold(package):
    """Every link leads to a list and has a picture."""
    links = [cell for cell in cells(package) if cell["cell"] == "PSLinkCell"]
    return links and all(
        f"{PANE}{link['pl_alt_plist_name']}.plist" in lists(package) and
        has_picture(package, PANE + link["icon"].removesuffix(".png")) for link in links)


def rows_hold(package):
    """Each preference has one row, which writes into the library's file."""
    rootless = package.prefix() != "./"
    domain = "/var/jb/var/mobile/Library/Preferences/" * rootless + "cn.zerk.hovtanprefs"
    rows = [cell for cell in cells(package) if "key" in cell]
    keys = [preference["key"] for preference in preferences_of(read_table())]
    return sorted(row["key"] for row in rows) == sorted(keys) and all(
        row["defaults"] == domain for row in rows)


def colours_hold(package):
    colours = lists(package).get(f"{BUNDLE}colors.plist", [])
    return len(colours) > 100 and all(set(one) == {"color", "description"} for one in colours)


RULES = [
    ("its property lists can be read", lists_hold),
    ("its pane has one entry, with a picture",
     lambda p: ["entry" in one for one in lists(p).values()].count(True) == 1 and
     has_picture(p, f"{PANE}Wentra")),
    ("its links lead to panes", links_hold),
    ("each preference has a row that writes where the library reads", rows_hold),
    ("it has the library's pictures at each scale",
     lambda p: all(has_picture(p, BUNDLE + name)
                   for name in ["xfq", *(f"tubiao/{icon}" for icon in ICONS)])),
    ("it has named colours", colours_hold),
    ("it holds nothing but lists and pictures",
     lambda p: all(name.endswith((".plist", ".png")) for name in p.file_names())),
    ("it needs the library and a loader of panes",
     lambda p: {"dev.wentra.wentra", "preferenceloader"} <= set(p.depends())),
]
