// Keys and the clipboard of the machine, on the phone.
import assert from "node:assert/strict";
import { beforeEach, test } from "node:test";
import { phone, phoneForEach } from "./fixture.js";

phoneForEach("plain");

/** @type {any} */
let view;
const text = () => phone.do("send", { to: view, selector: "text" });
const selection = async () => (await phone.do("send", { to: view, selector: "selectedRange" })).range;
const keyboard = () => phone.do("keyboard");

/** Presses the keys, and waits until the phone has taken them in. */
async function press(...keys) {
    for (const key of keys) {
        await phone.page.keyboard.press(key);
    }
    await settled();
}

/** What is asked is answered in order. */
async function settled() {
    await phone.page.evaluate(() => new Promise((done) => setTimeout(done, 30)));
    await phone.do("events", { keep: true });
}

const onClipboard = () => phone.page.evaluate(() => navigator.clipboard.readText());

/** Waits until that is on the machine's clipboard. */
async function copied(wanted) {
    for (let tries = 0; tries < 100 && await onClipboard() !== wanted; ++tries) {
        await phone.page.waitForTimeout(20);
    }
    assert.equal(await onClipboard(), wanted);
}

beforeEach(async () => {
    await phone.page.context().grantPermissions(["clipboard-read", "clipboard-write"]);
    view = await phone.addView("UITextView", [20, 200, 350, 120]);
    await phone.tap([100, 220]);
});

test("keys move the caret, select and erase", async () => {
    await phone.page.keyboard.type("one two");
    await press("Enter");
    await phone.page.keyboard.type("three");
    await press("ArrowUp", "Home");
    assert.deepEqual(await selection(), [0, 0]);
    await press("Shift+ArrowRight", "Shift+Control+ArrowRight");
    assert.deepEqual(await selection(), [0, 3]);
    await press("Delete");
    assert.equal(await text(), " two\nthree");
    await press("End", "Control+Backspace");
    assert.equal(await text(), " \nthree");
    await press("Control+End", "Shift+Home", "Backspace");
    assert.equal(await text(), " \n");
    await press("Control+z");
    assert.equal(await text(), " \nthree");
    await press("Control+Shift+z");
    assert.equal(await text(), " \n");
    await press("Control+a", "x");
    assert.equal(await text(), "x");
});

test("the machine's clipboard is copied to and pasted from", async () => {
    await phone.page.keyboard.type("one 二");
    await press("Control+c"); // nothing is selected
    await phone.page.evaluate(() => navigator.clipboard.writeText("from the machine\n😀"));
    await press("Control+a", "Control+c");
    await copied("one 二");
    await phone.page.evaluate(() => navigator.clipboard.writeText("in between"));
    await press("Control+x");
    assert.equal(await text(), "");
    await copied("one 二");
    await phone.page.evaluate(() => navigator.clipboard.writeText("from the machine\n😀"));
    await press("Control+v");
    assert.equal(await text(), "from the machine\n😀");
    assert.equal(await phone.do("pasteboard"), "from the machine\n😀");
});

test("a picture on the machine's clipboard is put on the phone's", async () => {
    await phone.page.evaluate(async () => {
        const canvas = new OffscreenCanvas(3, 2);
        canvas.getContext("2d").fillRect(0, 0, 3, 2);
        const pasted = new DataTransfer();
        pasted.items.add(new File([await canvas.convertToBlob()], "a.png", { type: "image/png" }));
        document.getElementById("keyboard").dispatchEvent(
            new ClipboardEvent("paste", { clipboardData: pasted, cancelable: true }));
    });
    const width = () => phone.page.evaluate(async () => {
        const answer = await fetch("pasteboard.png");
        return answer.status === 200 ? (await createImageBitmap(await answer.blob())).width : 0;
    });
    for (let tries = 0; tries < 100 && await width() !== 3; ++tries) {
        await phone.page.waitForTimeout(20);
    }
    assert.equal(await width(), 3);
});

test("what is pasted is one insertion, and two thousand characters take no time", async () => {
    const long = "some words, 一些文字\n".repeat(125);
    await phone.page.evaluate((given) => navigator.clipboard.writeText(given), long);
    const start = Date.now();
    await press("Control+v");
    assert.equal(await text(), long);
    assert.ok(Date.now() - start < 1000, `${Date.now() - start} ms`);
    await press("Control+z");
    assert.equal(await text(), "");
});

test("the phone's keyboard is away while a real one types, and comes back", async () => {
    assert.equal((await keyboard()).height, 336);
    await press("a");
    assert.deepEqual(await keyboard(), { hardware: true, height: 0 });
    assert.equal(await phone.page.getAttribute("#keys", "aria-pressed"), "false");
    await phone.page.click("#keys");
    await settled();
    assert.deepEqual(await keyboard(), { hardware: false, height: 336 });
    await phone.page.keyboard.press("k"); // the page's, as its button has the focus
    await settled();
    assert.equal((await keyboard()).hardware, true);
    assert.equal(await text(), "a");
});

test("the panel takes from the machine's clipboard and gives to it", async () => {
    await phone.page.click("#tab-pasteboard");
    await phone.page.evaluate(() => navigator.clipboard.writeText("one"));
    await phone.page.getByRole("button", { name: "取自本机剪贴板" }).click();
    await phone.page.locator(".content pre", { hasText: "one" }).waitFor();
    assert.equal(await phone.do("pasteboard"), "one");
    await phone.do("pasteboard", { set: "two" });
    await phone.page.getByRole("button", { name: "复制到本机剪贴板" }).click();
    await copied("two");
    await phone.do("pasteboard", { set: "" });
    await phone.page.getByRole("button", { name: "复制到本机剪贴板" }).click();
    await copied("");
});

test("without leave, the page says that the clipboard is out of reach", async () => {
    await phone.page.context().clearPermissions();
    await phone.page.click("#tab-pasteboard");
    await phone.page.getByRole("button", { name: "取自本机剪贴板" }).click();
    await phone.page.waitForSelector("#note:visible");
});
