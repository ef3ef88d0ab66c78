"""Reads the table of the preferences: panes of groups of preferences, in the order in which they are
shown. Each preference has its key, its type (switch, number or text), its title in Chinese (zh), what it
does in English (en) and in Chinese (help), and where there are such: what holds without a value
(default), and the limits of its values (minimum, maximum)."""
import json
from pathlib import Path


def read_table():
    return json.loads(Path(__file__).with_name("preferences.json").read_text(encoding="utf-8"))


def preferences_of(panes):
    return [preference for pane in panes for group in pane["groups"]
            for preference in group["preferences"]]
