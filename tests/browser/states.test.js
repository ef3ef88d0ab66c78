// What the page shows while it has no phone in hand: another page has it, or there is none any more.
import assert from "node:assert/strict";
import { test } from "node:test";
import { browser, host, oneHost } from "./fixture.js";
import { Host, Phone } from "./phone.js";

oneHost("plain");

const inert = (phone, selector) => phone.page.evaluate((name) => document.querySelector(name).inert, selector);
const paint = async (phone, colour) => {
    const [window] = await phone.tree();
    const made = await phone.do("send", { to: { class: "UIColor" }, selector: colour });
    await phone.do("send", { to: window.children[0], selector: "setBackgroundColor:", args: [made] });
};

test("several pages watch, one has the phone in hand, and any can take it", async () => {
    const first = await Phone.open(browser, host.address);
    const second = await Phone.open(browser, host.address, { viewport: { width: 700, height: 500 } });
    await second.page.waitForSelector("#veil.watching #veil-action");
    assert.equal(await first.page.isVisible("#veil"), false);
    assert.equal(await inert(second, "#controls"), true);
    assert.equal(await inert(first, "#controls"), false);

    await paint(first, "redColor");
    await second.page.waitForFunction(() => {
        const canvas = document.getElementById("screen");
        const scale = canvas.width / window.wentra.screen.size.width;
        const [red, green] = canvas.getContext("2d").getImageData(20 * scale, 700 * scale, 1, 1).data;
        return red === 255 && green === 0;
    });

    await second.page.click("#veil-action");
    await first.page.waitForSelector("#veil.watching");
    assert.equal(await second.page.isVisible("#veil"), false);
    await second.showing("Hello, world");
    await assert.rejects(first.do("tree"), /not connected/);

    await second.close(); // and the hand passes on
    await first.page.waitForSelector("#veil", { state: "hidden" });
    await paint(first, "whiteColor");
    await first.close();
});

test("fingers do not stay on a phone that another page takes over", async () => {
    const first = await Phone.open(browser, host.address);
    const button = await first.addView("UIButton", [20, 300, 350, 100]);
    const isHeld = (phone) => phone.do("send", { to: button, selector: "isHighlighted" });
    await first.page.mouse.move(...await first.place([195, 350]));
    await first.page.mouse.down();
    while (!(await isHeld(first))) {
        await first.page.waitForTimeout(20);
    }
    const second = await Phone.open(browser, host.address);
    await second.page.click("#veil-action");
    await second.page.waitForSelector("#veil", { state: "hidden" });
    assert.equal(await isHeld(second), false);
    await second.do("send", { to: button, selector: "removeFromSuperview" });
    await first.close();
    await second.close();
});

test("a page that only watches is refused everything else", async () => {
    const holder = await Phone.open(browser, host.address);
    const watcher = await Phone.open(browser, host.address);
    const why = await watcher.page.evaluate(() => new Promise((done) => {
        const { connection } = window.wentra;
        connection.addEventListener("refused", ({ detail }) => done(detail.why), { once: true });
        connection.send({ type: "ask", request: { do: "quit" } });
    }));
    assert.match(why, /in hand/);
    await holder.showing("Hello, world");
    await holder.close();
    await watcher.close();
});

test("an ended host looks ended, and the page says what to do", async () => {
    const own = await Host.start("--app", "plain");
    const phone = await Phone.open(browser, own.address, { locale: "en-US" });
    assert.equal(await own.stop(), 0);
    await phone.page.waitForSelector("#veil.ended");
    assert.match(await phone.page.innerText("#veil"), /The phone has ended[\s\S]*\.\/dev run/);
    for (const part of ["#controls", "#keyboard", "#panel-preferences", "#panel-applications"]) {
        assert.equal(await inert(phone, part), true, part);
    }
    await phone.close();
});

test("an application that crashes again and again rests until the page starts it, or another", async () => {
    const own = await Host.start("--app", "plain");
    const phone = await Phone.open(browser, own.address, { locale: "en-US" });
    let child = 0;
    for (let crash = 0; crash < 4; ++crash) {
        while (!own.child() || own.child() === child) { // there is none for a moment
            await phone.page.waitForTimeout(20);
        }
        child = own.child();
        process.kill(child, "SIGKILL");
    }
    await phone.page.waitForSelector("#veil.resting");
    assert.match(await phone.page.innerText("#veil"), /crashes again and again/);
    assert.equal(await inert(phone, "#controls"), true);
    await phone.page.click("#veil-action");
    await phone.page.waitForSelector("#veil", { state: "hidden" });
    await phone.showing("Hello, world");

    process.kill(own.child(), "SIGKILL");
    await phone.page.waitForSelector("#veil.resting");
    await phone.page.click("#tab-applications");
    await phone.page.click("[data-application=chat]");
    await phone.page.waitForSelector("#veil", { state: "hidden" });
    assert.match(await phone.page.title(), /^Chat/);
    assert.equal(await own.stop(), 0);
    await phone.close();
});
