// Web pages on the phone, which the browser shows: what is on this machine at once, all else when asked.
import assert from "node:assert/strict";
import { createServer } from "node:http";
import { test } from "node:test";
import { browser, host, oneHost } from "./fixture.js";
import { Phone } from "./phone.js";

oneHost("plain");

/** A web view there that loads the address. */
async function show(phone, address, frame) {
    const view = await phone.addView("WKWebView", frame);
    const request = await phone.do("send", {
        to: { class: "NSURLRequest" }, selector: "requestWithURL:", args: [{ url: address }],
    });
    await phone.do("send", { to: view, selector: "loadRequest:", args: [request] });
    return view;
}

test("a web page on the phone is shown with what is in it", async () => {
    const site = createServer((_, answer) => {
        answer.setHeader("Content-Type", "text/html");
        answer.end("<p>content of the site</p><script>parent.document.title = 'taken'</script>");
    });
    await new Promise((listening) => site.listen(0, "127.0.0.1", listening));
    const address = `http://127.0.0.1:${site.address().port}/`;
    const phone = await Phone.open(browser, host.address);
    const view = await show(phone, address, [0, 200, 390, 300]);
    const content = phone.page.frameLocator(".web-page iframe").getByText("content of the site");
    await content.waitFor();
    const [, top] = await phone.place([0, 200]);
    assert.ok(Math.abs((await phone.page.locator(".web-page").boundingBox()).y - top) < 2);
    assert.notEqual(await phone.page.title(), "taken");
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await content.waitFor({ state: "detached" });
    await phone.close();
    site.close();
});

test("a web page from elsewhere is asked for only when a person says so", async () => {
    const phone = await Phone.open(browser, host.address, { locale: "en-US" });
    const asked = [];
    await phone.page.context().route("http://elsewhere.example/**", (route) => {
        asked.push(route.request().url());
        return route.fulfill({ contentType: "text/html", body: "<p>from elsewhere</p>" });
    });
    const view = await show(phone, "http://elsewhere.example/one", [0, 200, 390, 300]);
    await phone.page.locator(".offer code", { hasText: "http://elsewhere.example/one" }).waitFor();
    assert.deepEqual(asked, []);
    await phone.page.getByRole("button", { name: "Load from the network" }).click();
    await phone.page.frameLocator(".web-page iframe").getByText("from elsewhere").waitFor();
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await show(phone, "http://elsewhere.example/two", [0, 200, 390, 300]); // of a site that is wanted
    await phone.page.frameLocator(".web-page iframe").getByText("from elsewhere").waitFor();
    assert.deepEqual(asked, ["http://elsewhere.example/one", "http://elsewhere.example/two"]);
    await phone.close();
});
