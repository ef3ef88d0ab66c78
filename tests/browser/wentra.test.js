// What Wentra's users do, with mouse and keyboard: write a rule, move the ball, translate a sentence.
import assert from "node:assert/strict";
import { existsSync } from "node:fs";
import { join } from "node:path";
import { test } from "node:test";
import { host, middle, phone, phoneForEach } from "./fixture.js";

phoneForEach("notes");

const first = async (where) => (await phone.do("wait", { for: { visible: true, ...where } }))[0];

const tapOn = async (where) => phone.tap(middle((await first(where)).rect));

/** Long-presses a stack of labels that has nothing else to do with fingers. */
async function openEditor() {
    const { rect } = await phone.showing("今天");
    await phone.press(middle(rect), 800);
    return first({ class: "UITextView" });
}

test("a rule typed into the editor changes the label", async () => {
    const label = await phone.showing("hello");
    const before = await phone.imageOf(label.rect);
    const [x, y, width, height] = (await openEditor()).rect;
    await phone.press([x + width / 2, y + height - 30], 800); // below the text: writes at its end
    await phone.page.keyboard.press("Enter");
    await phone.page.keyboard.insertText("hello===您好");
    for (let breaks = 0; breaks < 4; ++breaks) { // saves and closes; the keyboard hides "确定"
        await phone.page.keyboard.press("Enter");
    }
    await phone.gone({ class: "UITextView" });

    await phone.do("send", { to: label, selector: "setText:", args: ["hello"] });
    await phone.showing("您好");
    await phone.changed(label.rect, before);
});

test("the editor is scaled by two fingers", async () => {
    const editor = await openEditor();
    await phone.pinch(200, 100);
    const { transform } = await phone.do("tree", { of: editor });
    assert.ok(transform[0] < 0.9, `scaled to ${transform}`);
});

test("the ball is switched on in the page and dragged about", async () => {
    await phone.page.click("#tab-preferences");
    await phone.page.getByLabel("显示悬浮球", { exact: false }).check();
    await phone.page.click("#tab-applications");
    await phone.page.getByRole("button", { name: "重新启动" }).first().click();
    const ball = async () => {
        const [window] = await phone.tree();
        return window.children.find(({ frame }) => frame[2] === 34 && frame[3] === 34);
    };
    for (let tries = 0; !(await ball().catch(() => null)); ++tries) {
        assert.ok(tries < 100, "there is no ball");
        await phone.page.waitForTimeout(50);
    }
    const start = middle((await ball()).rect);
    await phone.drag([start, [start[0] - 100, start[1] + 40], [start[0] - 200, start[1] + 300]]);
    const [x, y] = middle((await ball()).rect);
    assert.ok(Math.hypot(x - start[0] + 200, y - start[1] - 300) < 15, `it is at ${x}, ${y}`);
});

test("a copied sentence is translated and stays on the label", async () => {
    await phone.do("preferences", { set: {
        开启文字复制: true, kqwzfc: true, 中英对比样式: true, 百度id: "desktop", 百度key: "desktop-key",
    } });
    await phone.restart();
    const label = await phone.showing("hello");
    await phone.press(middle(label.rect), 600);
    assert.equal(await phone.do("pasteboard"), "hello");
    await phone.tap([358, 222]); // the ball
    await tapOn({ class: "UICollectionViewCell" });
    await tapOn({ title: "文字翻译" });
    await phone.showing("你好");
    await tapOn({ title: "朗读翻译" });
    await phone.page.click("#tab-events");
    const [{ file }] = await phone.do("wait", { for: { event: "speech" } });
    while (!existsSync(join(host.root, file))) { // until it is spoken
        await phone.page.waitForTimeout(50);
    }
    const length = await phone.page.locator("audio").first().evaluate(
        (audio) => new Promise((heard, failed) => {
            audio.onended = () => heard(audio.duration);
            audio.onerror = () => failed(audio.error);
            audio.play().catch(failed);
        }));
    assert.ok(length > 0.2, `the voice is heard for ${length} s`);
    await tapOn({ title: "直接替换" });
    await tapOn({ title: "关闭窗口" });
    await phone.do("send", { to: label, selector: "setText:", args: ["hello"] });
    assert.equal((await phone.do("tree", { of: label })).text, "你好");
});

