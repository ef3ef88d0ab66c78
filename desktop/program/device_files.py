#!/usr/bin/env python3
"""Makes the files of a phone that has been in use for a while: crash reports of several kinds, the
browser's bookmarks, the keyboard's text replacements, a list of accounts. The same at each run.

Usage: device_files.py FOLDER: the folder that stands for the phone's root; it is made anew."""
import json
import os
import plistlib
import random
import shutil
import sqlite3
import sys
import uuid
from datetime import datetime, timedelta, timezone
from pathlib import Path

ZONE = timezone(timedelta(hours=8))
NOW = datetime(2024, 3, 18, 21, 30, tzinfo=ZONE)
SYSTEM = "iPhone OS 15.4.1 (19E258)"
CHANCE = random.Random(15)

LIBRARIES = [
    "/usr/lib/libobjc.A.dylib", "/usr/lib/system/libsystem_c.dylib",
    "/usr/lib/system/libsystem_kernel.dylib", "/usr/lib/system/libdispatch.dylib",
    "/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation",
    "/System/Library/Frameworks/Foundation.framework/Foundation",
    "/System/Library/PrivateFrameworks/UIKitCore.framework/UIKitCore",
    "/System/Library/Frameworks/QuartzCore.framework/QuartzCore",
    "/System/Library/PrivateFrameworks/GraphicsServices.framework/GraphicsServices",
]
ADD_ONS = ["Wentra", "Snowboard", "Choicy", "Cylinder", "Velvet", "Shuffle", "Eneko"]
ADD_ON_FOLDER = ("/private/preboot/8A2E5B0C41D7/procursus/Library/MobileSubstrate/DynamicLibraries/")
PROCESSES = [
    ("SpringBoard", "com.apple.springboard",
     "/System/Library/CoreServices/SpringBoard.app/SpringBoard"),
    ("Preferences", "com.apple.Preferences", "/Applications/Preferences.app/Preferences"),
    ("WeChat", "com.tencent.xin",
     "/private/var/containers/Bundle/Application/6C1F/WeChat.app/WeChat"),
    ("MobileNotes", "com.apple.mobilenotes", "/Applications/MobileNotes.app/MobileNotes"),
    ("Aweme", "com.ss.iphone.ugc.Aweme",
     "/private/var/containers/Bundle/Application/92AB/Aweme.app/Aweme"),
]


def identifier():
    return str(uuid.UUID(int=CHANCE.getrandbits(128), version=4))


def stamp(moment):
    return moment.strftime("%Y-%m-%d %H:%M:%S.00 %z")


def header(process, bundle, moment, bug):
    return json.dumps({"app_name": process, "timestamp": stamp(moment), "app_version": "1.0",
                       "bundleID": bundle, "os_version": SYSTEM, "bug_type": bug, "name": process,
                       "incident_id": identifier().upper()}, ensure_ascii=False)


def printed(report):
    """As the phone prints: a blank on both sides of colons, and slashes escaped."""
    text = json.dumps(report, indent=2, separators=(",", " : "), ensure_ascii=False)
    return text.replace("/", "\\/").replace(
        '  "asi" : {\n    "libsystem_c.dylib" : [\n      "abort() called"\n    ]\n  },',
        '  "asi" : {"libsystem_c.dylib":["abort() called"]},')


def images(executable):
    add_ons = [ADD_ON_FOLDER + f"{name}.dylib" for name in CHANCE.sample(ADD_ONS, 2)]
    for path in [executable, *add_ons, *LIBRARIES]:
        base = CHANCE.randrange(0x1_0000_0000, 0x2_0000_0000, 0x4000)
        size = CHANCE.randrange(0x4000, 0x90000, 0x4000)
        yield {"source": "P", "arch": "arm64e", "base": base, "size": size, "uuid": identifier(),
               "path": path, "name": path.rsplit("/", 1)[1]}


def json_report(process, bundle, executable, moment):
    used = list(images(executable))
    frames = [{"imageOffset": CHANCE.randrange(4096, 400000), "imageIndex": index} for index in range(6)]
    body = {"uptime": CHANCE.randrange(900, 400000), "procRole": "Foreground", "version": 2,
            "modelCode": "iPhone13,2", "captureTime": stamp(moment), "pid": CHANCE.randrange(200, 9000),
            "procName": process, "procPath": executable, "parentProc": "launchd",
            "exception": {"codes": "0x0000000000000000, 0x0000000000000000", "type": "EXC_CRASH",
                          "signal": "SIGABRT"},
            "asi": {"libsystem_c.dylib": ["abort() called"]},
            "faultingThread": 0, "usedImages": used,
            "threads": [{"triggered": True, "id": CHANCE.randrange(1000, 99999), "frames": frames}]}
    return header(process, bundle, moment, "309") + "\n" + printed(body) + "\n"


