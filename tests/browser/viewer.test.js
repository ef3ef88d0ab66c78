// The phone in the page: seen, touched, taken over, lost and found again.
import assert from "node:assert/strict";
import { request } from "node:http";
import { test } from "node:test";
import { browser, host, oneHost } from "./fixture.js";
import { Host, Phone } from "./phone.js";

oneHost("plain");

test("the screen shows the application", async () => {
    const phone = await Phone.open(browser, host.address);
    const label = await phone.showing("Hello, world");
    assert.ok(await phone.coloursIn(label.rect) > 10, "the label's text is drawn");
    assert.ok(await phone.coloursIn([10, 700, 40, 40]) < 3, "there is nothing at the bottom left");
    assert.deepEqual(phone.complaints, []);
    await phone.close();
});

test("the phone is turned, and made dark, by buttons and by keys", async () => {
    const phone = await Phone.open(browser, host.address);
    await phone.showing("Hello, world");
    const size = () => phone.page.evaluate(() => {
        const { width, height } = document.getElementById("screen").style;
        return [parseFloat(width), parseFloat(height)];
    });
    const becomes = (isWide) => phone.page.waitForFunction((wide) => {
        const { width, height } = document.getElementById("screen");
        return width > height === wide;
    }, isWide);
    await phone.page.click("#rotate");
    await becomes(true);
    const [width, height] = await size();
    assert.ok(Math.abs(width / height - 844 / 390) < 0.02, `${width} × ${height}`);
    assert.equal(await phone.do("rotate"), "landscapeLeft");
    await phone.page.keyboard.press("r");
    await phone.page.waitForFunction(() => window.wentra.connection.ask("rotate").then((to) => to === "landscapeRight"));
    await phone.do("rotate", { to: "portrait" });
    await becomes(false);

    assert.deepEqual(await phone.colourAt([20, 700]), [255, 255, 255]);
    await phone.page.click("#more");
    await phone.page.click("#appearance");
    await phone.page.waitForFunction(() => window.wentra.connection.ask("appearance").then((is) => is === "dark"));
    await phone.page.keyboard.press("d");
    await phone.page.waitForFunction(() => window.wentra.connection.ask("appearance").then((is) => is === "light"));
    assert.deepEqual(phone.complaints, []);
    await phone.close();
});

test("what changes is drawn anew, and nothing while nothing changes", async () => {
    const phone = await Phone.open(browser, host.address);
    const [window] = await phone.tree();
    const root = window.children[0];
    const red = await phone.do("send", { to: { class: "UIColor" }, selector: "redColor" });
    const drawn = await phone.frames();
    await phone.do("send", { to: root, selector: "setBackgroundColor:", args: [red] });
    await phone.page.waitForFunction((before) => window.wentra.screen.frames > before, drawn);
    assert.deepEqual(await phone.colourAt([20, 700]), [255, 0, 0]);

    const still = await phone.frames();
    await phone.page.waitForTimeout(600);
    assert.equal(await phone.frames(), still);
    await phone.close();
});

async function addRecognizer(phone, view, className, target, action) {
    const allocated = await phone.do("send", { to: { class: className }, selector: "alloc" });
    const recognizer = await phone.do("send", {
        to: allocated, selector: "initWithTarget:action:", args: [target, { selector: action }],
    });
    await phone.do("send", { to: view, selector: "addGestureRecognizer:", args: [recognizer] });
    return recognizer;
}

test("a click taps, and a held button presses", async () => {
    const phone = await Phone.open(browser, host.address);
    for (const [recognizer, act] of [
        ["UITapGestureRecognizer", (point) => phone.tap(point)],
        ["UILongPressGestureRecognizer", (point) => phone.press(point, 700)],
    ]) {
        const view = await phone.addView("UIView", [100, 300, 80, 80]);
        await addRecognizer(phone, view, recognizer, view, "removeFromSuperview");
        await phone.tap([90, 290]); // beside it
        assert.ok(await phone.do("send", { to: view, selector: "superview" }), recognizer);
        await act([140, 340]);
        await phone.page.waitForTimeout(100);
        assert.equal(await phone.do("send", { to: view, selector: "superview" }), null, recognizer);
    }
    await phone.close();
});

