"""What has to hold for the package of the library."""
import plistlib

FOLDER = "Library/MobileSubstrate/DynamicLibraries/"


def expected_files(package):
    return {f"{package.prefix()}{FOLDER}Wentra.{kind}" for kind in ("dylib", "plist")}


def filter_holds(package):
    path = f"{package.prefix()}{FOLDER}Wentra.plist"
    rules = plistlib.loads(package.files[path][1]).get("Filter") if path in package.files else {}
    return rules and list(rules) == ["Bundles"] and rules["Bundles"] and all(
        isinstance(bundle, str) and bundle for bundle in rules["Bundles"])


RULES = [
    ("it holds the library and its filter, in the folder where loaders look",
     lambda p: p.file_names() == expected_files(p)),
    ("its filter tells bundles, and nothing else", filter_holds),
    ("it needs an injection framework", lambda p: "mobilesubstrate" in p.depends()),
    ("it has no settings pane, so it needs no loader of such",
     lambda p: "preferenceloader" not in p.depends()),
]
