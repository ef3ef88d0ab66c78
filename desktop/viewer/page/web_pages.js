// @ts-check
// What is in the web views of the phone: the phone itself fetches no page, the browser does, and what is
// not on this machine only when a person asks for it.
import { element } from "./element.js";
import { overScreen } from "./over_screen.js";
import { word } from "./words.js";

/** The sites that a person has asked for. @type {Set<string>} */
const wanted = new Set();

/** The site of an address; empty for what is none. */
function siteOf(/** @type {string} */ address) {
    return URL.canParse(address) ? new URL(address).origin : "";
}

/** Whether loading it asks nobody but this machine. */
function isHere(/** @type {string} */ address) {
    const names = ["localhost", "127.0.0.1", "[::1]"];
    return !URL.canParse(address) || names.includes(new URL(address).hostname) ||
        ["about:", "data:"].includes(new URL(address).protocol);
}

/** It runs locked in, as nobody's page; one that refuses to be framed can be opened beside this one. */
function loaded(/** @type {string} */ address) {
    return [
        element("iframe", {
            src: address, title: address, sandbox: "allow-scripts allow-forms", referrerpolicy: "no-referrer",
        }),
        element(
            "a",
            { class: "button", href: address, target: "_blank", rel: "noopener noreferrer" },
            word("openBeside"),
        ),
    ];
}

/** Says where the page is, and offers to load it. */
function offered(/** @type {string} */ address, /** @type {() => void} */ load) {
    return element(
        "div",
        { class: "offer" },
        element("p", {}, word("outside")),
        element("code", {}, address),
        element("button", { onclick: load }, word("loadOutside")),
    );
}

/**
 * A web page in its place on the screen.
 * @param {{address: string, frame: number[]}} page
 */
function framed({ address, frame }) {
    const load = () => {
        wanted.add(siteOf(address));
        place.replaceChildren(...loaded(address));
    };
    const mayLoad = isHere(address) || wanted.has(siteOf(address));
    const place = element(
        "div", { class: "web-page" }, ...(mayLoad ? loaded(address) : [offered(address, load)]));
    return overScreen(place, frame);
}

/**
 * Keeps the web pages over the screen as they are on the phone.
 * @param {HTMLElement} glass
 * @param {import("./connection.js").Connection} connection
 */
export function showWebPages(glass, connection) {
    connection.addEventListener("webPages", (event) => {
        glass.querySelectorAll(".web-page").forEach((former) => former.remove());
        const { pages } = /** @type {CustomEvent} */ (event).detail;
        glass.append(...pages.map(framed));
    });
    connection.addEventListener("welcome", () => {
        glass.querySelectorAll(".web-page").forEach((former) => former.remove());
    });
}
