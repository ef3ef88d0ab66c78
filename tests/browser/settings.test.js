// A person switches a feature on in the phone's own Settings, and sees it in another application.
import assert from "node:assert/strict";
import { test } from "node:test";
import { middle, phone, phoneForEach } from "./fixture.js";

phoneForEach("settings");

test("the ball is switched on in Settings and floats over another application", async () => {
    await phone.tap(middle((await phone.showing("Wentra")).rect));
    const title = await phone.showing("显示悬浮球");
    await phone.page.waitForTimeout(600); // until the screen has slid in
    const row = middle((await phone.showing(title.text)).rect)[1];
    const switches = await phone.do("find", { where: { class: "UISwitch", visible: true } });
    await phone.tap(middle(switches.find(({ rect }) => Math.abs(middle(rect)[1] - row) < 2).rect));
    assert.deepEqual(await phone.do("preferences"), { kqwzfc: true });

    await phone.page.click("#tab-applications");
    await phone.page.click('[data-application="notes"]');
    const isBall = ({ frame }) => frame[2] === 34 && frame[3] === 34;
    // While the application starts, the connection is lost and found again.
    const ball = async () => (await phone.tree())[0].children.some(isBall);
    for (let tries = 0; !(await ball().catch(() => false)); ++tries) {
        assert.ok(tries < 100, "there is no ball");
        await phone.page.waitForTimeout(50);
    }
    await phone.showing("hello");
});
