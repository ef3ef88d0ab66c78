// @ts-check
// What the phone did to the outside, newest first; sounds can be heard, films and pictures seen, files downloaded.
import { element } from "../element.js";
import { word } from "../words.js";

/** @typedef {{kind: string, number: number, file?: string, [key: string]: any}} PhoneEvent */

const mostShown = 200;

export function eventsPanel() {
    /** @type {PhoneEvent[]} */
    let events = [];
    let chosen = "";
    const kinds = element("div", { class: "kinds", role: "group", "aria-label": word("events") });
    const list = element("ul", { class: "card events" });
    const panel = element(
        "div",
        { class: "panel" },
        element("p", { class: "hint" }, word("eventsHint")),
        kinds,
        list,
    );

    const choice = (/** @type {string} */ kind) =>
        element(
            "button",
            {
                "aria-pressed": String(kind === chosen),
                onclick: () => {
                    chosen = kind;
                    show();
                },
            },
            kind || word("allEvents"),
        );

    const show = () => {
        const present = [...new Set(events.map(({ kind }) => kind))].sort();
        kinds.replaceChildren(...["", ...present].map(choice));
        const shown = events.filter(({ kind }) => !chosen || kind === chosen);
        list.replaceChildren(...shown.slice(-mostShown).reverse().map(row));
        if (shown.length === 0) {
            list.append(element("li", { class: "empty" }, word("noEvents")));
        }
    };

    show();
    return {
        panel,
        welcome() {
            events = [];
            show();
        },
        add(/** @type {PhoneEvent[]} */ added) {
            events.push(...added);
            show();
        },
    };
}

function row(/** @type {PhoneEvent} */ event) {
    const { kind, number, file, ...fields } = event;
    const line = element(
        "li",
        {},
        element("span", { class: `kind ${kind}` }, kind),
        element("span", { class: "fields" }, describe(fields)),
    );
    if (file && kind !== "speechStarted") { // its sound is with the speech
        line.append(attachment(number, file));
    }
    return line;
}

function describe(/** @type {Record<string, any>} */ fields) {
    const entries = Object.entries(fields);
    const write = (/** @type {any} */ value) =>
        typeof value === "string" ? value : JSON.stringify(value);
    return entries.length === 1
        ? write(entries[0][1])
        : entries.map(([name, value]) => `${name}: ${write(value)}`).join(" · ");
}

function attachment(/** @type {number} */ number, /** @type {string} */ file) {
    const source = `file/${number}`;
    if (file.endsWith(".wav")) {
        return element("audio", { controls: true, preload: "none", src: source });
    }
    if (file.endsWith(".webm")) {
        return element("video", { controls: true, preload: "metadata", src: source });
    }
    const name = file.slice(file.lastIndexOf("/") + 1);
    const link = element("a", { href: source, download: name }, `${word("download")} ${name}`);
    if (file.endsWith(".png")) {
        link.prepend(element("img", { src: source, alt: name, loading: "lazy" }));
    }
    return link;
}
