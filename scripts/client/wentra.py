"""Drives Wentra's desktop host from Python: one file, no dependencies, Python 3.9 or later.

    from wentra import Host

    with Host("--app", "plain") as phone:
        label = phone.find(text="Hello, world")
        label.setText_("你好")                  # any method of the object, _ for each colon
        phone.tap(label)
        phone.until(lambda: label.text() == "你好")
        phone.screenshot(file="screen.png")

docs/automation.md describes the protocol, docs/recipes.md has examples.
"""

import functools
import json
import os
import pathlib
import queue
import subprocess
import threading
import time


class WentraError(Exception):
    """What this module raises."""


class Refused(WentraError):
    """The host has answered with an error, which is the text."""


class NotFound(WentraError):
    """No view meets the conditions."""


class TimedOut(WentraError):
    """It took longer than was allowed."""


class Ended(WentraError):
    """The host has ended; `status` is its exit status."""

    def __init__(self, status):
        super().__init__(f"the host has ended with status {status}")
        self.status = status


def rect(x, y, width, height):
    """A CGRect."""
    return {"rect": [x, y, width, height]}


def point(x, y):
    """A CGPoint."""
    return {"point": [x, y]}


def size(width, height):
    """A CGSize."""
    return {"size": [width, height]}


def span(location, length):
    """An NSRange."""
    return {"range": [location, length]}


def cls(name):
    """A class, as the receiver of a message or an argument."""
    return {"class": name}


def selector(name):
    """A selector, as an argument."""
    return {"selector": name}


class Object:
    """An object of the application, kept alive by its handle for as long as the host runs.

    `object["text"]` is what the host told with the handle, so for a node of `find` or `tree` its
    keys of then. Methods of the application's object are called by their selectors with `_` for
    each colon: `label.setText_("a")`, `label.text()`; or by `send`, which is also for selectors with
    underscores and those that have the name of a method here.
    """

    def __init__(self, host, told):
        self._host = host
        self._told = told

    @property
    def handle(self):
        return {"object": self._told["object"]}

    @property
    def class_name(self):
        return self._told["class"]

    def __getitem__(self, key):
        return self._told[key]

    def get(self, key, missing=None):
        return self._told.get(key, missing)

    def __contains__(self, key):
        return key in self._told

    def __eq__(self, other):
        return isinstance(other, Object) and self._host is other._host and \
            self.handle == other.handle

    def __hash__(self):
        return hash(self._told["object"])

    def __repr__(self):
        what = self._told.get("description") or self._told.get("text") or ""
        return f"<{self.class_name} {self._told['object']} {what!r}>"

    def send(self, name, *arguments, **options):
        return self._host.send(self, name, *arguments, **options)

    def __getattr__(self, name):
        if name.startswith("_"):
            raise AttributeError(name)
        return functools.partial(self.send, name.replace("_", ":"))

    def node(self):
        """A view as it is now, with its subviews."""
        return self._host.tree(of=self)

    def tap(self, **options):
        self._host.tap(self, **options)

    def press(self, **options):
        self._host.press(self, **options)


