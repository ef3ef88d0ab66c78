// The picture of the phone in the page: exact, sharp at every size, and as quick as the finger.
import assert from "node:assert/strict";
import { test } from "node:test";
import { browser, host, middle, oneHost } from "./fixture.js";
import { Phone } from "./phone.js";

oneHost("notes");

/** Opens the toolbox's panel, which then lies over most of the screen. */
async function openPanel(phone) {
    await phone.do("preferences", { set: { kqwzfc: true, kqxfyd: true } });
    await phone.restart();
    await phone.do("pasteboard", { set: "下午取快递，顺便买牛奶 Milk. The quick brown fox jumps over." });
    const ball = async () => (await phone.do("find", { where: { class: "UIView" } }))
        .find(({ frame }) => frame[2] === 34 && frame[3] === 34);
    while (!(await ball())) {
        await phone.page.waitForTimeout(50);
    }
    await phone.tap(middle((await ball()).rect));
    await phone.do("wait", { for: { class: "UICollectionView", visible: true } });
    await phone.page.waitForTimeout(500); // until it has come in
}

/** Moves the panel by a finger, one movement in each frame of the display; how many frames came. */
const dragPanel = (phone, movements) => phone.page.evaluate(async (count) => {
    const { connection, screen } = window.wentra;
    const say = (phase, up) => {
        connection.send({ type: "fingers", phase, points: [[0, 4, 650 - up]] });
    };
    const displayed = () => new Promise((done) => requestAnimationFrame(done));
    const settled = () => new Promise((done) => setTimeout(done, 300));
    say("began", 0);
    say("moved", 20); // far enough for a drag to begin
    await settled();
    const before = screen.frames;
    for (let step = 1; step <= count; ++step) {
        say("moved", 20 + step);
        await displayed();
    }
    await settled();
    const frames = screen.frames - before;
    say("moved", 0);
    say("ended", 0);
    await settled();
    return frames;
}, movements);

/** How many pixels of the canvas are not those of a screenshot. */
const wrongPixels = (phone) => phone.page.evaluate(async () => {
    const canvas = document.getElementById("screen");
    const picture = await createImageBitmap(await (await fetch("screenshot.png")).blob());
    const other = new OffscreenCanvas(picture.width, picture.height).getContext("2d");
    other.drawImage(picture, 0, 0);
    if (picture.width !== canvas.width || picture.height !== canvas.height) {
        return `${canvas.width} × ${canvas.height} of ${picture.width} × ${picture.height}`;
    }
    const pixels = (context) => new Uint32Array(
        context.getImageData(0, 0, picture.width, picture.height).data.buffer);
    const wanted = pixels(other);
    return pixels(canvas.getContext("2d")).reduce(
        (wrong, pixel, index) => wrong + (pixel === wanted[index] ? 0 : 1), 0);
});

test("a dragged panel leaves nothing behind, and each movement gives a frame", async () => {
    const phone = await Phone.open(browser, host.address, {
        locale: "zh-CN", viewport: { width: 1300, height: 1100 }, deviceScaleFactor: 3,
    });
    await openPanel(phone);
    await dragPanel(phone, 40);
    assert.equal(await wrongPixels(phone), 0);

    await phone.page.evaluate(() => {
        const { connection } = window.wentra;
        connection.send({ type: "look", scale: 1 });
    });
    const movements = 40;
    let most = 0;
    for (let attempt = 0; attempt < 10 && most < movements; ++attempt) { // others use the machine too
        most = Math.max(most, await dragPanel(phone, movements));
    }
    assert.ok(most >= movements, `${most} frames of ${movements} movements`);
    assert.deepEqual(phone.complaints, []);
    await phone.close();
});

test("the phone has whole pixels of the display, at every size of the window", async () => {
    for (const [width, height, deviceScaleFactor] of [
        [1280, 800, 1], [1281, 733, 1], [700, 640, 1], [390, 700, 3], [412, 915, 2.625],
        [1024, 577, 1.25], [1919, 1079, 1.5],
    ]) {
        const phone = await Phone.open(browser, host.address, {
            viewport: { width, height }, deviceScaleFactor,
        });
        const shown = await phone.page.evaluate(() => {
            const canvas = document.getElementById("screen");
            const box = canvas.getBoundingClientRect();
            const { data } = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
            const at = (x, y) => data[4 * (y * canvas.width + x) + 1];
            const { width: columns, height: rows } = canvas;
            const isBlack = (places) => places.filter(([x, y]) => at(x, y) === 0).length;
            return {
                across: box.width * devicePixelRatio - columns,
                down: box.height * devicePixelRatio - rows,
                black: isBlack([...Array(rows).keys()].map((y) => [columns - 1, y])) +
                    isBlack([...Array(columns).keys()].map((x) => [x, rows - 1])),
            };
        });
        const where = `${width} × ${height} at ${deviceScaleFactor}: ${JSON.stringify(shown)}`;
        assert.ok(Math.abs(shown.across) < 0.05 && Math.abs(shown.down) < 0.05, where);
        assert.equal(shown.black, 0, where);
        if (process.env.PICTURES) {
            await phone.page.screenshot({ path: `${process.env.PICTURES}/${width}x${height}.png` });
        }
        await phone.close();
    }
});
