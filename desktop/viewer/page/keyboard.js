// @ts-check
// The keyboard of the person as the keyboard of the phone, input methods included.
import { copyToMachine, putPicture, putText } from "./clipboard.js";
import { commandOf } from "./key_combinations.js";

/** @typedef {import("./connection.js").Connection} Connection */

/**
 * Whether the phone's own keyboard stays away, since a real one types.
 * @param {Connection} connection
 * @param {HTMLElement} button tells so, and is for `toggle`
 */
export function realKeyboard(connection, button) {
    let isReal = false;
    const show = (/** @type {boolean} */ real) => {
        isReal = real;
        button.setAttribute("aria-pressed", String(!isReal));
    };
    const set = async (/** @type {boolean} */ real) => {
        show(real);
        await connection.ask("keyboard", { hardware: real });
    };
    connection.addEventListener("welcome", () => {
        connection.ask("keyboard").then(({ hardware }) => show(hardware), () => show(false));
    });
    return {
        /** Something is being typed. */
        types: () => {
            if (!isReal) {
                set(true).catch(() => {}); // the phone is gone, or in another page's hand
            }
        },
        toggle: () => set(!isReal),
    };
}

/**
 * Sends what is typed into the field, which stays empty but for the text that an input method is
 * composing. Tab goes on to the next control of the page, and Escape to `next`, as everywhere.
 * @param {HTMLTextAreaElement} field
 * @param {HTMLElement} next
 * @param {Connection} connection
 * @param {() => void} types called when something is typed
 * @param {(work: () => any) => void} attempt does what may fail and tells if it does
 */
export function typeInto(field, next, connection, types, attempt) {
    const send = (/** @type {object} */ message) => {
        types();
        connection.send(message);
    };
    const insert = (/** @type {string | null} */ text) => {
        if (text) {
            send({ type: "insert", text });
        }
    };
    /** Whether it was done: where nothing has the focus or is selected, there is nothing to do. */
    const press = (/** @type {object} */ command) =>
        connection.ask("key", command).then(() => true, () => false);
    const carryOut = async (/** @type {{name: string}} */ command) => {
        types();
        const copies = command.name === "copy" || command.name === "cut";
        if ((await press(command)) && copies) {
            attempt(() => copyToMachine(connection));
        }
    };
    let isComposing = false;

    field.addEventListener("keydown", (event) => {
        if (isComposing || event.isComposing) {
            return;
        }
        const command = commandOf(event);
        if (event.key === "Escape") {
            next.focus();
        } else if (command) {
            carryOut(command);
            event.preventDefault();
        } else if (event.key === "Enter" && !event.altKey && !event.ctrlKey && !event.metaKey) {
            send({ type: "press", key: "enter" });
            event.preventDefault();
        }
    });
    field.addEventListener("beforeinput", (event) => {
        if (event.inputType === "deleteContentBackward" && !isComposing) {
            send({ type: "press", key: "deleteBackward" }); // of keyboards on a screen
        }
    });
    field.addEventListener("paste", (event) => {
        event.preventDefault();
        const text = event.clipboardData?.getData("text/plain");
        const [picture] = event.clipboardData?.files ?? [];
        attempt(async () => {
            if (text) {
                await putText(connection, text);
            } else if (picture) {
                await putPicture(connection, picture);
            }
            await press({ name: "paste" });
        });
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
        send({ type: "compose", text: data });
    });
    field.addEventListener("compositionend", ({ data }) => {
        isComposing = false;
        if (data) {
            insert(data); // takes the place of what was composed
        } else {
            send({ type: "compose", text: "" });
        }
        field.value = "";
    });
}
