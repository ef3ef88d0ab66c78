// Web pages on the phone: a page of our own service plays them until a person loads the site itself.
import assert from "node:assert/strict";
import { mkdtemp, readFile, rm } from "node:fs/promises";
import { createServer } from "node:http";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { test } from "node:test";
import { browser, host, oneHost } from "./fixture.js";
import { openBrowser, Phone } from "./phone.js";

oneHost("plain");

const whole = [0, 200, 390, 500];

/** Has the web view, a new one when there is none, load the address. */
async function show(phone, address, view) {
    const shown = view ?? await phone.addView("WKWebView", whole);
    const request = await phone.do("send", {
        to: { class: "NSURLRequest" }, selector: "requestWithURL:", args: [{ url: address }],
    });
    await phone.do("send", { to: shown, selector: "loadRequest:", args: [request] });
    return shown;
}

/** What the browser asks others for, who all answer the same here. */
async function listen(phone, body = "<p>from elsewhere</p>", headers = {}) {
    const asked = [];
    await phone.page.context().route((url) => url.origin !== new URL(host.address).origin, (route) => {
        asked.push(route.request().url());
        return route.fulfill({ contentType: "text/html", body, headers });
    });
    return asked;
}

const open = () => Phone.open(browser, host.address, { locale: "en-US" });
const standIn = (phone) => phone.page.frameLocator("iframe.web-page:not(.outside)");
const site = (phone) => phone.page.frameLocator("iframe.web-page.outside").frameLocator("iframe");
const load = (phone) => phone.page.getByRole("button", { name: "Load from the network" }).click();

test("a web page is played by our own service, and loaded only when a person says so", async () => {
    const phone = await open();
    const asked = await listen(phone);
    const view = await show(phone, "http://elsewhere.example/one?q=%E7%8C%AB");
    await standIn(phone).getByRole("heading", { name: "猫" }).waitFor();
    const row = phone.page.locator("#web-pages");
    assert.match(await row.innerText(), /sends this address.*to elsewhere\.example/);
    assert.equal(await row.locator("a").count(), 0); // names in links may be looked up
    assert.deepEqual(asked, []);

    await load(phone);
    await site(phone).getByText("from elsewhere").waitFor();
    await show(phone, "http://elsewhere.example/two", view); // the same view, the same site
    await site(phone).getByText("from elsewhere").waitFor();
    assert.deepEqual(asked, ["http://elsewhere.example/one?q=%E7%8C%AB", "http://elsewhere.example/two"]);

    await show(phone, "http://other.example/", view);
    await standIn(phone).getByText("other.example", { exact: true }).waitFor();
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    const second = await show(phone, "http://elsewhere.example/three");
    await standIn(phone).getByText("elsewhere.example", { exact: true }).waitFor();
    assert.equal(asked.length, 2);
    await phone.do("send", { to: second, selector: "removeFromSuperview" });
    await phone.page.locator("iframe").waitFor({ state: "detached" });
    await phone.close();
});

test("the stand-in comes back, in the phone's appearance, and lets fingers through", async () => {
    const phone = await open();
    await listen(phone);
    const view = await show(phone, "http://elsewhere.example/");
    await load(phone);
    await site(phone).getByText("from elsewhere").waitFor();
    await phone.page.getByRole("button", { name: "Back to the stand-in" }).click();
    await standIn(phone).locator(":root.light").waitFor();
    await phone.do("appearance", { set: "dark" });
    await standIn(phone).locator(":root.dark").waitFor();
    await phone.do("appearance", { set: "light" });
    const under = ([x, y]) => document.elementFromPoint(x, y).id;
    assert.equal(await phone.page.evaluate(under, await phone.place([195, 400])), "screen");
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await phone.close();
});

test("nothing of a site is looked up or asked for before the click", async () => {
    const folder = await mkdtemp(join(tmpdir(), "wentra-net-"));
    const log = join(folder, "net.json");
    const nobody = "--host-resolver-rules=MAP * ~NOTFOUND, EXCLUDE 127.0.0.1";
    const watched = await openBrowser(`--log-net-log=${log}`, nobody);
    const phone = await Phone.open(watched, host.address, { locale: "en-US" });
    const view = await show(phone, "https://unasked.example/?q=fox");
    await standIn(phone).getByText("unasked.example", { exact: true }).waitFor();
    await show(phone, "https://asked.example/", view);
    await standIn(phone).getByText("asked.example", { exact: true }).waitFor();
    const failed = phone.page.waitForEvent("requestfailed");
    await load(phone);
    await failed;
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await phone.close();
    await watched.close();
    const said = await readFile(log, "utf8");
    await rm(folder, { recursive: true });
    assert.ok(said.includes("asked.example/"), "the log tells what is asked for");
    assert.ok(!said.includes("unasked.example"));
});

test("hostile addresses are text and no more", async () => {
    const phone = await open();
    const asked = await listen(phone);
    const attack = encodeURI("\"'><script>parent.document.title='taken'</script><img src=http://evil.example/>");
    const addresses = [
        `data:text/html,${attack}`, `javascript:top.document.title='taken'//${attack}`, "file:///etc/passwd",
        `https://evil.example/?q=${attack}`, `https://evil.example/?${attack}`, `${host.address}?q=own`,
        `${host.address}web/1/outside`, `https://evil.example/?q=${"x".repeat(200_000)}`,
    ];
    for (const address of addresses) {
        const view = await show(phone, address);
        await standIn(phone).locator("footer").waitFor();
        await phone.do("send", { to: view, selector: "removeFromSuperview" });
        await phone.page.locator("iframe").waitFor({ state: "detached" });
    }
    assert.deepEqual(asked, []);
    assert.notEqual(await phone.page.title(), "taken");
    assert.deepEqual(phone.complaints, []);
    await phone.close();
});

test("this page is not shown within itself", async () => {
    const phone = await open();
    const view = await show(phone, host.address);
    const refused = phone.page.waitForEvent("console", (line) => /frame-ancestors/.test(line.text()));
    await load(phone);
    await refused;
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await phone.close();
});

test("a site that was asked for leads no further than itself", async () => {
    const phone = await open();
    const asked = await listen(phone, "<script>location = 'http://further.example/'</script>");
    const view = await show(phone, "http://elsewhere.example/");
    const blocked = phone.page.waitForEvent("console", (line) => /further\.example/.test(line.text()));
    await load(phone);
    await blocked;
    assert.deepEqual(asked, ["http://elsewhere.example/"]);
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await phone.close();
});

test("a page that was loaded stands in its place, and cannot reach this page", async () => {
    const server = createServer((_, answer) => {
        answer.setHeader("Content-Type", "text/html");
        answer.end("<p>content of the site</p><script>parent.document.title = 'taken'</script>");
    });
    await new Promise((listening) => server.listen(0, "127.0.0.1", listening));
    const address = `http://127.0.0.1:${server.address().port}/`;
    const phone = await open();
    const view = await show(phone, address);
    await phone.page.getByText("127.0.0.1:").first().waitFor();
    await load(phone);
    const content = site(phone).getByText("content of the site");
    await content.waitFor();
    const [, top] = await phone.place([0, 200]);
    assert.ok(Math.abs((await phone.page.locator("iframe.web-page").boundingBox()).y - top) < 2);
    assert.notEqual(await phone.page.title(), "taken");
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await content.waitFor({ state: "detached" });
    await phone.close();
    server.close();
});
