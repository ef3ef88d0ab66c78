// @ts-check
// The model of phone, and what a person does with all of it.
import { element } from "../element.js";
import { word } from "../words.js";

/** @typedef {import("../connection.js").Connection} Connection */

/** The protocol's names of text sizes, from small to large. */
const textSizes = [
    "extraSmall", "small", "medium", "large", "extraLarge", "extraExtraLarge", "extraExtraExtraLarge",
    "accessibilityMedium", "accessibilityLarge", "accessibilityExtraLarge", "accessibilityExtraExtraLarge",
    "accessibilityExtraExtraExtraLarge",
];

/** A row with a name and a control. */
const row = (/** @type {string} */ name, /** @type {HTMLElement} */ control) =>
    element("li", {}, element("label", { class: "names", for: control.id }, word(name)), control);

/**
 * @param {Connection} connection
 * @param {(work: () => any) => void} attempt does what may fail and tells if it does
 * @param {{shake: () => void}} holding
 */
export function devicePanel(connection, attempt, { shake }) {
    const panel = element("div", { class: "panel device" });
    const model = element("select", { id: "model" });
    const facts = element("p", { class: "hint" });
    const sizes = textSizes.length - 1;
    const size = element("input", { id: "text-size", type: "range", min: 0, max: sizes, step: 1 });
    let application = "";

    model.onchange = () =>
        attempt(async () => {
            await connection.ask("device", { set: model.value });
            // No application lives to see another phone: it is started anew on it.
            connection.send({ type: "launch", application });
        });

    const chosen = () => textSizes[Number(size.value)];
    const describe = () => size.setAttribute("aria-valuetext", chosen());
    size.oninput = describe;
    size.onchange = () => attempt(() => connection.ask("textSize", { set: chosen() }));

    return {
        panel,
        refresh: async () => {
            size.value = String(textSizes.indexOf(await connection.ask("textSize")));
            describe();
        },
        /** The phone came up, or its screen has become another one. */
        welcome(/** @type {any} */ phone) {
            application = phone.application;
            if (!phone.screen) {
                return;
            }
            const { device, width, height, scale, front } = phone.screen;
            const names = device ? phone.devices : ["", ...phone.devices];
            model.replaceChildren(
                ...names.map((/** @type {string} */ name) =>
                    element("option", { value: name, selected: name === device }, name || word("otherDevice"))),
            );
            facts.textContent = `${width} × ${height} @ ${scale}× · ${word(front)}`;
            panel.replaceChildren(
                element("p", { class: "hint" }, word("deviceHint")),
                element("ul", { class: "card" }, row("model", model), row("textSize", size)),
                facts,
                element("button", { id: "shake", onclick: shake }, word("shake")),
            );
        },
    };
}