def text_report(process, bundle, executable, moment):
    used = list(images(executable))
    lines = [header(process, bundle, moment, "109"),
             f"Incident Identifier: {identifier().upper()}", "Hardware Model:      iPhone13,2",
             f"Process:             {process} [{CHANCE.randrange(200, 9000)}]",
             f"Path:                {executable}", f"Identifier:          {bundle}", "",
             f"Date/Time:           {stamp(moment)}", f"OS Version:          {SYSTEM}", "",
             "Exception Type:  EXC_BAD_ACCESS (SIGSEGV)",
             f"Exception Subtype: KERN_INVALID_ADDRESS at 0x{CHANCE.randrange(0, 4096):016x}", "",
             "Thread 0 name:  Dispatch queue: com.apple.main-thread", "Thread 0 Crashed:"]
    lines += [f"{number:<4}{image['name']:<30} 0x{image['base'] + 4711 * number:016x} "
              f"0x{image['base']:x} + {4711 * number}"
              for number, image in enumerate(used[:7])]
    lines += ["", "Binary Images:"]
    lines += [f"0x{image['base']:x} - 0x{image['base'] + image['size']:x} {image['name']} arm64e  "
              f"<{image['uuid'].replace('-', '')}> {image['path']}" for image in used]
    return "\n".join([*lines, ""])


def memory_report(moment):
    processes = [{"uuid": identifier(), "name": name,
                  "states": ["frontmost" if not number else "suspended"], "rpages": CHANCE.randrange(900, 90000),
                  "pid": CHANCE.randrange(100, 9000), "reason": "per-process-limit" if not number else "",
                  "cpuTime": CHANCE.random() * 60}
                 for number, (name, _, _) in enumerate(CHANCE.sample(PROCESSES, 4))]
    body = {"crashReporterKey": identifier(), "kernel": "Darwin Kernel Version 21.4.0", "product": "iPhone13,2",
            "build": SYSTEM, "memoryStatus": {"pageSize": 16384, "memoryPressure": False},
            "largestProcess": processes[0]["name"], "processes": processes}
    head = {"bug_type": "298", "timestamp": stamp(moment), "os_version": SYSTEM,
            "incident_id": identifier().upper()}
    return json.dumps(head) + "\n" + printed(body) + "\n"


def stall_report(process, moment):
    lines = [json.dumps({"bug_type": "288", "timestamp": stamp(moment), "os_version": SYSTEM}),
             "Event:            cpu usage", f"Process:          {process}",
             f"CPU:              90 seconds cpu time over {CHANCE.randrange(100, 180)} seconds",
             "Heaviest stack for the target process:"]
    lines += [f"  {CHANCE.randrange(2, 90)}  ??? ({path.rsplit('/', 1)[1]} + {CHANCE.randrange(4096, 400000)})"
              for path in LIBRARIES[:6]]
    return "\n".join([*lines, ""])


def usage_report(moment):
    records = [{"deviceId": identifier(), "name": name, "count": CHANCE.randrange(1, 400)}
               for name in ("appLaunch", "keyboardUsage", "screenTime")]
    head = {"timestamp": stamp(moment), "bug_type": "211"}
    return "".join(json.dumps(record) + "\n" for record in [head, *records])


def report(number, moment):
    """The name and the text of the report of that number."""
    process, bundle, executable = PROCESSES[number % len(PROCESSES)]
    time = moment.strftime("%Y-%m-%d-%H%M%S")
    kind = number % 10
    if kind < 5:
        return f"{process}-{time}.ips", json_report(process, bundle, executable, moment)
    if kind < 7:
        return f"{process}-{time}.ips", text_report(process, bundle, executable, moment)
    if kind == 7:
        return f"JetsamEvent-{time}.ips", memory_report(moment)
    if kind == 8:
        return f"{process}.cpu_resource-{time}.ips", stall_report(process, moment)
    return f"Analytics-{time}.ips.ca.synced", usage_report(moment)


def write_reports(folder, count=50):
    folder.mkdir(parents=True)
    moment = NOW
    for number in range(count):
        name, text = report(number, moment)
        file = folder / name
        file.write_text(text, encoding="utf-8")
        file.chmod(0o600 if number % 3 else 0o644)
        os.utime(file, (moment.timestamp(),) * 2)
        moment -= timedelta(minutes=CHANCE.randrange(40, 2000))


def database(file, script):
    file.parent.mkdir(parents=True)
    connection = sqlite3.connect(file)
    connection.executescript(script)
    return connection


