// The phone's body and its buttons, in the page.
import assert from "node:assert/strict";
import { test } from "node:test";
import { phone, phoneForEach } from "./fixture.js";

phoneForEach("notes");

const shape = () => phone.page.evaluate(() => {
    const { front, orientation } = document.getElementById("phone").dataset;
    const { width, height } = document.getElementById("cutout").getBoundingClientRect();
    return { front, orientation, cutout: [width > 0, width > height] };
});
const welcome = () => phone.page.evaluate(() => new Promise((done) => {
    window.wentra.connection.addEventListener("welcome", ({ detail }) => done(detail.screen), { once: true });
}));

test("another model is chosen, and the application starts anew on it and stays on it", async () => {
    assert.deepEqual(await shape(), { front: "notch", orientation: "portrait", cutout: [true, true] });
    await phone.page.click("#tab-device");
    const told = welcome();
    await phone.page.selectOption("#model", "iPhone SE");
    const { width, height, scale } = await told;
    assert.deepEqual([width, height, scale], [375, 667, 2]);
    await phone.picture(1);
    assert.deepEqual((await shape()).front, "homeButton");
    assert.equal((await shape()).cutout[0], false);
    assert.equal((await phone.do("find", { where: { class: "UINavigationBar" } }))[0].rect[1], 20);

    await phone.page.locator("#text-size").fill("5");
    await phone.do("appearance", { set: "dark" });
    assert.equal(await phone.do("textSize"), "extraExtraLarge");
    await phone.restart();
    assert.equal((await phone.do("device")).name, "iPhone SE");
    assert.equal(await phone.do("textSize"), "extraExtraLarge");
    assert.equal(await phone.do("appearance"), "dark");
    await phone.page.click("#tab-device");
    assert.equal(await phone.page.inputValue("#model"), "iPhone SE");
});

test("a phone that is turned has its notch at the side", async () => {
    await phone.page.click("#rotate");
    await phone.page.waitForSelector("[data-orientation=landscapeLeft]");
    assert.deepEqual((await shape()).cutout, [true, false]);
});

test("keys are shortcuts while nothing is written", async () => {
    const listen = (command) => phone.page.evaluate((wanted) => {
        const { connection } = window.wentra;
        window.asked = new Promise((done) => {
            connection.addEventListener("sent", function listen({ detail }) {
                if (detail.type === "ask" && detail.request.do === wanted) {
                    connection.removeEventListener("sent", listen);
                    done(true);
                }
            });
        });
    }, command);
    await phone.page.focus("#more");
    for (const [key, command] of Object.entries({
        r: "rotate", d: "appearance", h: "home", l: "lock", s: "shake", k: "keyboard",
    })) {
        await listen(command);
        await phone.page.keyboard.press(key);
        await phone.page.evaluate(() => window.asked);
    }
    await phone.page.keyboard.press("?");
    await phone.page.waitForSelector("dialog.help");
});

test("home and lock show something else than the application, and say so on their buttons", async () => {
    const application = await phone.colourAt([20, 700]);
    await phone.page.click("#home");
    await phone.page.waitForSelector("#home[aria-pressed=true]");
    assert.notDeepEqual(await phone.colourAt([20, 700]), application);
    await phone.tap([57, 106]); // the application's icon
    await phone.page.waitForSelector("#home[aria-pressed=false]");
    assert.deepEqual(await phone.colourAt([20, 700]), application);

    await phone.page.click("#lock");
    await phone.page.waitForSelector("#lock[aria-pressed=true]");
    assert.deepEqual(await phone.colourAt([20, 700]), [0, 0, 0]);
    await phone.page.keyboard.press("l");
    await phone.page.waitForSelector("#lock[aria-pressed=false]");
    assert.deepEqual(await phone.colourAt([20, 700]), application);
});
