// What the page asks is done one after the other, and holds up nobody's end.
import assert from "node:assert/strict";
import { test } from "node:test";
import { browser, host, oneHost } from "./fixture.js";
import { Host, Phone } from "./phone.js";

oneHost("plain");

test("requests are answered in order, and presses do not overlap", async () => {
    const phone = await Phone.open(browser, host.address);
    const order = await phone.page.evaluate(async () => {
        const { connection } = window.wentra;
        const answered = [];
        const ask = (name, command, given) =>
            connection.ask(command, given).then(() => answered.push(name));
        await Promise.all([
            ask("first", "press", { at: [300, 700], seconds: 0.5 }),
            ask("second", "press", { at: [300, 700], seconds: 0.1 }),
            ask("third", "tree", {}),
        ]);
        return answered;
    });
    assert.deepEqual(order, ["first", "second", "third"]);
    await phone.close();
});

test("what is typed waits its turn among the requests", async () => {
    const phone = await Phone.open(browser, host.address);
    const view = await phone.addView("UITextView", [20, 200, 350, 120]);
    await phone.do("send", { to: view, selector: "becomeFirstResponder" });
    await phone.page.evaluate(async () => {
        const { connection } = window.wentra;
        const pressed = connection.ask("press", { at: [300, 700], seconds: 0.3 });
        connection.send({ type: "insert", text: "ab" });
        connection.send({ type: "press", key: "deleteBackward" });
        connection.send({ type: "press", key: "enter" });
        connection.send({ type: "compose", text: "n" });
        connection.send({ type: "insert", text: "你" });
        await pressed;
    });
    assert.equal(await phone.do("send", { to: view, selector: "text" }), "a\n你");
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await phone.close();
});

test("fingers go on while a request waits", async () => {
    const phone = await Phone.open(browser, host.address);
    const view = await phone.addView("UITextView", [20, 200, 350, 120]);
    const waiting = phone.do("wait", { for: { class: "UITextSelectionView" }, seconds: 20 });
    await phone.tap([100, 220]);
    assert.equal((await waiting).length, 1);
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await phone.close();
});

test("an interrupt ends everything within half a second, whatever the page has asked", async () => {
    const ended = [];
    for (let tries = 0; tries < 3 && !(Math.min(...ended) < 500); ++tries) { // on a busy machine
        const other = await Host.start("--app", "plain");
        const phone = await Phone.open(browser, other.address);
        phone.do("advance", { seconds: 60 }).catch(() => {});
        await phone.picture();
        const start = Date.now();
        assert.equal(await other.stop(), 0);
        ended.push(Date.now() - start);
        await phone.close();
    }
    assert.ok(Math.min(...ended) < 500, `${ended} ms`);
});