test("dragging and the wheel scroll", async () => {
    const phone = await Phone.open(browser, host.address);
    const view = await phone.addView("UIScrollView", [0, 200, 390, 500]);
    await phone.do("send", { to: view, selector: "setContentSize:", args: [{ size: [390, 3000] }] });
    const offset = async () => (await phone.do("send", { to: view, selector: "contentOffset" })).point[1];
    const settled = async () => {
        for (let before = NaN, now = await offset(); before !== now;) {
            await phone.page.waitForTimeout(150);
            [before, now] = [now, await offset()];
        }
        return offset();
    };
    await phone.drag([[200, 600], [200, 400]]);
    const dragged = await settled();
    assert.ok(dragged > 150, `dragged by ${dragged}`);
    await phone.page.mouse.wheel(0, 100);
    await phone.page.waitForTimeout(200);
    assert.ok(await settled() > dragged + 90, "the wheel scrolls on");
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await phone.close();
});

test("Alt makes two fingers", async () => {
    const phone = await Phone.open(browser, host.address);
    const view = await phone.addView("UIView", [0, 200, 390, 500]);
    await addRecognizer(phone, view, "UIPinchGestureRecognizer", view, "removeFromSuperview");
    await phone.drag([[200, 600], [200, 400]]); // one finger pinches nothing
    assert.ok(await phone.do("send", { to: view, selector: "superview" }));
    await phone.pinch(100, 300);
    await phone.page.waitForTimeout(100);
    assert.equal(await phone.do("send", { to: view, selector: "superview" }), null);
    await phone.close();
});

test("typing reaches the first responder, input methods included", async () => {
    const phone = await Phone.open(browser, host.address);
    const view = await phone.addView("UITextView", [20, 200, 350, 120]);
    const text = () => phone.do("send", { to: view, selector: "text" });
    await phone.tap([100, 220]);
    assert.equal(await phone.do("send", { to: view, selector: "isFirstResponder" }), true);
    await phone.page.keyboard.type("Hellp");
    await phone.page.keyboard.press("Backspace");
    await phone.page.keyboard.type("o,");
    await phone.page.keyboard.press("Enter");
    await phone.page.keyboard.insertText("😀");
    await phone.page.waitForTimeout(200);
    assert.equal(await text(), "Hello,\n😀");

    const devtools = await phone.page.context().newCDPSession(phone.page);
    for (const letters of ["n", "ni", "ni hao"]) {
        await devtools.send("Input.imeSetComposition", {
            text: letters, selectionStart: letters.length, selectionEnd: letters.length,
        });
    }
    await phone.page.waitForTimeout(200);
    assert.equal(await text(), "Hello,\n😀ni hao");
    await devtools.send("Input.insertText", { text: "你好" });
    await phone.page.waitForTimeout(200);
    assert.equal(await text(), "Hello,\n😀你好");

    await phone.page.keyboard.press("Escape"); // leaves the phone for the page's buttons
    assert.equal(await phone.page.evaluate(() => document.activeElement.id), "more");
    await phone.do("send", { to: view, selector: "resignFirstResponder" });
    await phone.do("send", { to: view, selector: "removeFromSuperview" });
    await phone.close();
});

test("fingers that a page leaves on the screen are taken away", async () => {
    const leaving = await Phone.open(browser, host.address);
    const view = await leaving.addView("UIView", [100, 300, 80, 80]);
    await addRecognizer(leaving, view, "UILongPressGestureRecognizer", view, "removeFromSuperview");
    await leaving.page.mouse.move(...await leaving.place([140, 340]));
    await leaving.page.mouse.down();
    await leaving.close();
    const phone = await Phone.open(browser, host.address);
    await phone.page.waitForTimeout(800); // the press would be long enough by now
    assert.ok(await phone.do("find", { where: { class: "UIView" } }).then(
        (nodes) => nodes.some(({ frame }) => frame[0] === 100)), "the press went on without a page");
    await phone.tap([140, 340]); // the same finger comes down again
    await phone.close();
});

