// A way through the file browser, with mouse and keyboard: into a folder, a file across, a new name, an edit.
import assert from "node:assert/strict";
import { existsSync, readFileSync } from "node:fs";
import { join } from "node:path";
import { test } from "node:test";
import { host, middle, onePhone, phone } from "./fixture.js";

onePhone("files");

const onDisk = (name) => join(host.root, "var/mobile", name);

/** What the question gives at last, within ten seconds. */
async function until(what, question) {
    for (let tries = 0; tries < 100; ++tries) {
        const found = await question();
        if (found) {
            return found;
        }
        await phone.page.waitForTimeout(100);
    }
    assert.fail(`there never was ${what}`);
}

const shown = (where) => phone.do("find", { where: { visible: true, ...where } });

/** Taps the view when it has come to rest. */
async function tapOn(where) {
    let former;
    const resting = await until(JSON.stringify(where), async () => {
        const [view] = await shown(where);
        const rests = view && String(view.rect) === former;
        former = view && String(view.rect);
        return rests && view;
    });
    await phone.tap(middle(resting.rect));
}

/** Taps that answer of the alert; again where it was still on its way to its place. */
const answer = (title) => until(`the end of the alert by ${title}`, async () => {
    const [view] = await shown({ text: title });
    if (view) {
        await phone.tap(middle(view.rect));
    }
    return await phone.do("alert") === null;
});

/** The label that has the name in the pane that begins there. */
const row = (name, left) => until(`${name} from ${left} on`, async () =>
    (await shown({ text: name })).find(({ rect }) => rect[0] >= left));

/** The text field, when what is typed goes there. */
const focusedField = () => until("a field with the focus", async () => {
    const [field] = await shown({ class: "UITextField" });
    return field && await phone.do("send", { to: field, selector: "isFirstResponder" }) && field;
});

async function chooseFor(label, title) {
    await phone.press(middle(label.rect), 800);
    await tapOn({ text: title });
}

test("a file is copied across, renamed and edited, which the disk shows", async () => {
    const rightPane = 195;
    await tapOn({ text: "笔记" });
    await chooseFor(await row("周一.txt", 0), "复制");
    await tapOn({ text: "复制到对面" });
    const copy = await row("周一.txt", rightPane);
    assert.equal(readFileSync(onDisk("Media/周一.txt"), "utf8"), "爬山\n");

    await chooseFor(copy, "重命名");
    await focusedField();
    for (let letters = 0; letters < "周一.txt".length; ++letters) {
        await phone.page.keyboard.press("Backspace");
    }
    await phone.page.keyboard.insertText("周末.txt");
    await answer("确认");
    const renamed = await row("周末.txt", rightPane);
    assert.ok(!existsSync(onDisk("Media/周一.txt")));

    await phone.tap(middle(renamed.rect));
    await tapOn({ class: "UITextView" });
    await phone.page.keyboard.insertText("下雨");
    await tapOn({ title: "存储" });
    await phone.showing("文件保存成功");
    assert.match(readFileSync(onDisk("Media/周末.txt"), "utf8"), /下雨/u);
    assert.equal(readFileSync(onDisk("Documents/笔记/周一.txt"), "utf8"), "爬山\n");
});