def write_bookmarks(file):
    bookmarks = database(file, """
        CREATE TABLE bookmarks (id INTEGER PRIMARY KEY AUTOINCREMENT, special_id INTEGER DEFAULT 0,
            parent INTEGER, type INTEGER, title TEXT, url TEXT COLLATE NOCASE,
            num_children INTEGER DEFAULT 0, editable INTEGER DEFAULT 1, deletable INTEGER DEFAULT 1,
            hidden INTEGER DEFAULT 0, hidden_ancestor_count INTEGER DEFAULT 0,
            order_index INTEGER NOT NULL, external_uuid TEXT UNIQUE, read INTEGER DEFAULT NULL,
            last_modified REAL DEFAULT NULL, server_id TEXT, sync_key TEXT, sync_data BLOB,
            added INTEGER DEFAULT 1, deleted INTEGER DEFAULT 0, extra_attributes BLOB DEFAULT NULL,
            local_attributes BLOB DEFAULT NULL, fetched_icon BOOL DEFAULT 0, icon BLOB DEFAULT NULL,
            dav_generation INTEGER DEFAULT 0, locally_added BOOL DEFAULT 0,
            archive_status INTEGER DEFAULT 0, syncable BOOL DEFAULT 1,
            web_filter_status INTEGER DEFAULT 0, modified_attributes UNSIGNED BIG INT DEFAULT 0);
        CREATE TABLE folder_ancestors (id INTEGER PRIMARY KEY AUTOINCREMENT, folder_id INTEGER NOT NULL,
            ancestor_id INTEGER NOT NULL);
        CREATE TABLE sync_properties (key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL);""")
    rows = [("Root", None), ("收藏", None), ("百度", "https://www.baidu.com/"),
            ("维基百科", "https://zh.wikipedia.org/"), ("知乎", "https://www.zhihu.com/"),
            ("哔哩哔哩", "https://www.bilibili.com/"), ("Apple", "https://www.apple.com/cn/"),
            ("Saily", "https://github.com/Lakr233/chromatic")]
    bookmarks.executemany(
        "INSERT INTO bookmarks (parent, type, title, url, order_index, external_uuid) VALUES (?, ?, ?, ?, ?, ?)",
        [(0 if url is None else 2, 1 if url is None else 0, title, url, place, identifier().upper())
         for place, (title, url) in enumerate(rows)])
    bookmarks.commit()
    bookmarks.close()


def write_replacements(file):
    entries = database(file, """
        CREATE TABLE ZTEXTREPLACEMENTENTRY (Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER, Z_OPT INTEGER,
            ZNEEDSSAVETOCLOUD INTEGER, ZWASDELETED INTEGER, ZTIMESTAMP TIMESTAMP, ZPHRASE VARCHAR,
            ZSHORTCUT VARCHAR, ZUNIQUENAME VARCHAR, ZREMOTERECORDINFO BLOB);
        CREATE TABLE Z_PRIMARYKEY (Z_ENT INTEGER PRIMARY KEY, Z_NAME VARCHAR, Z_SUPER INTEGER, Z_MAX INTEGER);
        CREATE TABLE Z_METADATA (Z_VERSION INTEGER PRIMARY KEY, Z_UUID VARCHAR(255), Z_PLIST BLOB);
        INSERT INTO Z_PRIMARYKEY VALUES (1, 'TextReplacementEntry', 0, 4);""")
    entries.executemany(
        "INSERT INTO ZTEXTREPLACEMENTENTRY VALUES (NULL, 1, 1, 0, 0, ?, ?, ?, ?, NULL)",
        [(700000000.0 + 86400 * place, phrase, shortcut, identifier().upper()) for place, (phrase, shortcut)
         in enumerate([("你好", "nh"), ("马上就到", "msjd"), ("user@example.com", "yx"), ("谢谢😀", "xx")])])
    entries.commit()
    entries.close()


def write_accounts(file):
    file.parent.mkdir(parents=True)
    accounts = {"AccountStoreVersion": 3, "LastSync": 1710768600000, "Accounts": [
        {"name": "小明", "phone": "+8613800138000"}, {"name": "阿华", "phone": "8613912345678"},
        {"name": "公司", "phone": 8675526013388, "updated": 1650768600000}]}
    file.write_bytes(plistlib.dumps(accounts, fmt=plistlib.FMT_BINARY))


def main():
    root = Path(sys.argv[1])
    shutil.rmtree(root, ignore_errors=True)
    home = root / "var/mobile"
    write_reports(home / "Library/Logs/CrashReporter")
    write_bookmarks(home / "Library/Safari/Bookmarks.db")
    write_replacements(home / "Library/KeyboardServices/TextReplacements.db")
    write_accounts(home / "Library/Preferences/com.apple.itunescloud.plist")
    documents = home / "Documents"
    documents.mkdir()
    (documents / "自带输入法批量导入词库.txt").write_text("在路上 zls\n\n稍后联系 shlx\n", encoding="utf-8")


if __name__ == "__main__":
    main()
