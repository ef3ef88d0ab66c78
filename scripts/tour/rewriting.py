"""Rules are saved in an application, and its labels come out rewritten on the screen."""

import tempfile

from phone import MATERIAL, PICTURES, Phone, expect, rect

# The switches that the settings would show, by their keys in the preference file.
SWITCHES = {"kqwzgs": "colour", "kqwzdx": "font size", "kqwzgd": "height", "kqwzkd": "width",
            "kqhxyd": "horizontal position", "kqzxyd": "vertical position",
            "kqxstm": "transparency", "kqxgzt": "font"}


def save_rules(phone, text):
    """Saves as the rule editor does, from a text view."""
    editor = phone.make("UITextView", "initWithFrame:", rect(0, 0, 280, 400))
    editor.setText_(text)
    editor.saveRulesFromTextView_(editor)


def check(phone, after):
    title, pinned = phone.label("购物清单"), phone.label("置顶")
    expect("“Shopping list” shows", title["text"], "购物清单")
    expect("   in the colour", title["textColor"], "#ff3b30ff")
    expect("   at the font size", title["font"]["size"], 26)
    expect("a rule with “↲” shows two lines",
           phone.label("轻装出发，\n坐早班车去海边。")["text"].count("\n"), 1)
    expect("only the prefix of “Coffee: two bags” is replaced",
           bool(phone.label("咖啡: two bags")), True)
    expect("the font of “Seat: 12A, window”", phone.label("座位: 12A, window")["font"]["name"],
           "Courier")
    expect("“All notes” is rewritten in a class of the application's own",
           phone.label("全部备忘录")["class"], "YYLabel")
    expect("“Pinned” has moved to x", pinned["frame"][0], 200)
    expect("“Draft” has the alpha", round(phone.label("Draft")["alpha"], 2), 0.3)
    expect("the cut-off label is as wide as",
           phone.label("A long reminder that is cut off")["frame"][2], 300)
    expect("the picture has changed",
           after.read_bytes() != (PICTURES / "1-before.png").read_bytes(), True)


def play():
    rules = (MATERIAL / "rules.txt").read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory(prefix="wentra-tour-") as root:
        print("1. The notes application starts on an untouched phone, with Wentra loaded.")
        with Phone(root) as phone:
            phone.picture("1-before.png")
            print("2. These rules are saved:")
            print("".join(f"      {line}\n" for line in rules.splitlines()), end="")
            save_rules(phone, rules)
            print(f"3. The switches are turned on: {', '.join(SWITCHES.values())}.")
            phone.preferences(set=dict.fromkeys(SWITCHES, True))
        print("4. The application starts again and sets its labels; Wentra rewrites them.")
        with Phone(root) as phone:
            phone.picture("2-after.png")
            check(phone, PICTURES / "2-after.png")
