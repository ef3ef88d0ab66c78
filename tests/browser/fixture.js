// A browser, a host that runs an application, and the phone in its page, brought up around tests.
import assert from "node:assert/strict";
import { after, afterEach, before, beforeEach } from "node:test";
import { Host, openBrowser, Phone } from "./phone.js";

/** @type {import("playwright-core").Browser} */
export let browser;
/** @type {Host} */
export let host;
/** @type {Phone} */
export let phone;

async function start(application) {
    host = await Host.start("--app", application);
    phone = await Phone.open(browser, host.address, { locale: "zh-CN" });
}

/** Everything is ended before anything is judged. */
async function end() {
    await phone?.close();
    const status = await host?.stop();
    assert.deepEqual(phone?.complaints, []);
    assert.equal(status, 0);
}

const open = async () => {
    browser = await openBrowser();
};
const close = () => browser?.close();

/** One host for all tests of the file, which open its page themselves. */
export function oneHost(application) {
    before(async () => {
        await open();
        host = await Host.start("--app", application);
    });
    after(async () => {
        await close();
        await host?.stop();
    });
}

/** One phone for all tests of the file. */
export function onePhone(application) {
    before(async () => {
        await open();
        await start(application);
    });
    after(async () => {
        await end().finally(close);
    });
}

/** A fresh phone for each test of the file. */
export function phoneForEach(application) {
    before(open);
    beforeEach(() => start(application));
    afterEach(end);
    after(close);
}

/** The middle of a rectangle. */
export const middle = ([x, y, width, height]) => [x + width / 2, y + height / 2];
