// @ts-check
// What is said to the phone: its recognizer hears the text that is written here.
import { element } from "../element.js";
import { word } from "../words.js";

/** @param {import("../connection.js").Connection} connection */
export function microphonePanel(connection) {
    const state = element("p", { class: "card content", "aria-live": "polite" });
    const text = element("textarea", { rows: 4, "aria-label": word("said"), placeholder: word("said") });
    const panel = element(
        "div",
        { class: "panel" },
        element("p", { class: "hint" }, word("microphoneHint")),
        state,
        text,
        element(
            "div",
            { class: "buttons" },
            element("button", { class: "main", onclick: () => say(text.value) }, word("say")),
            element("button", { onclick: () => say("") }, word("beSilent")),
        ),
    );

    const show = (/** @type {string | null} */ hears) => {
        state.textContent = hears ? word("isHeard") + hears : word("isSilent");
    };

    const say = async (/** @type {string} */ said) => {
        show((await connection.ask("recognizer", { hears: said || null })).hears);
    };

    const refresh = async () => show((await connection.ask("recognizer")).hears);

    return { panel, refresh };
}
