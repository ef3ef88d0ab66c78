// @ts-check
// The inspector: tells of the view under the mouse what it is, and changes the one that was clicked.
import { element } from "./element.js";
import { rulesAbout, storedRules } from "./stored_rules.js";
import { word } from "./words.js";

/** @typedef {import("./connection.js").Connection} Connection */
/** @typedef {import("./screen.js").Screen} Screen */
/** @typedef {any} ViewNode a node of the protocol, with its "hooks" */

/** How the text that a node tells is set: its key, and the message with what follows the text. */
const setters = [
    { key: "text", selector: "setText:", rest: [] },
    { key: "title", selector: "setTitle:forState:", rest: [0] },
];

const numbers = (/** @type {number[]} */ list) =>
    list.map((number) => Math.round(number * 100) / 100).join(", ");

/** Over the glass while it inspects, so that no finger reaches the phone. */
export class Inspector {
    #connection;
    #screen;
    #attempt;
    #card;
    #button;
    #cover;
    #outline = element("div", { class: "outline" });
    /** @type {ViewNode | null} */
    #view = null;
    #isHeld = false;
    /** @type {import("./stored_rules.js").Rule[]} */
    #rules = [];
    /** Where the mouse is that nobody has asked about yet. @type {{x: number, y: number} | null} */
    #next = null;
    #isAsking = false;

    /**
     * @param {HTMLElement} glass
     * @param {HTMLElement} card where it tells
     * @param {HTMLElement} button that starts and ends it
     * @param {Screen} screen
     * @param {Connection} connection
     * @param {(work: () => any) => void} attempt does what may fail and tells if it does
     */
    constructor(glass, card, button, screen, connection, attempt) {
        this.#connection = connection;
        this.#screen = screen;
        this.#attempt = attempt;
        this.#card = card;
        this.#button = button;
        this.#cover = element("div", { class: "inspector", hidden: true }, this.#outline);
        for (const kind of ["pointerdown", "pointerup", "pointermove", "wheel"]) {
            this.#cover.addEventListener(kind, (event) => event.stopPropagation());
        }
        this.#cover.addEventListener("pointermove", (event) => this.#look(event));
        this.#cover.addEventListener("click", (event) => this.#hold(event));
        glass.append(this.#cover);
        button.onclick = () => this.toggle();
        connection.addEventListener("welcome", () => this.#forget());
    }

    toggle() {
        this.#cover.hidden = !this.#cover.hidden;
        this.#button.setAttribute("aria-pressed", String(!this.#cover.hidden));
        this.#forget();
        if (!this.#cover.hidden) {
            this.#attempt(async () => {
                this.#rules = await storedRules(this.#connection);
            });
        }
    }

    /** Tells of the view again, in the language of the page. */
    show() {
        this.#card.hidden = this.#cover.hidden;
        this.#outline.hidden = !this.#view;
        this.#outline.classList.toggle("held", this.#isHeld);
        if (!this.#view) {
            this.#card.replaceChildren(element("p", { class: "hint" }, word("inspectHint")));
            return;
        }
        const [x, y, width, height] = this.#view.rect;
        const zoom = (/** @type {number} */ points) => `${points * this.#screen.zoom}px`;
        Object.assign(this.#outline.style, {
            left: zoom(x), top: zoom(y), width: zoom(width), height: zoom(height),
        });
        this.#card.replaceChildren(
            facts(this.#view, this.#rules),
            this.#isHeld ? this.#changes(this.#view) : element("p", { class: "hint" }, word("inspectHint")),
        );
    }

    #forget() {
        this.#view = null;
        this.#isHeld = false;
        this.#next = null;
        this.show();
    }

    /** One question at a time, and none about places that the mouse has left meanwhile. */
    #look(/** @type {PointerEvent} */ event) {
        if (this.#isHeld) {
            return;
        }
        this.#next = this.#screen.pointAt(event);
        if (!this.#isAsking) {
            this.#isAsking = true;
            this.#attempt(() => this.#askNext().finally(() => {
                this.#isAsking = false;
            }));
        }
    }

    async #askNext() {
        while (this.#next) {
            const { x, y } = this.#next;
            this.#next = null;
            const view = await this.#connection.ask("at", { point: [x, y] });
            if (!this.#isHeld && !this.#cover.hidden) {
                this.#view = view;
                this.show();
            }
        }
    }

    /** A click holds the view under it; the next one lets go. */
    #hold(/** @type {MouseEvent} */ event) {
        if (this.#isHeld) {
            this.#forget();
            return;
        }
        this.#isHeld = true;
        const { x, y } = this.#screen.pointAt(event);
        this.#attempt(async () => {
            this.#rules = await storedRules(this.#connection);
            this.#view = await this.#connection.ask("at", { point: [x, y] });
            this.#isHeld = Boolean(this.#view);
            this.show();
            this.#card.scrollIntoView({ block: "nearest" });
        });
    }

    /** What can be changed of the view that is held. */
    #changes(/** @type {ViewNode} */ view) {
        const setter = setters.find(({ key }) => typeof view[key] === "string");
        const hide = element(
            "button",
            { id: "hide-view", onclick: () => this.#send(view, "setHidden:", [!view.hidden]) },
            word(view.hidden ? "showView" : "hideView"),
        );
        if (!setter) {
            return element("div", { class: "buttons" }, hide);
        }
        const text = element("textarea", { id: "view-text", rows: 2, "aria-label": word("text") });
        text.value = view[setter.key];
        const set = () => this.#send(view, setter.selector, [text.value, ...setter.rest]);
        return element(
            "div",
            {},
            text,
            element("div", { class: "buttons" },
                element("button", { class: "main", onclick: set }, word("setText")), hide),
        );
    }

    #send(/** @type {ViewNode} */ view, /** @type {string} */ selector, /** @type {any[]} */ args) {
        this.#attempt(async () => {
            await this.#connection.ask("send", { to: view, selector, args });
            const { children: _, ...now } = await this.#connection.ask("tree", { of: view });
            this.#view = { ...now, hooks: view.hooks };
            this.show();
        });
    }
}

/** @param {ViewNode} view @param {import("./stored_rules.js").Rule[]} rules */
function facts(view, rules) {
    const text = view.text ?? view.title ?? null;
    const about = text === null ? [] : rulesAbout(rules, text);
    const list = (/** @type {string[]} */ lines) =>
        lines.length > 0 ? lines.map((line) => element("code", {}, line)) : [word("none")];
    return element(
        "dl",
        { class: "card" },
        element("dt", {}, word("viewClass")),
        element("dd", {}, element("code", {}, view.class)),
        element("dt", {}, word("viewFrame")),
        element("dd", {}, element("code", {}, numbers(view.frame))),
        ...(text === null ? [] : [element("dt", {}, word("text")), element("dd", {}, text)]),
        element("dt", {}, word("hooks")),
        element("dd", { class: "lines" }, ...list(view.hooks)),
        element("dt", {}, word("rules")),
        element("dd", { class: "lines" },
            ...list(about.map(({ key, marker, value }) => key + marker + value))),
    );
}
