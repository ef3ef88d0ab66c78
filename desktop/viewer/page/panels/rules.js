// @ts-check
// The rules that the running application has stored, in the text of the rule editor.
import { element } from "../element.js";
import { RuleEditor } from "../rule_editor.js";
import { storedRules } from "../stored_rules.js";
import { word } from "../words.js";

/**
 * @param {import("../connection.js").Connection} connection
 * @param {(work: () => any) => void} attempt does what may fail and tells if it does
 */
export function rulesPanel(connection, attempt) {
    const editor = new RuleEditor(connection);
    /** What is stored, as it was when the text was read. */
    let known = "";
    let isChanged = false;
    const text = element("textarea", {
        id: "rule-text",
        rows: 22,
        spellcheck: false,
        "aria-label": word("rules"),
        oninput: () => change(true),
    });
    const save = element("button", { class: "main", onclick: () => attempt(write) }, word("saveRules"));
    const revert = element("button", { onclick: () => attempt(read) }, word("revertRules"));
    const panel = element(
        "div",
        { class: "panel" },
        element("p", { class: "hint" }, word("rulesHint")),
        text,
        element("div", { class: "buttons" }, save, revert),
    );

    const change = (/** @type {boolean} */ changed) => {
        isChanged = changed;
        save.disabled = revert.disabled = !changed;
    };

    const read = async () => {
        known = JSON.stringify(await storedRules(connection));
        text.value = await editor.text();
        change(false);
    };

    const write = async () => {
        await editor.save(text.value);
        await read();
    };

    change(false);
    return {
        panel,
        isLive: true,
        welcome() {
            known = "";
            change(false);
        },
        /** What a person is writing stays until it is saved or thrown away. */
        async refresh() {
            if (!isChanged && JSON.stringify(await storedRules(connection)) !== known) {
                await read();
            }
        },
    };
}
