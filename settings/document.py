#!/usr/bin/env python3
"""Writes docs/preferences.md, the list of all preferences, from their table; with --check, tells only
whether it is up to date.

Usage: document.py [--check]"""
import sys
from pathlib import Path

from table import read_table

DOCUMENT = Path(__file__).parents[1] / "docs/preferences.md"
HEAD = """# All preferences · 全部设置

Made by `settings/document.py` from `settings/preferences.json`, the table that the settings' pane and
the page are made from as well. A switch that is not there is off; a number that is not there, or 0,
counts as the default.

由 `settings/document.py` 根据 `settings/preferences.json` 生成，“设置”中的页面和浏览器页面也来自同一张表。没有的开关为关；没有的数字或 0 按默认值。
"""
TABLE = "| Key · 键 | 标题 | 说明 | What it does | Default · 默认 |\n|---|---|---|---|---|\n"
KINDS = {"switch": "off · 关", "number": "", "text": ""}


def row(preference):
    shown = preference.get("default", KINDS[preference["type"]])
    limits = ""
    if "minimum" in preference:
        limits = f" ({preference['minimum']}–{preference['maximum']})"
    return (f"| `{preference['key']}` | {preference['zh']} | {preference['help']} | "
            f"{preference['en']} | {shown}{limits} |\n")


def document(panes):
    text = HEAD
    for pane in panes:
        text += f"\n## {pane['zh']} · {pane['en']}\n"
        for group in pane["groups"]:
            text += f"\n### {group['zh']} · {group['en']}\n\n{TABLE}"
            text += "".join(row(preference) for preference in group["preferences"])
    return text


def main():
    made = document(read_table())
    if "--check" not in sys.argv:
        DOCUMENT.write_text(made, encoding="utf-8")
    elif DOCUMENT.read_text(encoding="utf-8") != made:
        sys.exit(f"{DOCUMENT} is out of date: run settings/document.py")


if __name__ == "__main__":
    main()
