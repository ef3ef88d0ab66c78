"""The phone that the tour is played on, and what is said along the way."""

import json
import os
import pathlib
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent.parent
HOST = os.environ.get("WENTRA_HOST", TOP / "build/release/bin/host")
MATERIAL = TOP / "scripts/tour"
PICTURES = TOP / "build/tour"


class Phone:
    """An application in the desktop host, driven by one JSON line for each request."""

    pictures = PICTURES  # the folder where they go

    def __init__(self, root, app="notes", host=HOST, options=()):
        self.log = (self.pictures / "host.log").open("a", encoding="utf-8")
        arguments = [host, "--automation", "--app", app, "--root", root, "--settings-bundle",
                     *options]
        if app == "notes":
            arguments += ["--content", MATERIAL / "notes.json"]
        self.process = subprocess.Popen(arguments, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=self.log, text=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()
        self.log.close()

    def ask(self, do, **arguments):
        self.process.stdin.write(json.dumps({"do": do, **arguments}) + "\n")
        self.process.stdin.flush()
        response = json.loads(self.process.stdout.readline()
                              or '{"ok":false,"error":"it ended, see host.log"}')
        if not response["ok"]:
            sys.exit(f"tour: the host refused '{do}': {response['error']}")
        return response.get("result")

    def send(self, receiver, selector, *arguments):
        return self.ask("send", to=receiver, selector=selector, args=list(arguments))

    def label(self, text):
        found = self.ask("find", where={"text": text})
        if not found:
            sys.exit(f"tour: no label shows {text!r}")
        return found[0]

    def button(self, title):
        found = self.ask("find", where={"title": title, "visible": True})
        if not found:
            sys.exit(f"tour: there is no button {title!r}")
        return found[0]

    def tap(self, place):
        """Taps a node or a point, and waits until no further tap could follow."""
        self.ask("tap", **{"at" if isinstance(place, list) else "on": place})
        self.advance(0.4)

    def advance(self, seconds):
        self.ask("advance", seconds=seconds)

    def picture(self, name):
        file = self.pictures / name
        self.ask("screenshot", file=str(file))
        print(f"   picture: {file.relative_to(TOP) if file.is_relative_to(TOP) else file}")


def expect(what, found, wanted):
    mark = "✓" if found == wanted else "✗"
    print(f"   {mark} {what}: {found}")
    if found != wanted:
        sys.exit(f"tour: {what} should be {wanted}")
