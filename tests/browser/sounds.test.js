// Speech and system sounds, heard in the page after a click.
import assert from "node:assert/strict";
import { test } from "node:test";
import { phone, phoneForEach } from "./fixture.js";

phoneForEach("plain");

/** Notes what the page gives to the loudspeaker: the seconds of speech, and the tones. */
const listen = () => phone.page.evaluate(() => {
    window.heard = { speech: [], tones: [], silenced: 0 };
    const { heard } = window;
    const { start, stop } = AudioBufferSourceNode.prototype;
    AudioBufferSourceNode.prototype.start = function () {
        heard.speech.push(this.buffer.duration);
        start.call(this);
    };
    AudioBufferSourceNode.prototype.stop = function () {
        heard.silenced += 1;
        stop.call(this);
    };
    const tone = OscillatorNode.prototype.start;
    OscillatorNode.prototype.start = function () {
        heard.tones.push(this.frequency.value);
        tone.call(this);
    };
});
const heard = (count) => phone.page.waitForFunction(
    (wanted) => window.heard.speech.length === wanted, count);

async function say(voice, text) {
    const utterance = await phone.do("make", {
        class: "AVSpeechUtterance", selector: "initWithString:", args: [text],
    });
    await phone.do("send", { to: voice, selector: "speakUtterance:", args: [utterance] });
}

test("speech is shown at once, and heard after a click, one utterance after the other", async () => {
    await listen();
    const voice = await phone.do("make", { class: "AVSpeechSynthesizer", selector: "init" });
    await say(voice, "first");
    await phone.page.getByText("手机说：first").waitFor();
    assert.deepEqual(await phone.page.evaluate(() => window.heard.speech), []);

    await phone.page.click("#sound");
    await say(voice, "second");
    await say(voice, "third");
    await heard(2);
    for (const seconds of await phone.page.evaluate(() => window.heard.speech)) {
        assert.ok(seconds > 0.2, `${seconds} s`);
    }
});

test("speech that the phone breaks off is broken off", async () => {
    await listen();
    await phone.page.click("#sound");
    const voice = await phone.do("make", { class: "AVSpeechSynthesizer", selector: "init" });
    await say(voice, "a sentence that takes quite a while to be spoken, so that it can be stopped");
    await heard(1);
    await phone.do("send", { to: voice, selector: "stopSpeakingAtBoundary:", args: [0] });
    await phone.page.waitForFunction(() => window.heard.silenced === 1);
});

test("system sounds are tones", async () => {
    await phone.do("preferences", { set: { 开启文字复制: true } });
    await phone.restart();
    await listen();
    await phone.page.click("#sound");
    const [x, y, width, height] = (await phone.showing("Hello, world")).rect;
    await phone.press([x + width / 2, y + height / 2], 600); // copies, and taps twice
    await phone.page.waitForFunction(() => window.heard.tones.length === 2);
    assert.deepEqual(await phone.page.evaluate(() => window.heard.tones), [90, 90]); // it shakes
});