class Host:
    """An application on a phone of its own; a context manager, which ends it.

    The words are the options of `./dev host`. `program` is the host's program (when missing, what
    the variable WENTRA_HOST names, or this project's `./dev host`); `timeout` is how many seconds
    an answer may take; `log` is a file for what the host prints beside its answers. To be used by one
    thread.

    Every command of the protocol is a method: `phone.alert(choose="好的")`,
    `phone.preferences(set={…})`. Where Python has a word of its own, `_` follows: `for_`, `class_`.
    """

    def __init__(self, *options, program=None, timeout=60, log=None):
        self.timeout = timeout
        self._requests = 0
        self._is_asking = False
        self._lines = queue.Queue()  # the simple one may wait for ever in Python 3.9
        self._process = subprocess.Popen(
            [*_command(program), "--automation", *map(str, options)],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=log, text=True, encoding="utf-8")
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        """Ends the host; its exit status. A request that has been given up is broken off."""
        try:
            self._process.stdin.close()
        except BrokenPipeError:
            pass
        if self._is_asking:
            self._process.terminate()
        try:
            self._process.wait(self.timeout)
        except subprocess.TimeoutExpired:
            self._process.kill()
            self._process.wait()
        self._reader.join()
        self._process.stdout.close()
        return self._process.returncode

    def ask(self, do, timeout=None, **arguments):
        """The result of a command. Raises Refused, TimedOut or Ended. Without a `timeout` of its own,
        a command that takes `seconds` may take as much longer."""
        self._requests += 1
        request = {"do": do, "id": self._requests}
        request.update((name.rstrip("_"), value) for name, value in arguments.items())
        line = json.dumps(request, default=_form_of)
        self._is_asking = True
        self._write(line)
        response = self._response(self._patience(arguments) if timeout is None else timeout)
        self._is_asking = False
        if not response["ok"]:
            raise Refused(response["error"])
        return self._object(response["result"])

    def __getattr__(self, do):
        if do.startswith("_"):
            raise AttributeError(do)
        return functools.partial(self.ask, do)

    def send(self, receiver, name, *arguments, **options):
        """Sends a message to an Object, a value or a class (`cls("UIView")`); with `handle=True`
        the result is an Object whatever it is."""
        return self.ask("send", to=receiver, selector=name, args=list(arguments), **options)

    def make(self, class_name, name="init", *arguments, **options):
        """A new object: `phone.make("UILabel", "initWithFrame:", rect(0, 0, 100, 20))`."""
        return self.ask("make", class_=class_name, selector=name, args=list(arguments), **options)

    def find_all(self, **conditions):
        """The views that meet all conditions, in the order of the tree: `class_`, `text`, `title`,
        `label`, `tag`, `visible`."""
        return self.ask("find", where=_without_underscores(conditions))

    def find(self, **conditions):
        """The first of them. Raises NotFound without any."""
        found = self.find_all(**conditions)
        if not found:
            raise NotFound(f"no view with {conditions}")
        return found[0]

    def tap(self, place, **options):
        """Taps a view or a point [x, y]."""
        self.ask("tap", **_placed(place), **options)

    def press(self, place, **options):
        self.ask("press", **_placed(place), **options)

    def advance(self, seconds):
        """Moves the phone's clock."""
        self.ask("advance", seconds=seconds)

    def wait_for(self, seconds=10, **conditions):
        """The views that meet the conditions, or the events (`event="log"`), as soon as there are any:
        for what other threads do, in seconds of this machine. Raises Refused when the time is over."""
        return self.ask("wait", for_=_without_underscores(conditions), seconds=seconds)

    def until(self, condition, seconds=10, advancing=0):
        """Asks until `condition()` holds, and returns what it gave; each time the phone's clock
        moves on by `advancing` seconds. Raises TimedOut after so many seconds of this machine."""
        end = time.monotonic() + seconds
        while True:
            if held := condition():
                return held
            if time.monotonic() > end:
                raise TimedOut(f"waited for {seconds} seconds in vain")
            if advancing:
                self.advance(advancing)
            time.sleep(0.02)

    def play(self, file):
        """Does what a recorded script says, line by line."""
        for line in pathlib.Path(file).read_text(encoding="utf-8").splitlines():
            if line.strip():
                request = json.loads(line)
                request.pop("id", None)
                self.ask(request.pop("do"), **request)

    def _patience(self, arguments):
        return self.timeout + sum(arguments[name] for name in ("seconds", "hold")
                                  if isinstance(arguments.get(name), (int, float)))

    def _write(self, line):
        if self._process.stdin.closed:
            raise Ended(self._process.wait())
        try:
            self._process.stdin.write(line + "\n")
            self._process.stdin.flush()
        except BrokenPipeError:
            raise Ended(self._process.wait()) from None

    def _read(self):
        for line in self._process.stdout:
            if line.endswith("\n"):  # else the host has ended amid its answer
                self._lines.put(line)
        self._lines.put(None)

    def _response(self, seconds):
        end = time.monotonic() + seconds
        while True:
            try:
                line = self._lines.get(timeout=max(0, end - time.monotonic()))
            except queue.Empty:
                raise TimedOut(f"no answer within {seconds} seconds") from None
            if line is None:
                self._lines.put(None)
                raise Ended(self._process.wait())
            response = json.loads(line)
            if response.get("id") == self._requests:  # else of a request that was given up
                return response

    def _object(self, told):
        if isinstance(told, list):
            return [self._object(each) for each in told]
        if not isinstance(told, dict):
            return told
        told = {key: self._object(value) for key, value in told.items()}
        return Object(self, told) if isinstance(told.get("object"), int) and "class" in told \
            else told


def _command(program):
    program = program or os.environ.get("WENTRA_HOST")
    if program:
        return [str(program)]
    return [str(pathlib.Path(__file__).resolve().parents[2] / "dev"), "host"]


def _form_of(value):
    if isinstance(value, Object):
        return value.handle
    if isinstance(value, os.PathLike):
        return os.fspath(value)
    raise TypeError(f"the protocol has no form for {value!r}")


def _without_underscores(names):
    return {name.rstrip("_"): value for name, value in names.items()}


def _placed(place):
    return {"on": place} if isinstance(place, (Object, dict)) else {"at": list(place)}
