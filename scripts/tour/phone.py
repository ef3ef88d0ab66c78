"""The phone that the tour is played on, and what is said along the way."""

import os
import pathlib
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(TOP / "scripts/client"))

from wentra import Host, WentraError, rect  # noqa: E402,F401

HOST = os.environ.get("WENTRA_HOST", TOP / "build/release/bin/host")
MATERIAL = TOP / "scripts/tour"
PICTURES = TOP / "build/tour"


class Phone(Host):
    """An application on a phone whose files are kept."""

    pictures = PICTURES  # the folder where they go

    def __init__(self, root, app="notes", host=HOST, options=()):
        content = ("--content", MATERIAL / "notes.json") if app == "notes" else ()
        with (self.pictures / "host.log").open("a", encoding="utf-8") as log:
            super().__init__("--app", app, "--root", root, "--settings-bundle", *content,
                             *options, program=host, log=log)

    def label(self, text):
        return self.find(text=text)

    def button(self, title):
        return self.find(title=title, visible=True)

    def tap(self, place):
        """Taps a node or a point, and waits until no further tap could follow."""
        super().tap(place)
        self.advance(0.4)

    def picture(self, name):
        file = self.pictures / name
        self.screenshot(file=str(file))
        print(f"   picture: {file.relative_to(TOP) if file.is_relative_to(TOP) else file}")


def expect(what, found, wanted):
    mark = "✓" if found == wanted else "✗"
    print(f"   {mark} {what}: {found}")
    if found != wanted:
        sys.exit(f"tour: {what} should be {wanted}")
