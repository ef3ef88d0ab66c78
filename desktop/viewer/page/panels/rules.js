// @ts-check
// The rules that the running application has stored in its user defaults.
import { element } from "../element.js";
import { word } from "../words.js";

/** @typedef {import("../connection.js").Connection} Connection */

/** Each kind of rule, the key of its map, and how its rules are written. */
const kinds = [
    ["text", "zerk", "==="],
    ["colour", "改色zerk", "#="],
    ["size", "大小zerk", "#÷="],
    ["height", "高度zerk", "#g="],
    ["width", "宽度zerk", "#k="],
    ["horizontal", "横向zerk", "#x="],
    ["vertical", "纵向zerk", "#y="],
    ["alpha", "透明zerk", "#t="],
    ["font", "字体zerk", "#z="],
];

/** @param {Connection} connection */
export function rulesPanel(connection) {
    const list = element("div");
    const panel = element(
        "div",
        { class: "panel" },
        element("p", { class: "hint" }, word("rulesHint")),
        list,
    );

    const section = (/** @type {string} */ name, /** @type {string} */ marker, /** @type {[string, any][]} */ rules) =>
        element(
            "section",
            {},
            element("h3", {}, word(name)),
            element(
                "ul",
                { class: "card rules" },
                ...rules.map(([key, value]) =>
                    element(
                        "li",
                        {},
                        element("span", {}, key),
                        element("code", {}, marker),
                        element("span", {}, String(value)),
                    ),
                ),
            ),
        );

    return {
        panel,
        isLive: true,
        async refresh() {
            const maps = await Promise.all(
                kinds.map(([, key]) => connection.ask("defaults", { key })),
            );
            const sections = kinds
                .map(([name, , marker], index) =>
                    ({ name, marker, rules: Object.entries(maps[index] ?? {}) }))
                .filter(({ rules }) => rules.length > 0)
                .map(({ name, marker, rules }) => section(name, marker, rules));
            list.replaceChildren(
                ...(sections.length > 0
                    ? sections
                    : [element("p", { class: "empty" }, word("noRules"))]),
            );
        },
    };
}
