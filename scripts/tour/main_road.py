"""A sentence is copied by touch, translated in the toolbox, and its translation stays on the label."""

import tempfile

from phone import Phone, expect

SENTENCE, TRANSLATION = "good morning", "早上好"
PREFERENCES = {"开启文字复制": True, "kqwzfc": True, "kqjfzt": True, "中英对比样式": True,
               "百度id": "desktop", "百度key": "desktop-key"}
SEARCHES = ["AppStore", "百度", "知乎", "淘宝", "哔哩哔哩", "iOS地图"]
BALL = [358, 222]
BESIDE_THE_PANEL = [195, 20]
ANIMATION = 0.5  # seconds, enough for whatever moves


def copy_the_sentence(phone):
    print("5. A long press on a label copies its text, and the ball appears for five seconds.")
    phone.advance(0.4)
    phone.press(phone.label(SENTENCE), seconds=0.5)
    expect("the pasteboard holds", phone.pasteboard(), SENTENCE)
    phone.picture("3-ball.png")


def pick_the_words(phone):
    print("6. A tap on the ball opens the toolbox; the text is in the grid, cut into words.")
    phone.tap(BALL)
    phone.advance(ANIMATION)
    words = phone.find_all(class_="UICollectionViewCell")
    expect("the grid has tiles", len(words), 3)
    phone.picture("4-toolbox.png")
    for tile in (words[0], words[2]):
        phone.tap(tile)
    phone.picture("5-picked.png")


def list_the_searches(phone):
    print("7. Holding the button of links lists where the words can be looked up.")
    phone.press(phone.button("链接跳转"), seconds=0.5)
    phone.advance(ANIMATION)
    rows = phone.find_all(class_="UITableViewCell", visible=True)
    expect("the list has rows", len(rows), len(SEARCHES))
    phone.picture("6-searches.png")
    phone.tap(BESIDE_THE_PANEL)
    phone.advance(ANIMATION)


def translate(phone):
    print("8. The picked words are translated by the service, which here is on this machine.")
    phone.tap(phone.button("文字翻译"))
    phone.wait_for(30, class_="MovableAlertViewzerk")
    dialog = phone.find(class_="MovableAlertViewzerk")
    expect("the dialog shows", bool(phone.find_all(text=TRANSLATION)), True)
    phone.picture("7-translation.png")
    print("9. The dialog is moved aside, and the translation takes the sentence's place.")
    x, y, width, _ = dialog["rect"]
    top = [x + width / 2, y + 20]
    phone.slide(path=[top, [top[0], top[1] + 15], [top[0], top[1] + 90]])
    phone.tap(phone.button("直接替换"))
    phone.picture("8-replaced.png")
    phone.tap(phone.button("关闭窗口"))
    phone.tap(BESIDE_THE_PANEL)
    phone.advance(ANIMATION)
    expect("the application keeps the pair", phone.defaults(key="zerk"),
           {SENTENCE: TRANSLATION})


def play():
    with tempfile.TemporaryDirectory(prefix="wentra-tour-") as root:
        with Phone(root) as phone:
            phone.preferences(set=PREFERENCES | dict.fromkeys(SEARCHES, True))
        with Phone(root) as phone:
            copy_the_sentence(phone)
            pick_the_words(phone)
            list_the_searches(phone)
            translate(phone)
        print("10. From now on the application's label shows the translation.")
        with Phone(root) as phone:
            expect("the label shows", phone.label(TRANSLATION)["text"], TRANSLATION)
            phone.picture("9-label.png")
