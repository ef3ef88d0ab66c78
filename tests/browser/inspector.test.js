// The inspector and the rules of the running application.
import assert from "node:assert/strict";
import { test } from "node:test";
import { middle, phone, phoneForEach } from "./fixture.js";

phoneForEach("notes");

const told = () => phone.page.locator("#inspected").innerText();
const hover = async (point) => phone.page.mouse.move(...await phone.place(point));
const tells = (text) => phone.page.waitForFunction(
    (wanted) => document.getElementById("inspected").innerText.includes(wanted), text);

test("a view is told under the mouse, held by a click, changed and hidden", async () => {
    const label = await phone.showing("hello");
    await phone.page.click("#inspect");
    await hover(middle(label.rect));
    await tells("UILabel setText:");
    assert.match(await told(), new RegExp(label.frame.join(", ")));
    const outline = await phone.page.locator(".outline").boundingBox();
    const [left, top] = await phone.place(label.rect);
    const [right, bottom] = await phone.place(
        [label.rect[0] + label.rect[2], label.rect[1] + label.rect[3]]);
    assert.ok(Math.abs(outline.x - left) < 2 && Math.abs(outline.y - top) < 2);
    assert.ok(Math.abs(outline.x + outline.width - right) < 2);
    assert.ok(Math.abs(outline.y + outline.height - bottom) < 2);

    await phone.tap(middle(label.rect));
    await hover([200, 20]);
    await phone.page.fill("#view-text", "changed");
    await phone.page.getByText("改为此文字").click();
    await phone.showing("changed");
    await phone.page.click("#hide-view");
    await phone.gone({ text: "changed", visible: true });
    await phone.page.getByRole("button", { name: "显示", exact: true }).click();
    await phone.showing("changed");
    assert.equal(await phone.do("pasteboard"), null, "no finger has reached the label");
});

test("a button's title is changed, and another click lets go of it", async () => {
    const button = await phone.addView("UIButton", [20, 300, 350, 100]);
    await phone.do("send", { to: button, selector: "setTitle:forState:", args: ["press", 0] });
    await phone.page.click("#inspect");
    await phone.tap([30, 310]); // beside the label in it
    await phone.page.fill("#view-text", "changed");
    await phone.page.getByText("改为此文字").click();
    await phone.do("wait", { for: { title: "changed", visible: true } });
    await phone.tap([30, 310]);
    await phone.page.waitForSelector("#view-text", { state: "detached" });
    assert.equal(await phone.page.locator(".outline").isVisible(), false);
});

test("when it is over, fingers reach the phone again", async () => {
    await phone.page.click("#inspect");
    assert.equal(await phone.page.locator("#inspected").isVisible(), true);
    await phone.page.keyboard.press("i");
    assert.equal(await phone.page.locator("#inspected").isVisible(), false);
    await phone.press(middle((await phone.showing("今天")).rect), 800);
    await phone.do("wait", { for: { class: "UITextView", visible: true } });
});

test("rules written in the panel change the label, and are told of it", async () => {
    await phone.page.click("#tab-rules");
    const text = phone.page.locator("#rule-text");
    await phone.page.waitForFunction(() => document.getElementById("rule-text").value !== "");
    const help = await text.inputValue();
    await text.fill(`${help}hello===您好\nhello#t=0.5\nbye===再见`);
    await phone.page.getByRole("button", { name: "保存" }).click();
    await phone.page.waitForFunction(() => document.querySelector("#panel-rules .main").disabled);
    const added = (await text.inputValue()).slice(help.length).trimEnd().split("\n");
    assert.deepEqual(added.sort(), ["bye===再见", "hello#t=0.5", "hello===您好"]);

    const label = await phone.showing("hello");
    await phone.do("send", { to: label, selector: "setText:", args: ["hello"] });
    await phone.showing("您好");
    await phone.page.click("#inspect");
    await hover(middle(label.rect));
    await tells("hello===您好\nhello#t=0.5");
    assert.doesNotMatch(await told(), /bye/);

    await text.fill(help);
    await phone.page.getByRole("button", { name: "保存" }).click();
    await phone.page.waitForFunction(() => document.querySelector("#panel-rules .main").disabled);
    assert.equal(await text.inputValue(), help);
    await phone.do("send", { to: label, selector: "setText:", args: ["hello"] });
    await phone.showing("hello");
    assert.equal((await phone.do("find", { where: { class: "UITextView" } })).length, 0);
});

test("rules that come from elsewhere appear, but not over what is being written", async () => {
    await phone.page.click("#tab-rules");
    const text = phone.page.locator("#rule-text");
    const lists = (line) => phone.page.waitForFunction(
        (wanted) => document.getElementById("rule-text").value.includes(wanted), line);
    await phone.do("defaults", { key: "zerk", set: { one: "1" } });
    await lists("one===1");
    await text.fill("mine");
    await phone.do("defaults", { key: "zerk", set: { two: "2" } });
    await phone.page.waitForTimeout(1800); // longer than a live panel waits
    assert.equal(await text.inputValue(), "mine");
    await phone.page.getByRole("button", { name: "放弃修改" }).click();
    await lists("two===2");
});

test("rules of every kind are read as the editor has stored them", async () => {
    const lines = [
        "x===y", "x#=ff0000", "x#÷=12", "x#g=30", "x#k=40", "x#x=5", "x#y=6", "x#t=0.5", "x#z=Georgia",
    ];
    const stored = await phone.page.evaluate(async (text) => {
        const { RuleEditor } = await import("./rule_editor.js");
        const { storedRules } = await import("./stored_rules.js");
        const { connection } = window.wentra;
        await new RuleEditor(connection).save(text);
        return (await storedRules(connection)).map(({ key, marker, value }) => key + marker + value);
    }, lines.join("\n"));
    assert.deepEqual(stored.sort(), lines.sort());
});

test("the rules about a text", async () => {
    const rules = [
        { key: "a", marker: "===", value: "b" },
        { key: "a", marker: "#=", value: "ff0000" },
        { key: "c", marker: "===", value: "d" },
        { key: "x↲y", marker: "#t=", value: "1" },
    ];
    for (const [text, expected] of [
        ["a", [0, 1]], ["b", [0, 1]], ["a: more", [0, 1]], ["b: more", [0, 1]],
        ["d", [2]], ["ff0000", []], ["x\ny", [3]], ["", []],
    ]) {
        const about = await phone.page.evaluate(async (given) =>
            (await import("./stored_rules.js")).rulesAbout(...given), [rules, text]);
        assert.deepEqual(about, expected.map((index) => rules[index]), text);
    }
});
