// The record button: a film of the screen, and a script that does again what was done.
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { readFile } from "node:fs/promises";
import { test } from "node:test";
import { middle, onePhone, phone } from "./fixture.js";
import { program } from "./phone.js";

onePhone("settings");

/** What a freshly started phone answers to the last of the requests. */
function played(script, last) {
    const input = `${script}${JSON.stringify(last)}\n`;
    const output = execFileSync(
        program, ["--automation", "--app", "settings", "--settings-bundle", "--device-files"],
        { input, encoding: "utf8" });
    const answers = output.trim().split("\n").map((line) => JSON.parse(line));
    assert.deepEqual(answers.filter(({ ok }) => !ok), []);
    return answers.at(-1).result;
}

test("what was done is recorded as a film, and as a script that does it again", async () => {
    const { page } = phone;
    await page.click("#record");
    await page.locator("#record[aria-pressed=true]").waitFor();
    const row = (await phone.do("find", { where: { text: "Wentra", visible: true } }))[0];
    await phone.tap(middle(row.rect));
    await phone.showing("文字替换与复制");
    await page.click("#rotate");
    await page.click("#rotate");
    await page.click("#rotate");
    await phone.do("wait", { for: { text: "文字替换与复制", visible: true } });
    await page.click("#record");
    const length = await page.locator("dialog video").evaluate((video) => new Promise((done, failed) => {
        video.onended = () => done(video.duration);
        video.onerror = () => failed(new Error(video.error.message));
        video.muted = true;
        video.play().catch(failed);
    }));
    assert.ok(length > 0.1, `the film lasts ${length} s`);
    const [download] = await Promise.all([
        page.waitForEvent("download"), page.click("dialog a[download=\"wentra.jsonl\"]")]);
    const script = await readFile(await download.path(), "utf8");
    assert.match(script, /"do":"touch","phase":"began"/);
    assert.match(script, /"do":"rotate","to":"landscapeLeft"/);
    const screens = await phone.do("screens");
    assert.deepEqual(played(script, { do: "screens" }), screens);
    await page.click("dialog button");
});

test("a page that was loaded anew begins a film of its own", async () => {
    const { page } = phone;
    for (let times = 0; times < 2; ++times) {
        await page.click("#record");
        await page.locator("#record[aria-pressed=true]").waitFor();
        await page.reload();
        await page.locator("#record[aria-pressed=false]").waitFor();
        await phone.picture();
    }
    assert.equal(await page.isVisible("#note"), false);
    await phone.do("film", { films: false });
});

test("a script has each message as the protocol says it, with the time between them", async () => {
    const lines = await phone.page.evaluate(async () => {
        const { Script } = await import("./script.js");
        const script = new Script(1000);
        [
            { type: "wheel", x: 1, y: 2, byX: 0, byY: 30 },
            { type: "insert", text: "a" },
            { type: "compose", text: "n" },
            { type: "compose", text: "ni" },
            { type: "insert", text: "你" },
            { type: "press", key: "enter" },
            { type: "look", scale: 2 },
            { type: "ask", request: { do: "find", where: {}, id: 1 } },
            { type: "ask", request: { do: "film", films: false, id: 5 } },
            { type: "compose", text: "h" },
            { type: "compose", text: "" },
            { type: "press", key: "deleteBackward" },
            { type: "ask", request: { do: "rotate", id: 2 } },
            { type: "ask", request: { do: "appearance", set: "dark", id: 3 } },
            { type: "ask", request: { do: "shake", id: 4 } },
        ].forEach((message, index) => script.take(message, 1000 + 500 * index));
        return script.text.trim().split("\n").map((line) => JSON.parse(line));
    });
    const pause = (seconds) => ({ do: "advance", seconds });
    assert.deepEqual(lines, [
        { do: "wheel", at: [1, 2], by: [0, 30] },
        pause(0.5), { do: "type", text: "a" },
        pause(1.5), { do: "type", text: "你", compose: ["n", "ni"] },
        pause(0.5), { do: "key", name: "return" },
        pause(2.5), { do: "type", text: "", compose: ["h"] },
        pause(0.5), { do: "key", name: "delete" },
        pause(1), { do: "appearance", set: "dark" },
        pause(0.5), { do: "shake" },
    ]);
});