/** Where the edit menu is: in a window of the system's, which is in no tree. */
async function menuFrame() {
    const menu = await phone.do("send", {
        to: { class: "UIMenuController" }, selector: "sharedMenuController",
    });
    return (await phone.do("send", { to: menu, selector: "menuFrame" })).rect;
}

test("a word picked by the mouse is translated from the edit menu", async () => {
    await phone.do("preferences", {
        set: { 中英对比样式: true, 百度id: "desktop", 百度key: "desktop-key" },
    });
    await phone.page.click("#tab-preferences");
    for (const title of ["关闭菜单", "翻译文本"]) { // leaves one item on the menu
        await phone.page.getByLabel(title, { exact: false }).check();
    }
    const view = await phone.addView("UITextView", [20, 150, 350, 120]);
    await phone.do("send", { to: view, selector: "setText:", args: ["hello, nobody"] });
    await phone.page.mouse.dblclick(...await phone.place([40, 167]));
    assert.deepEqual(await phone.do("menu"), ["翻译"]);
    assert.deepEqual(await phone.do("send", { to: view, selector: "selectedRange" }),
        { range: [0, 5] });

    await phone.tap(middle(await menuFrame()));
    await first({ class: "MovableAlertViewzerk" });
    await phone.showing("你好");
});

test("a copied text is found in the history and taken from there", async () => {
    await phone.do("preferences", { set: { 开启文字复制: true, kqwzfc: true } });
    await phone.restart();
    const label = await phone.showing("hello");
    await phone.press(middle(label.rect), 600);
    await phone.tap([358, 222]); // the ball
    const { rect } = await first({ title: "全选文字" });
    await phone.press(middle(rect), 300);
    await first({ class: "UITableViewCell" });
    await phone.do("pasteboard", { set: "something else" });

    const [row] = await phone.do("find", { where: { class: "UITableViewCell", visible: true } });
    await phone.tap(middle(row.rect));
    await phone.gone({ class: "UITableViewCell" });
    assert.equal(await phone.do("pasteboard"), "hello");
});

/** The front one: what lies below a screen is found too. */
const front = async (where) =>
    (await phone.do("wait", { for: { visible: true, ...where } })).at(-1);

/** Screens take no taps while they move. */
async function tapUntil(where, done) {
    do {
        await phone.tap(middle((await front(where)).rect));
        await phone.page.waitForTimeout(50);
    } while (!await done());
}

async function search(text) {
    const bar = { class: "UISearchBar" };
    await tapUntil(bar, async () => {
        const field = await phone.do("send", { to: await front(bar), selector: "searchTextField" });
        return phone.do("send", { to: field, selector: "isFirstResponder" });
    });
    await phone.page.keyboard.insertText(text);
}

test("a crash report is found in the list, and the add-ons in the report", async () => {
    const newest = "SpringBoard-2024-03-18-213000.ips";
    await phone.do("preferences", { set: { 开启文字复制: true, kqwzfc: true } });
    await phone.restart();
    await phone.press(middle((await phone.showing("hello")).rect), 600);
    await phone.tap([358, 222]); // the ball
    await phone.press(middle((await first({ title: "日志检索" })).rect), 300);
    await phone.showing(newest);
    await search("wechat-2024-03-17");
    await phone.gone({ text: newest });
    const copied = async () => (await phone.do("pasteboard")).includes("MobileSubstrate");
    await phone.tap(middle((await front({ text: "WeChat-2024-03-17-210500.ips" })).rect));
    await tapUntil({ title: "复制全文" }, copied);

    await tapUntil({ title: "日志检索" },
        async () => (await phone.do("find", { where: { title: "复制异常" } })).length > 0);
    await search("mobilesubstrate");
    const found = async () => (await front({ class: "UITextView" })).text.trim().split(/\n+/);
    while ((await found()).length > 2) {
        await phone.picture(1);
    }
    for (const line of await found()) {
        assert.match(line, /路径 : ".+\/MobileSubstrate\/DynamicLibraries\/\w+\.dylib",/);
    }
});
