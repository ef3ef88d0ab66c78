// @ts-check
// What lies on the phone's pasteboard, and putting text and pictures there.
import { copyFromMachine, copyToMachine, putPicture, putText } from "../clipboard.js";
import { element } from "../element.js";
import { word } from "../words.js";

/** @typedef {import("../connection.js").Connection} Connection */

/**
 * @param {Connection} connection
 * @param {(work: () => any) => void} attempt does what may fail and tells if it does
 */
export function pasteboardPanel(connection, attempt) {
    const content = element("div", { class: "card content", "aria-live": "polite" });
    const text = element("textarea", { rows: 4, "aria-label": word("newText"), placeholder: word("newText") });
    const file = element("input", {
        type: "file",
        accept: "image/*",
        hidden: true,
        onchange: () => attempt(putChosen),
    });
    const panel = element(
        "div",
        { class: "panel" },
        content,
        text,
        element(
            "div",
            { class: "buttons" },
            element("button", { class: "main", onclick: () => attempt(putWritten) }, word("putText")),
            element("button", { onclick: () => file.click() }, word("putImage")),
            file,
        ),
        element(
            "div",
            { class: "buttons" },
            element("button", { onclick: () => attempt(take) }, word("fromMachine")),
            element("button", { onclick: () => attempt(() => copyToMachine(connection)) }, word("toMachine")),
        ),
    );

    const show = async (/** @type {string | null} */ string) => {
        if (string !== null) {
            content.replaceChildren(
                element("h3", {}, word("pasteboardText")),
                element("pre", {}, string),
            );
            return;
        }
        const answer = await fetch("pasteboard.png");
        const bytes = answer.status === 200 ? await answer.blob() : null;
        content.replaceChildren(
            bytes
                ? element("img", { src: URL.createObjectURL(bytes), alt: word("pasteboardImage") })
                : element("p", { class: "empty" }, word("pasteboardEmpty")),
        );
    };

    const putWritten = async () => {
        await putText(connection, text.value);
        await refresh();
    };

    const take = async () => {
        await copyFromMachine(connection);
        await refresh();
    };

    const putChosen = async () => {
        const [chosen] = file.files ?? [];
        file.value = "";
        if (chosen) {
            await putPicture(connection, chosen);
            await refresh();
        }
    };

    let shown = -1;

    const refresh = async () => {
        const general = await connection.ask("send", {
            to: { class: "UIPasteboard" },
            selector: "generalPasteboard",
        });
        const changes = await connection.ask("send", { to: general, selector: "changeCount" });
        if (changes !== shown) {
            shown = changes;
            await show(await connection.ask("pasteboard"));
        }
    };

    return { panel, refresh, isLive: true };
}
