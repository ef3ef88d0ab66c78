// @ts-check
// What mouse and keys do, as a dialog.
import { element } from "./element.js";
import { language, word } from "./words.js";

/** @type {[keys: string[], zh: string, en: string][]} */
const rows = [
    [["click"], "轻点；双击、长按、拖动、快速拖动同手指", "Tap; double click, hold, drag and flick as a finger does"],
    [["Alt", "drag"], "两指捏合与旋转，以两圆的中心对称（也可用 Ctrl）", "Pinch: two fingers mirrored about their centre (Ctrl works too)"],
    [["Alt", "Shift", "drag"], "两指一起移动；未按下时移动中心", "Two fingers move together; without the button, the centre moves"],
    [["wheel"], "滚动指针下的视图", "Scrolls the view under the pointer"],
    [["A…Z"], "点按屏幕后输入文字，支持输入法", "Types after a click on the phone; input methods work"],
    [["←", "↑", "Home", "Shift"], "移动光标、选择文字；词与行首行尾按本机的习惯", "Moves the caret and selects, by words and lines as on this machine"],
    [["Ctrl", "C", "X", "V", "A", "Z"], "拷贝、剪切、粘贴、全选、撤销，与本机剪贴板相通（Mac 上用 ⌘）", "Copy, cut, paste, select all and undo, with this machine's clipboard (⌘ on a Mac)"],
    [["Esc"], "离开手机，回到页面按钮", "Leaves the phone for the page's buttons"],
    [["R"], "旋转手机：竖屏、左横屏、右横屏", "Turns the phone: portrait, landscape left, landscape right"],
    [["H"], "到主屏幕，再按一次回到应用", "Goes to the home screen, and back to the application"],
    [["L"], "锁定和解锁", "Locks and unlocks"],
    [["S"], "摇一摇", "Shakes the phone"],
    [["D"], "切换浅色与深色外观", "Switches between light and dark"],
    [["K"], "收起或显示手机的键盘；用真键盘输入时它自动收起", "Puts the phone's keyboard away and back; it goes by itself while a real one types"],
    [["I"], "检查屏幕上的视图，再按一次结束", "Inspects the views on the screen, and ends it"],
    [["Tab"], "在页面控件之间移动", "Moves between the page's controls"],
    [["←", "→"], "在面板标签之间切换", "Moves between the panels' tabs"],
    [["?"], "打开此帮助", "Opens this help"],
];

/** @type {Record<string, [zh: string, en: string]>} */
const named = {
    click: ["点击", "Click"],
    drag: ["拖动", "drag"],
    wheel: ["滚轮", "Wheel"],
};

/** Shows the help until it is closed. */
export function showHelp() {
    const chinese = language === "zh";
    const key = (/** @type {string} */ name) =>
        element("kbd", {}, named[name]?.[chinese ? 0 : 1] ?? name);
    const dialog = element(
        "dialog",
        { class: "help", "aria-labelledby": "help-title" },
        element("h2", { id: "help-title" }, word("help")),
        element(
            "dl",
            {},
            ...rows.flatMap(([keys, zh, en]) => [
                element("dt", {}, ...keys.map(key)),
                element("dd", {}, chinese ? zh : en),
            ]),
        ),
        element("form", { method: "dialog" }, element("button", { class: "main" }, word("close"))),
    );
    dialog.addEventListener("close", () => dialog.remove());
    document.body.append(dialog);
    dialog.showModal();
}
