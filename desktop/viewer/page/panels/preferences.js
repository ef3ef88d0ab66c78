// @ts-check
// Every preference, as the phone's settings would show it.
import { element } from "../element.js";
import { language, word } from "../words.js";

/** @typedef {import("../connection.js").Connection} Connection */
/**
 * @typedef {object} Preference
 * @property {string} key
 * @property {"switch" | "number" | "text"} type
 * @property {string} zh
 * @property {string} en
 * @property {string | number} [default] what holds when there is no value
 */
/** @typedef {{zh: string, en: string, preferences: Preference[]}} Group */

/** @type {Promise<Group[]>} */
const description = fetch("preferences.json")
    .then((response) => response.json())
    .then((panes) => panes.flatMap((/** @type {{groups: Group[]}} */ { groups }) => groups));

/** @param {Connection} connection */
export function preferencesPanel(connection) {
    const groups = element("div");
    const search = element("input", {
        type: "search",
        placeholder: word("search"),
        "aria-label": word("search"),
        oninput: () => show(),
    });
    const panel = element(
        "div",
        { class: "panel" },
        element("p", { class: "hint" }, word("preferencesHint")),
        search,
        groups,
    );
    /** @type {Record<string, any>} */
    let values = {};

    const write = async (/** @type {string} */ key, /** @type {any} */ value) => {
        values = (await connection.ask("preferences", { set: { [key]: value } })) ?? {};
    };

    const control = (/** @type {Preference} */ { key, type, default: placeholder }, /** @type {string} */ id) => {
        if (type === "switch") {
            return element("input", {
                id,
                type: "checkbox",
                role: "switch",
                checked: isOn(values[key]),
                onchange: ({ target }) => write(key, target.checked),
            });
        }
        const isNumber = type === "number";
        return element("input", {
            id,
            type: isNumber ? "number" : "text",
            step: isNumber ? "any" : undefined,
            placeholder,
            value: values[key] ?? "",
            onchange: ({ target }) => write(key, entered(target.value, isNumber)),
        });
    };

    const row = (/** @type {Preference} */ preference) => {
        const id = `preference-${preference.key}`;
        const title = preference[language];
        return element(
            "li",
            {},
            element(
                "label",
                { for: id, class: "names" },
                element("span", {}, title),
                preference.key === title ? "" : element("small", {}, preference.key),
            ),
            control(preference, id),
        );
    };

    const matches = (/** @type {Preference} */ { key, zh, en }) =>
        [key, zh, en].some((text) => text.toLowerCase().includes(search.value.toLowerCase()));

    const show = async () => {
        const shown = (await description)
            .map((group) => ({ ...group, preferences: group.preferences.filter(matches) }))
            .filter(({ preferences }) => preferences.length > 0);
        groups.replaceChildren(
            ...shown.map((group) =>
                element(
                    "section",
                    {},
                    element("h3", {}, group[language]),
                    element("ul", { class: "card preferences" }, ...group.preferences.map(row)),
                ),
            ),
        );
        if (shown.length === 0) {
            groups.append(element("p", { class: "empty" }, word("nothingFound")));
        }
    };

    return {
        panel,
        async refresh() {
            values = (await connection.ask("preferences")) ?? {};
            await show();
        },
    };
}

/** Whether the library reads such a value as on: by its number, or by how its text begins. */
export function isOn(/** @type {any} */ value) {
    return typeof value === "string" ? /^\s*[+-]?0*[1-9YyTt]/.test(value) : Boolean(value);
}

/** What is written for an entered text; null, which removes the key, for none. */
function entered(/** @type {string} */ text, /** @type {boolean} */ isNumber) {
    if (text === "") {
        return null;
    }
    return isNumber ? Number(text) : text;
}
