// The row of buttons above the phone, and its menu.
import assert from "node:assert/strict";
import { test } from "node:test";
import { browser, host, oneHost } from "./fixture.js";
import { Phone } from "./phone.js";

oneHost("plain");

const open = (width) =>
    Phone.open(browser, host.address, { viewport: { width, height: 740 }, locale: "en-US" });
const buttons = (phone) => phone.page.locator("header nav > button");
const isOpen = (phone) => phone.page.locator("#menu").isVisible();
const focused = (phone) => phone.page.evaluate(() => document.activeElement.id);

for (const width of [1280, 860, 375]) {
    test(`the buttons are one row in a window of ${width}`, async () => {
        const phone = await open(width);
        const boxes = await Promise.all((await buttons(phone).all()).map((button) => button.boundingBox()));
        assert.equal(new Set(boxes.map(({ y }) => y)).size, 1);
        assert.ok(boxes.every(({ x, width: wide }) => x >= 0 && x + wide <= width));
        const { height } = await phone.page.locator("header").boundingBox();
        assert.ok(height < 60, `${height}`);
        await phone.close();
    });
}

test("every button has a name, in the language of the page", async () => {
    const phone = await open(1280);
    const names = () => buttons(phone).evaluateAll((all) => all.map(({ ariaLabel, title }) => [ariaLabel, title]));
    const english = await names();
    assert.ok(english.every(([label, title]) => /^[A-Z]/.test(label) && title === label), JSON.stringify(english));
    await phone.page.click("#more");
    await phone.page.click("#language");
    const chinese = await names();
    assert.ok(chinese.every(([label, title]) => /^[\u4e00-\u9fff]+$/.test(label) && title === label), JSON.stringify(chinese));
    await phone.close();
});

test("the menu is opened, walked through and left by keys", async () => {
    const phone = await open(375);
    await phone.page.focus("#more");
    await phone.page.keyboard.press("Enter");
    assert.equal(await isOpen(phone), true);
    const { x, width } = await phone.page.locator("#menu").boundingBox();
    assert.ok(x >= 0 && x + width <= 375);
    await phone.page.keyboard.press("Tab");
    assert.equal(await focused(phone), "appearance");
    await phone.page.keyboard.press("Escape");
    assert.equal(await isOpen(phone), false);
    assert.equal(await focused(phone), "more");
    await phone.page.keyboard.press("Enter");
    await phone.page.keyboard.press("Tab");
    await phone.page.keyboard.press("Enter"); // what it chooses is done, and closes it
    await phone.page.waitForFunction(() => window.wentra.connection.ask("appearance").then((is) => is === "dark"));
    assert.equal(await isOpen(phone), false);
    await phone.close();
});
