"""The pictures of the user's guide: what it tells, played by touch on the desktop phone.

Usage: guide.py HOST FOLDER: the host's program, and where the pictures go."""

import os
import pathlib
import sys
import tempfile
from contextlib import contextmanager

import phone as stage

ANIMATION = 1  # seconds, enough for whatever moves
LOOK = ("--size", "390x844@2", "--date", "2026-01-15T09:41:00")
SENTENCE = "good morning"
SEARCHES = ["AppStore", "百度", "知乎", "淘宝", "哔哩哔哩", "iOS地图", "下载", "预览"]
BALL = [358, 222]


class Phone(stage.Phone):
    """Waits for what moves, and finds things as the guide names them."""

    def tap(self, place):
        super().tap(place)
        self.advance(ANIMATION)

    def all(self, text):
        return self.find_all(text=text, visible=True)

    def hold(self, place, seconds=0.6):
        self.press(place, seconds=seconds)
        self.advance(ANIMATION)

    def switch(self, title):
        """Turns the switch in the row of that title."""
        _, top, _, height = self.label(title)["rect"]
        middle = top + height / 2
        beside = [node for node in self.find_all(class_="UISwitch", visible=True)
                  if node["rect"][1] < middle < node["rect"][1] + node["rect"][3]]
        self.tap(beside[0])


class Guide:
    """One phone, whose applications are opened one after the other."""

    def __init__(self, host, root):
        self.host = host
        self.root = root

    @contextmanager
    def open(self, app, *options):
        with Phone(self.root, app, self.host, (*LOOK, *options)) as phone:
            phone.advance(ANIMATION)
            yield phone


def switch_on(guide):
    with guide.open("settings") as phone:
        phone.picture("settings.png")
        phone.tap(phone.label("Wentra"))
        for title in ("显示悬浮球", "长按复制文字", "长按导航栏编辑规则"):
            phone.switch(title)
        phone.picture("pane.png")
        phone.tap(phone.label("文字替换与复制"))
        for title in ("文字颜色", "文字大小"):
            phone.switch(title)
        phone.picture("labels.png")


def replace_a_text(guide):
    with guide.open("notes") as phone:
        phone.hold(phone.find(class_="UINavigationBar"))
        editor = phone.find(class_="UITextView", visible=True)
        phone.hold(editor)
        phone.type(text="Shopping list===购物清单\nShopping list#=ff3b30\n")
        phone.key(name="hide")
        phone.advance(ANIMATION)
        phone.picture("editor.png")
        phone.tap(phone.button("确定"))
    with guide.open("notes") as phone:
        phone.picture("replaced.png")


def open_the_toolbox(phone):
    phone.hold(phone.label(SENTENCE), 0.5)
    phone.tap(BALL)


def use_the_toolbox(guide):
    with guide.open("notes") as phone:
        phone.preferences(set={"中英对比样式": True, "百度id": "desktop",
                               "百度key": "desktop-key"})
        open_the_toolbox(phone)
        phone.tap(phone.find(class_="UICollectionViewCell"))
        phone.picture("toolbox.png")
        phone.tap(phone.button("文字翻译"))
        phone.wait_for(30, class_="MovableAlertViewzerk")
        phone.picture("translation.png")


def hold_in_the_toolbox(guide, button, picture, *options):
    with guide.open("notes", *options) as phone:
        open_the_toolbox(phone)
        phone.hold(phone.button(button))
        phone.picture(picture)


def look_it_up(guide):
    with guide.open("plain") as phone:
        phone.preferences(set=dict.fromkeys(SEARCHES, True))
    hold_in_the_toolbox(guide, "链接跳转", "search.png")


def keep_what_was_copied(guide):
    with guide.open("notes") as phone:
        open_the_toolbox(phone)
        phone.hold(phone.button("全选文字"))
        for text in ("Seat: 12A, window", "https://www.example.com/travel", "13800138000"):
            phone.advance(60)
            phone.pasteboard(set=text)
        phone.tap(phone.button("关闭"))
        phone.hold(phone.button("全选文字"))
        phone.picture("history.png")


def hold_other_buttons(guide):
    hold_in_the_toolbox(guide, "写入粘板", "switches.png")
    hold_in_the_toolbox(guide, "U码转换", "utilities.png")
    hold_in_the_toolbox(guide, "日志检索", "crashes.png", "--device-files")


def edit_a_text(guide):
    with guide.open("plain") as phone:
        phone.preferences(set={"注释代码": True, "翻译文本": True, "字转拼音": True,
                               "跳转结尾": True, "kqwzfc": False})
    with guide.open("plain") as phone:
        view = phone.make("UITextView", "initWithFrame:", stage.rect(16, 120, 358, 240))
        phone.tree()[0].addSubview_(view)
        view.setText_("早上好，我们坐早班车去海边。")
        view.becomeFirstResponder()
        phone.ask("tap", on=view, taps=2)
        phone.advance(ANIMATION)
        phone.picture("menu.png")


def block_requests(guide):
    with guide.open("browser") as phone:
        phone.preferences(set={"开启广告屏蔽": True, "Host过滤屏蔽": "example.com,"})
        phone.tap(phone.button("重新加载"))
        phone.until(lambda: len(phone.all("通过")) + len(phone.all("屏蔽")) == 30)
        phone.picture("blocking.png")


def manage_files(guide):
    with guide.open("files") as phone:
        phone.picture("files.png")


CHAPTERS = [manage_files, switch_on, replace_a_text, use_the_toolbox, look_it_up,
            keep_what_was_copied, hold_other_buttons, edit_a_text, block_requests]


def main(host, folder):
    os.environ["TZ"] = "UTC"  # the dates in the pictures are the same everywhere
    Phone.pictures = pathlib.Path(folder)
    Phone.pictures.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory(prefix="wentra-guide-") as root:
        guide = Guide(host, root)
        for chapter in CHAPTERS:
            chapter(guide)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