test("only the printed address opens the phone", async () => {
    const base = host.address.replace(/[0-9a-f]{32}\/$/, "");
    const other = "0123456789abcdef".repeat(2);
    for (const path of ["", `${other}/`, `${other}/main.js`, "main.js", "x".repeat(6000)]) {
        assert.equal((await fetch(base + path)).status, 403, path.slice(0, 40));
    }
    for (const path of ["nothing", "../server.cpp", "%2e%2e/server.cpp", "file/1", "file/../x"]) {
        const status = (await fetch(host.address + path)).status;
        assert.ok(status === 404 || status === 403, `${path}: ${status}`);
    }
    const unfinished = await fetch(host.address.replace(/\/$/, ""));
    assert.deepEqual([unfinished.status, unfinished.url], [200, host.address]);
    const page = await fetch(host.address);
    assert.equal(page.headers.get("x-content-type-options"), "nosniff");
    assert.equal(page.headers.get("referrer-policy"), "no-referrer");
    assert.match(page.headers.get("content-security-policy"), /default-src 'none'/);
});

/** Asks as a program may, with any headers; the status. */
function statusOf(address, headers) {
    return new Promise((resolve, reject) => {
        const asked = request(address, { headers }, (response) => {
            response.resume();
            resolve(response.statusCode);
        });
        asked.on("upgrade", (response, socket) => {
            socket.destroy();
            resolve(response.statusCode);
        });
        asked.on("error", reject);
        asked.end();
    });
}

test("pages from elsewhere and foreign names reach nothing", async () => {
    const { host: own } = new URL(host.address);
    const upgrade = {
        Connection: "Upgrade", Upgrade: "websocket", "Sec-WebSocket-Version": "13",
        "Sec-WebSocket-Key": "dGhlIHNhbXBsZSBub25jZQ==",
    };
    const socket = `${host.address}socket`;
    assert.equal(await statusOf(host.address, { Host: "evil.example" }), 403);
    assert.equal(await statusOf(socket, upgrade), 403);
    assert.equal(await statusOf(socket, { ...upgrade, Origin: "http://evil.example" }), 403);
    assert.equal(await statusOf(socket, { ...upgrade, Origin: `https://${own}` }), 403);
    assert.equal(await statusOf(socket, { ...upgrade, Origin: `http://${own}` }), 101);
});

test("bad messages are refused, and the phone goes on", async () => {
    const phone = await Phone.open(browser, host.address);
    const answers = await phone.page.evaluate(async () => {
        const open = () => new Promise((opened) => {
            const socket = new WebSocket(new URL("socket", location.href).href.replace("http", "ws"));
            socket.onopen = () => opened(socket);
        });
        const closed = (socket) => new Promise((done) => {
            socket.onclose = ({ code }) => done(code);
        });
        const talking = await open();
        talking.send('{"type":"takeHand"}');
        const refusals = [];
        talking.onmessage = ({ data }) => {
            const message = typeof data === "string" ? JSON.parse(data) : {};
            if (message.type === "refused") {
                refusals.push(message.why);
            }
        };
        const bad = [
            "", "{", "null", "[".repeat(1e6), '{"type":"dance"}',
            '{"type":"fingers","phase":"began","points":[[0,NaN,1]]}',
            '{"type":"fingers","phase":"began","points":[[0,1e99,1]]}',
            '{"type":"launch","application":"../../sh"}',
        ];
        bad.forEach((text) => talking.send(text));
        // Fingers that never came down, and ten that never leave.
        const all = [...Array(10).keys()].map((id) => [id, 10 * id, 500]);
        for (const phase of ["moved", "ended", "began", "began"]) {
            talking.send(JSON.stringify({ type: "fingers", phase, points: all }));
        }
        while (refusals.length < bad.length) {
            await new Promise((soon) => setTimeout(soon, 20));
        }
        const binary = closed(talking);
        talking.send(new Uint8Array(100));
        const codes = [await binary];
        const huge = await open();
        const ended = closed(huge);
        huge.send("x".repeat(25 << 20));
        codes.push(await ended);
        return { refusals: refusals.length, expected: bad.length, codes };
    });
    assert.equal(answers.refusals, answers.expected);
    assert.equal(answers.codes[0], 1003);
    // The reason gets lost when the connection ends while the page still writes.
    assert.ok([1009, 1006].includes(answers.codes[1]), `closed with ${answers.codes[1]}`);
    await phone.page.reload();
    await phone.picture();
    await phone.showing("Hello, world");
    await phone.close();
});

