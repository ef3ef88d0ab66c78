#!/usr/bin/env python3
"""Prints the ratios that the benchmarks are about, from the results of one run of ./dev bench."""

import json
import pathlib
import sys

# What is measured, against what, and the aim.
RATIOS = [
    ("one wrapped message / by hand", "wrapped", "handCast", "at most 1.1"),
    ("reading preferences / plain read, XML", "preferences/xml", "plainRead/xml", "at most 1.1"),
    ("reading preferences / plain read, binary", "preferences/binary", "plainRead/binary",
     "at most 1.1"),
    ("label text without rules / plain read, XML", "setText/xml_without_rules", "plainRead/xml",
     "at most 1.5"),
    ("label text without rules / plain read, binary", "setText/binary_without_rules",
     "plainRead/binary", "at most 1.5"),
    ("of that the platform's own setText: / plain read", "platformText", "plainRead/xml", ""),
    ("of that nine maps and a look into each / plain read", "ruleMaps", "plainRead/xml", ""),
    ("label text with nine rules / plain read, XML", "setText/xml_with_rules", "plainRead/xml",
     "at most 2"),
    ("label text with nine rules / plain read, binary", "setText/binary_with_rules",
     "plainRead/binary", "at most 2"),
    ("cutting tokens by the regular expression / by ours", "regularExpression", "cutTokens",
     "at least 20"),
    ("cutting tokens / reading the memory", "cutTokens", "memoryRead", ""),
    ("filling the grid, a token of 20,000 / of 2,000", "fill/20000", "fill/2000", "at most 1.3"),
    ("sliding over tiles, one of 2,000 / of 200", "slide/2000", "slide/200", "at most 1.3"),
    ("updating the edit menu / reading preferences", "updateMenu", "menuPreferences",
     "at most 1.5"),
    ("making the edit menu / reading preferences", "makeMenu", "menuPreferences", ""),
    ("finding 5,000 links in 1 MB / by a regular expression", "findLinks/1", "matchLinks",
     "at most 3"),
    ("finding links in 2 MB / in 1 MB", "findLinks/2", "findLinks/1", "at most 2.2"),
    ("escapes of 1 MB by formatting / by ours", "formatEscapes", "escapeText", "at least 20"),
    ("text of escapes by a property list / by ours", "listEscapes", "unescapeText",
     "at least 20"),
    ("pinyin of 10,000 characters / by ICU alone", "pinyin", "icuPinyin", "at most 1.1"),
    ("a new URL, blocking on, 1,000 words / plain read, XML", "newUrl/xml_blocking",
     "plainBlockingRead/xml", "at most 3"),
    ("a new URL, blocking on, 1,000 words / plain read, binary", "newUrl/binary_blocking",
     "plainBlockingRead/binary", "at most 3"),
    ("a new URL, blocking off / plain read, XML", "newUrl/xml_passing",
     "plainBlockingRead/xml", "at most 1.3"),
    ("a new URL, blocking off / plain read, binary", "newUrl/binary_passing",
     "plainBlockingRead/binary", "at most 1.3"),
    ("of that the platform's own URLWithString: / plain read", "platformUrl",
     "plainBlockingRead/xml", ""),
    ("dumping all classes / writing the text", "dumpClasses/real_time", "writeDump/real_time",
     "at most 2"),
    ("counting symbols in 10 MB / reading it", "countSymbols", "readUnits", "at most 1.5"),
    ("method bodies, 1,000,000 without an end / half of that", "findBodies/1000000",
     "findBodies/500000", "at most 2.2"),
    ("listing 10,000 crash reports / reading their attributes", "listReports", "readAttributes",
     "at most 1.3"),
    ("library lines of a report of 10 MB / grep", "findLibraryLines/real_time",
     "grep/lines/real_time", "at most 1"),
    *((f"the dialog's filter of {lines} / grep", f"filterLines/{lines}/real_time",
       f"grep/{lines}/real_time", "at most 1")
      for lines in ("urls", "libraries", "dylibs", "errors", "system", "numbers")),
    ("opening a text of 1,000,000 units / of 2,000", "openText/1000000", "openText/2000", ""),
    ("stitching 20 screenshots into a file / encoding them", "stitchImages", "encodeStitched",
     "at most 1.2"),
    ("matching 41 expressions in a page / opening and colouring it", "matchSyntax",
     "openAndColour", "at least 3"),
    ("searching a page / memmem", "searchPage", "searchMemory", "at most 2"),
    ("showing the bytes of 64 MB / reading them", "showBytes", "readBlocks", "at most 1.5"),
    ("listing 100,000 entries / the system's calls alone", "listFolder", "systemListing",
     "at most 1.3"),
    ("scrolling through 100,000 files / through 1,000", "scrollFiles/100000", "scrollFiles/1000",
     "at most 1.3"),
    ("redrawing a caret / the whole screen", "caretRedraw", "fullRedraw", ""),
    ("redrawing a label / the whole screen", "labelRedraw", "fullRedraw", ""),
]

