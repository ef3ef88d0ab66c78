// @ts-check
// What is in the web views of the phone: a page of our own service, which plays the site's, until a
// person asks for the site itself.
import { element } from "./element.js";
import { moveOverScreen, overScreen } from "./over_screen.js";
import { webPageRow } from "./web_page_row.js";

/**
 * As the phone tells it; "site" is empty when no browser is to load it.
 * @typedef {{view: number, load: number, address: string, site: string, appearance: string,
 *     frame: number[]}} WebPage
 */

/** Keeps frames over the screen and rows below it as the web pages are on the phone. */
export class WebPages {
    #glass;
    #rows;
    /** @type {WebPage[]} */
    #pages = [];
    /** What a person has asked for: a view and the site that it shows. @type {Set<string>} */
    #wanted = new Set();
    /** By what is in them, since one that is made anew loads anew. @type {Map<string, HTMLElement>} */
    #frames = new Map();

    /**
     * @param {HTMLElement} glass
     * @param {HTMLElement} rows
     * @param {import("./connection.js").Connection} connection
     */
    constructor(glass, rows, connection) {
        this.#glass = glass;
        this.#rows = rows;
        connection.addEventListener("webPages", (event) => {
            this.#become(/** @type {CustomEvent} */ (event).detail.pages);
        });
        connection.addEventListener("welcome", () => {
            this.#wanted.clear(); // another process counts its views anew
            this.#become([]);
        });
    }

    /** In the language of the page. */
    show() {
        this.#showFrames();
        this.#rows.replaceChildren(
            ...this.#pages.map((page) => webPageRow(page, this.#isWanted(page), () => this.#toggle(page))));
    }

    #become(/** @type {WebPage[]} */ pages) {
        this.#pages = pages;
        this.show();
    }

    #showFrames() {
        const wanted = new Map(this.#pages.map((page) => [this.#sourceOf(page), page.frame]));
        for (const [source, frame] of this.#frames) {
            if (!wanted.has(source)) {
                frame.remove();
                this.#frames.delete(source);
            }
        }
        for (const [source, place] of wanted) {
            const present = this.#frames.get(source);
            if (present) {
                moveOverScreen(present, place);
            } else {
                this.#frames.set(source, this.#add(source, place));
            }
        }
    }

    /** It runs locked in, as nobody's page, and a stand-in does not even run. */
    #add(/** @type {string} */ source, /** @type {number[]} */ place) {
        const isOutside = source.endsWith("/outside");
        const frame = element("iframe", {
            class: isOutside ? "web-page outside" : "web-page",
            src: source,
            sandbox: isOutside ? "allow-scripts allow-forms" : "",
            referrerpolicy: "no-referrer",
            tabindex: isOutside ? 0 : -1,
        });
        this.#glass.append(overScreen(frame, place));
        return frame;
    }

    #sourceOf(/** @type {WebPage} */ page) {
        return `web/${page.load}/${this.#isWanted(page) ? "outside" : page.appearance}`;
    }

    #isWanted(/** @type {WebPage} */ { view, site }) {
        return this.#wanted.has(`${view} ${site}`);
    }

    #toggle(/** @type {WebPage} */ { view, site }) {
        const key = `${view} ${site}`;
        if (!this.#wanted.delete(key)) {
            this.#wanted.add(key);
        }
        this.show();
    }
}