test("fingers on a touch screen are the phone's fingers", async () => {
    const phone = await Phone.open(browser, host.address, { hasTouch: true });
    const view = await phone.addView("UIView", [100, 300, 80, 80]);
    await addRecognizer(phone, view, "UITapGestureRecognizer", view, "removeFromSuperview");
    await phone.page.touchscreen.tap(...await phone.place([140, 340]));
    await phone.page.waitForTimeout(100);
    assert.equal(await phone.do("send", { to: view, selector: "superview" }), null);
    await phone.close();
});


test("a page that is slow gets the newest picture, not all of them", async () => {
    const phone = await Phone.open(browser, host.address);
    const counts = await phone.page.evaluate(async () => {
        const soon = (milliseconds) => new Promise((done) => setTimeout(done, milliseconds));
        const socket = new WebSocket(new URL("socket", location.href).href.replace("http", "ws"));
        socket.binaryType = "arraybuffer";
        const frames = [];
        let id = 0;
        const answers = new Map();
        socket.onmessage = ({ data }) => {
            if (data instanceof ArrayBuffer) {
                frames.push(new DataView(data).getUint32(0, true));
            } else {
                const { type, response } = JSON.parse(data);
                if (type === "answer") {
                    answers.get(response.id)(response.result);
                }
            }
        };
        const ask = (request) => new Promise((done) => {
            answers.set(++id, done);
            socket.send(JSON.stringify({ type: "ask", request: { ...request, id } }));
        });
        await new Promise((opened) => {
            socket.onopen = opened;
        });
        socket.send('{"type":"takeHand"}');
        const [window] = await ask({ do: "tree" });
        socket.send('{"type":"look","scale":1}');
        for (let change = 0; change < 8; ++change) {
            const alpha = 0.9 - 0.05 * change;
            await ask({ do: "send", to: window.children[0], selector: "setAlpha:", args: [alpha] });
            await soon(60);
        }
        const before = frames.length;
        socket.send('{"type":"seen","picture":9}'); // it was not sent
        await soon(200);
        const lied = frames.length;
        socket.send('{"type":"seen","picture":1}');
        await soon(400);
        await ask({ do: "send", to: window.children[0], selector: "setAlpha:", args: [1] });
        return [before, lied, frames.length];
    });
    assert.deepEqual(counts, [2, 2, 3]);
    await phone.close();
});

test("a page that leaves in the middle of frames does no harm", async () => {
    for (let round = 0; round < 5; ++round) {
        const phone = await Phone.open(browser, host.address);
        const [window] = await phone.tree();
        for (let change = 0; change < 10; ++change) {
            phone.do("send", { to: window, selector: "setNeedsDisplay" }).catch(() => {});
        }
        await phone.close();
    }
    const phone = await Phone.open(browser, host.address);
    await phone.showing("Hello, world");
    await phone.close();
});

