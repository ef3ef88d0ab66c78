// What keys mean that are pressed together, on both kinds of keyboards.
import assert from "node:assert/strict";
import { test } from "node:test";
import { onePhone, phone } from "./fixture.js";

onePhone("plain");

/** The command for keys such as "Control+Shift+ArrowLeft"; a letter may be followed by the key it is on. */
const meant = (keys) => phone.page.evaluate(async (pressed) => {
    const { commandOf } = await import("./key_combinations.js");
    const parts = pressed.split("+");
    const [key, code] = parts.pop().split("@");
    const [ctrlKey, shiftKey, altKey, metaKey] =
        ["Control", "Shift", "Alt", "Meta"].map((name) => parts.includes(name));
    const command = commandOf({ key, code: code ?? "", ctrlKey, shiftKey, altKey, metaKey });
    return command && [command.name, command.to, command.select].filter(Boolean).join(" ");
}, keys);

async function check(table) {
    for (const [keys, expected] of Object.entries(table)) {
        assert.equal(await meant(keys), expected, keys);
    }
}

test("as on most machines", () => check({
    "ArrowLeft": "move left",
    "Shift+ArrowDown": "move down true",
    "Control+ArrowRight": "move wordRight",
    "Control+Shift+ArrowLeft": "move wordLeft true",
    "Control+ArrowUp": null,
    "Alt+ArrowLeft": null,
    "Home": "move lineStart",
    "Shift+End": "move lineEnd true",
    "Control+Home": "move start",
    "Control+Shift+End": "move end true",
    "Backspace": "delete left",
    "Control+Backspace": "delete wordLeft",
    "Delete": "delete right",
    "Control+Delete": "delete wordRight",
    "Shift+Delete": "cut",
    "Control+Insert": "copy",
    "Control+a": "selectAll",
    "Control+c": "copy",
    "Control+x": "cut",
    "Control+z": "undo",
    "Control+Shift+Z": "redo",
    "Control+y": "redo",
    "Control+я@KeyZ": "undo",
    "Control+a@KeyQ": "selectAll",
    "Control+b": null,
    "Control+Alt+a": null,
    "Meta+a": null,
    "a": null,
    "Enter": null,
}));

test("as on a Mac", async () => {
    await phone.page.addInitScript(() => {
        Object.defineProperty(navigator, "platform", { value: "MacIntel" });
    });
    await phone.page.reload();
    await check({
        "ArrowUp": "move up",
        "Alt+ArrowLeft": "move wordLeft",
        "Alt+Shift+ArrowRight": "move wordRight true",
        "Meta+ArrowLeft": "move lineStart",
        "Meta+ArrowUp": "move start",
        "Meta+Shift+ArrowDown": "move end true",
        "Home": "move start",
        "End": "move end",
        "Alt+Backspace": "delete wordLeft",
        "Meta+Backspace": "delete lineStart",
        "Alt+Delete": "delete wordRight",
        "Shift+Delete": "delete right",
        "Meta+c": "copy",
        "Meta+Shift+z": "redo",
        "Control+a": null,
        "a": null,
    });
});
