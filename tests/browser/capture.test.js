// Recordings and pictures of the phone's screen in the page.
import assert from "node:assert/strict";
import { test } from "node:test";
import { middle, onePhone, phone } from "./fixture.js";

onePhone("settings");

const first = async (where) => (await phone.do("wait", { for: { visible: true, ...where } }))[0];

/** The toolbox panel with nothing around it. */
async function openPanel() {
    const panel = await phone.do("make", { class: "ZKFloatingViewController", selector: "init", args: [] });
    const [window] = await phone.tree();
    const view = await phone.do("send", { to: panel, selector: "view", args: [] });
    await phone.do("send", { to: window, selector: "addSubview:", args: [view] });
    await phone.do("wait", { for: { text: "OK" } });
    await phone.do("alert", { choose: "OK" });
}

/** Plays the film to its end; how long it is, and how many sizes and colours it shows. */
const played = (film) => film.evaluate((video) => new Promise((done, failed) => {
    video.onended = () => done({ seconds: video.duration, width: video.videoWidth, height: video.videoHeight });
    video.onerror = () => failed(new Error(video.error.message));
    video.muted = true;
    video.play().catch(failed);
}));

test("a recording is played in the phone's preview and among the events", async () => {
    await openPanel();
    await phone.tap(middle((await first({ title: "应用录屏" })).rect));
    const container = (await first({ label: "截图" })).rect;
    for (let moves = 0; moves < 8; ++moves) { // something to be seen
        await phone.drag([[290, 100 + moves], [290, 160]]);
        await phone.drag([[290, 160], [290, 100]]);
    }
    assert.ok(container);
    await phone.tap(middle((await first({ title: "结束录屏" })).rect));
    const film = await played(phone.page.locator("video.film"));
    assert.ok(film.seconds > 0.5, `it lasts ${film.seconds} s`);
    assert.deepEqual([film.width, film.height], [780, 1688]);
    await phone.tap(middle((await first({ text: "存储" })).rect));
    await phone.page.locator("video.film").waitFor({ state: "detached" });
    await phone.page.click("#tab-events");
    assert.ok((await played(phone.page.locator(".events video").first())).seconds > 0.5);
});

test("what is written for the microphone is heard", async () => {
    await phone.page.click("#tab-microphone");
    await phone.page.getByPlaceholder("对手机说的话").fill("你好");
    await phone.page.getByRole("button", { name: "说出" }).click();
    await phone.page.getByText("手机将听到：你好").waitFor();
    await phone.press(middle((await first({ title: "应用录屏" })).rect), 3000);
    await phone.showing("你好");
});
