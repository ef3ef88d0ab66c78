// @ts-check
// What lies on the phone's pasteboard, and putting text and pictures there.
import { element } from "../element.js";
import { word } from "../words.js";

/** @typedef {import("../connection.js").Connection} Connection */

/** @param {Connection} connection */
export function pasteboardPanel(connection) {
    const content = element("div", { class: "card content", "aria-live": "polite" });
    const text = element("textarea", { rows: 4, "aria-label": word("newText"), placeholder: word("newText") });
    const file = element("input", {
        type: "file",
        accept: "image/*",
        hidden: true,
        onchange: () => putPicture(),
    });
    const panel = element(
        "div",
        { class: "panel" },
        content,
        text,
        element(
            "div",
            { class: "buttons" },
            element("button", { class: "main", onclick: () => putText() }, word("putText")),
            element("button", { onclick: () => file.click() }, word("putImage")),
            file,
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

    const putText = async () => {
        await connection.ask("pasteboard", { set: text.value });
        await refresh();
    };

    const putPicture = async () => {
        const [chosen] = file.files ?? [];
        file.value = "";
        if (chosen) {
            connection.send({ type: "paste", picture: await base64(chosen) });
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

/** @returns {Promise<string>} */
function base64(/** @type {Blob} */ file) {
    return new Promise((resolve, reject) => {
        const reader = new FileReader();
        reader.onload = () => {
            const address = String(reader.result);
            resolve(address.slice(address.indexOf(",") + 1));
        };
        reader.onerror = () => reject(reader.error);
        reader.readAsDataURL(file);
    });
}
