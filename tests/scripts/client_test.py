"""The client for scripts, against a real host."""

import json
import pathlib
import signal
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts/client"))
from wentra import (Ended, Host, NotFound, Object, Refused, TimedOut, cls, rect,  # noqa: E402
                    selector, span)

# Answers the first request only when the second one is there.
LATE = f"""#!{sys.executable}
import sys, json
requests = [json.loads(sys.stdin.readline()) for _ in range(2)]
for request in requests:
    print(json.dumps({{"id": request["id"], "ok": True, "result": request["do"]}}), flush=True)
"""


class ClientTest(unittest.TestCase):
    def setUp(self):
        self.phone = Host("--app", "plain", "--no-library")
        self.addCleanup(self.phone.close)

    def test_views_are_found_and_are_objects_with_methods(self):
        label = self.phone.find(class_="UILabel", text="Hello, world")
        self.assertEqual((label.class_name, label["text"]), ("UILabel", "Hello, world"))
        label.setText_("你好")
        self.assertEqual(label.text(), "你好")
        self.assertEqual(label.node()["text"], "你好")
        self.assertIn(label, self.phone.find_all(class_="UIView"))
        with self.assertRaises(NotFound):
            self.phone.find(text="nowhere")

    def test_objects_are_made_and_passed(self):
        view = self.phone.make("UIView", "initWithFrame:", rect(1, 2, 3, 4))
        self.assertEqual(view.frame(), rect(1, 2, 3, 4))
        window = self.phone.find(class_="UIWindow")
        window.addSubview_(view)
        self.assertEqual(view.superview(), window)
        self.assertEqual(window.node()["children"][-1], view)
        self.assertTrue(view.isKindOfClass_(cls("UIView")))
        self.assertEqual(self.phone.send("abc", "substringWithRange:", span(1, 2)), "bc")
        self.assertTrue(view.respondsToSelector_(selector("frame")))

    def test_a_collection_can_be_had_as_an_object(self):
        array = self.phone.make("NSMutableArray", handle=True)
        array.addObject_("a")
        self.assertIsInstance(array, Object)
        self.assertEqual(array.send("self"), ["a"])

    def test_half_a_surrogate_pair_goes_in(self):
        self.assertEqual(self.phone.send("a\ud83d", "length"), 2)

    def test_every_command_is_a_method(self):
        self.assertEqual(self.phone.pasteboard(set="text"), "text")
        with self.assertRaises(Refused):
            self.phone.dance()

    def test_conditions_are_waited_for(self):
        self.assertTrue(self.phone.wait_for(text="Hello, world"))
        with self.assertRaises(Refused):
            self.phone.wait_for(0, text="nowhere")
        left = [False, False, True]
        self.assertTrue(self.phone.until(lambda: left.pop(0), advancing=0.5))
        with self.assertRaises(TimedOut):
            self.phone.until(lambda: False, seconds=0)

    def test_a_script_is_played(self):
        with tempfile.NamedTemporaryFile("w", suffix=".jsonl") as script:
            for request in ({"do": "advance", "seconds": 1, "id": "first"},
                            {"do": "pasteboard", "set": "played"}):
                print(json.dumps(request), file=script, flush=True)
            self.phone.play(script.name)
        self.assertEqual(self.phone.pasteboard(), "played")

    def test_the_end_is_told(self):
        self.phone.quit()
        with self.assertRaises(Ended) as ended:
            self.phone.events()
        self.assertEqual(ended.exception.status, 0)
        self.assertEqual(self.phone.close(), 0)
        with self.assertRaises(Ended):
            self.phone.events()

    def test_files_are_named_by_paths(self):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder) / "screen.png"
            self.phone.screenshot(file=file)
            self.assertTrue(file.read_bytes().startswith(b"\x89PNG"))

    def test_objects_of_two_phones_differ(self):
        with Host("--app", "plain", "--no-library") as other:
            self.assertNotEqual(self.phone.find(class_="UIWindow"), other.find(class_="UIWindow"))


class OddHostTest(unittest.TestCase):
    def host(self, text):
        """A host that does what the text of its program says."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        program = pathlib.Path(folder.name) / "host"
        program.write_text(text, encoding="utf-8")
        program.chmod(0o700)
        host = Host(program=program)
        self.addCleanup(host.close)
        return host

    def test_an_answer_that_comes_late_is_not_taken_for_the_next(self):
        host = self.host(LATE)
        with self.assertRaises(TimedOut):
            host.ask("first", timeout=0)
        self.assertEqual(host.ask("second"), "second")

    def test_a_host_that_dies_amid_its_answer_has_ended(self):
        host = self.host("#!/bin/sh\nread request\nprintf '{\"id\":1,'\nexit 3\n")
        with self.assertRaises(Ended) as ended:
            host.events()
        self.assertEqual(ended.exception.status, 3)

    def test_a_request_that_was_given_up_is_not_waited_for(self):
        host = Host("--app", "plain", "--no-library", "--clock", "real")
        host.events()
        with self.assertRaises(TimedOut):
            host.ask("advance", seconds=600, timeout=0)
        self.assertEqual(host.close(), 128 + signal.SIGTERM)


if __name__ == "__main__":
    unittest.main()
