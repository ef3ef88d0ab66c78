// @ts-check
// The keyboard of the person as the keyboard of the phone, input methods included.

/** @typedef {import("./connection.js").Connection} Connection */

/** @type {Record<string, string>} */
const keys = {
    Backspace: "deleteBackward",
    Enter: "enter",
};

/**
 * Sends what is typed into the field, which stays empty but for the text that an input method is
 * composing. Tab goes on to the next control of the page, and Escape to `next`, as everywhere.
 * @param {HTMLTextAreaElement} field
 * @param {HTMLElement} next
 * @param {Connection} connection
 */
export function typeInto(field, next, connection) {
    const insert = (/** @type {string | null} */ text) => {
        if (text) {
            connection.send({ type: "insert", text });
        }
    };
    let isComposing = false;

    field.addEventListener("keydown", (event) => {
        if (isComposing || event.isComposing) {
            return;
        }
        if (event.key === "Escape") {
            next.focus();
        } else if (keys[event.key] && !event.altKey && !event.ctrlKey && !event.metaKey) {
            connection.send({ type: "press", key: keys[event.key] });
            event.preventDefault();
        }
    });
    field.addEventListener("beforeinput", (event) => {
        if (event.inputType === "deleteContentBackward" && !isComposing) {
            connection.send({ type: "press", key: "deleteBackward" });
        }
    });
    field.addEventListener("input", (event) => {
        if (!isComposing && !(/** @type {InputEvent} */ (event).isComposing)) {
            insert(field.value);
            field.value = "";
        }
    });
    field.addEventListener("compositionstart", () => {
        isComposing = true;
    });
    field.addEventListener("compositionupdate", ({ data }) => {
        connection.send({ type: "compose", text: data });
    });
    field.addEventListener("compositionend", ({ data }) => {
        isComposing = false;
        if (data) {
            insert(data); // takes the place of what was composed
        } else {
            connection.send({ type: "compose", text: "" });
        }
        field.value = "";
    });
}