# The same, by the time that people wait.
REAL_TIME_RATIOS = [
    ("200 lines translated by URL sessions / by curl", "sessions", "curlTool", "at most 1.3"),
    ("sizes of 100,000 files in 5,000 folders / by find", "findDuplicates", "findTool",
     "at most 1.1"),
]


def nanoseconds(result):
    """Of one item, where the benchmark counts items."""
    if "items_per_second" in result:
        return 1e9 / result["items_per_second"]
    return result["real_time" if result["name"].endswith("/real_time") else "cpu_time"]


def read(folder):
    benchmarks = {}
    for file in sorted(pathlib.Path(folder).glob("*.json")):
        for result in json.loads(file.read_text())["benchmarks"]:
            benchmarks[result["name"]] = result
    return benchmarks


def show(title, value, form, aim):
    print(f"{title:58}{value:{form}}  {aim}".rstrip())


def show_others(results, time):
    """What is no ratio of two benchmarks' own times."""
    # The plain approach is our chain with Foundation's reading of the file in place of ours.
    ours = time["setText/xml_with_rules"]
    plain = ours - time["preferences/xml"] + time["foundationRead"]
    show("label text with Foundation reading the file / ours", plain / ours, "5.2f", "at least 8")
    for title, what, against, aim in REAL_TIME_RATIOS:
        ratio = results[f"{what}/real_time"]["real_time"] / results[f"{against}/real_time"]["real_time"]
        show(title, ratio, "5.2f", aim)
    for kind in "caret_blinks", "panel_moves", "whole_screen":
        frame = results[f"frame/{kind}"]
        print(f"{'frame, ' + kind.replace('_', ' '):58}{frame['bytes'] / 1024:.1f} KiB,"
              f" {frame['frames/s']:.0f} a second")
    drag = results["framesOfADrag/iterations:1/real_time"]
    show("frames a second of a dragged panel on a page that only reads", drag["frames/s"], "5.0f",
         "at least 60")
    show("bytes of a moved panel's frame / of the tiles that differ",
         results["frame/panel_moves"]["byTiles"], "5.2f", "at most 1.2")
    show("from a movement to its frame, in ms at the median",
         results["movementToFrame/iterations:300/real_time"]["median_ms"], "5.1f", "at most 20")
    for name in ("panelDrag", "panelDragBetweenPixels", "panelPinch"):
        show(f"frames a second of one core, {name}", results[name]["frames"], "5.0f", "at least 60")
    show("frames a second while the screen is recorded",
         results["recordedDrag/min_time:3.000/real_time"]["frames"], "5.0f", "at least 30")
    move = results["touchMove"]
    show("one move of a finger among 1,000 views", move["cpu_time"], "5.1f", move["time_unit"])


def show_loading(loading):
    print(f"\nloading the library: {loading['bestMilliseconds']:.2f} ms at best,"
          f" {loading['real_time']:.2f} on average,"
          f" {loading['ownResidentBytes'] / 1024:.0f} KiB of its file resident"
          f" and {loading['otherResidentBytes'] / 1024:.0f} KiB of others,"
          f" {loading['fileBytes'] / 1024:.0f} KiB on disk with debugging information")


def main():
    results = read(sys.argv[1])
    time = {name: nanoseconds(result) for name, result in results.items()}
    print(f"\n{'':58}ratio  aim")
    for title, what, against, aim in RATIOS:
        show(title, time[what] / time[against], "6.3g", aim)
    show_others(results, time)
    show_loading(next(result for name, result in results.items() if name.startswith("loading/")))


if __name__ == "__main__":
    main()