test("preferences are written, and the pasteboard is set", async () => {
    const phone = await Phone.open(browser, host.address, { locale: "zh-CN" });
    await phone.page.click("#tab-preferences");
    await phone.page.getByLabel("显示悬浮球", { exact: false }).check();
    await phone.page.getByLabel("悬浮球长宽比").fill("48");
    await phone.page.keyboard.press("Enter");
    await phone.page.waitForTimeout(300);
    assert.deepEqual(await phone.do("preferences"), { kqwzfc: true, 悬浮球长宽比: 48 });

    await phone.page.click("#tab-pasteboard");
    await phone.page.getByLabel("要放入剪贴板的文字").fill("复制 😀");
    await phone.page.getByRole("button", { name: "放入剪贴板" }).click();
    await phone.page.waitForTimeout(300);
    assert.equal(await phone.do("pasteboard"), "复制 😀");

    await phone.page.setInputFiles(
        "input[type=file]", { name: "a.png", mimeType: "image/png", buffer: Buffer.from("no") });
    await phone.page.waitForSelector("#note:visible");
    const screenshot = await phone.page.screenshot();
    await phone.page.setInputFiles(
        "input[type=file]", { name: "a.png", mimeType: "image/png", buffer: screenshot });
    await phone.page.waitForSelector(".content img");
    assert.equal(await phone.do("pasteboard"), null);
    await phone.close();
});

/** Makes an event of the phone's with that reason. */
async function raise(phone, reason) {
    const center = await phone.do("send", {
        to: { class: "NSNotificationCenter" }, selector: "defaultCenter",
    });
    await phone.do("send", {
        to: center, selector: "postNotificationName:object:userInfo:",
        args: ["WentraExceptionSwallowed", null, { name: "Noise", reason }],
    });
}

test("events are listed, those from before the page came too", async () => {
    const earlier = await Phone.open(browser, host.address);
    await raise(earlier, "made before");
    await earlier.close();

    const phone = await Phone.open(browser, host.address, { locale: "en-US" });
    await phone.page.click("#tab-events");
    await phone.page.getByText("made before").waitFor();
    const before = await phone.page.locator(".events > li").count();
    await raise(phone, "made by the test");
    await phone.page.getByText("made by the test").waitFor();
    assert.equal(await phone.page.locator(".events > li").count(), before + 1);
    await phone.close();
});

test("an opened address is told for a moment, and opened nowhere", async () => {
    const phone = await Phone.open(browser, host.address, { locale: "en-US" });
    await phone.do("send", {
        to: await phone.do("send", { to: { class: "UIApplication" }, selector: "sharedApplication" }),
        selector: "openURL:", args: [{ url: "taobao://s/?q=1" }],
    });
    await phone.page.getByText("Opened in 淘宝: taobao://s/?q=1").waitFor();
    assert.equal(phone.page.context().pages().length, 1);
    await phone.close();

    const later = await Phone.open(browser, host.address);
    await later.page.click("#tab-events");
    await later.page.locator(".events").getByText("taobao://s/?q=1").first().waitFor();
    assert.ok(await later.page.locator("#note").isHidden(), "what is over is not told again");
    await later.close();
});

test("the screenshot has the pixels of the device", async () => {
    const png = Buffer.from(await (await fetch(`${host.address}screenshot.png`)).arrayBuffer());
    assert.deepEqual([png.readUInt32BE(16), png.readUInt32BE(20)], [1170, 2532]);
});

test("another application can be opened, a crash is survived, Ctrl-C ends all", async () => {
    const own = await Host.start("--app", "plain");
    const phone = await Phone.open(browser, own.address);
    await phone.page.click("[data-application=chat]");
    await phone.page.waitForFunction(() => document.title.startsWith("Chat"));
    await phone.picture();
    assert.notEqual((await phone.do("find", { where: { class: "UILabel" } })).length, 0);

    process.kill(own.child(), "SIGSEGV");
    await phone.page.waitForSelector("[role=alert].warning");
    assert.match(await phone.page.title(), /^Chat/);

    const child = own.child();
    assert.equal(await own.stop(), 0);
    assert.throws(() => process.kill(child, 0), "the child has ended too");
    await phone.close();
});

test("a port that is taken is told, with what to do", async () => {
    const { port } = new URL(host.address);
    await assert.rejects(Host.start("--port", port), /port \d+ is taken; choose another/);
});
