// @ts-check
// What the page says about a web page on the phone, outside of the phone's screen, where nothing that an
// application shows can pass for it.
import { element } from "./element.js";
import { word } from "./words.js";

/** @typedef {import("./web_pages.js").WebPage} WebPage */

const isHere = (/** @type {string} */ host) => /^(localhost|127\.[\d.]+)(:\d+)?$/.test(host);

/** The site's name, or the beginning of an address that has none. */
const hostOf = (/** @type {WebPage} */ { site, address }) =>
    site.slice(site.indexOf("//") + 2) || address.slice(0, 40);

/** Which words tell what a click would do, or has done. */
function wordsFor(/** @type {WebPage} */ page, /** @type {boolean} */ isLoaded) {
    if (!page.site) {
        return "notLoaded";
    }
    return isLoaded ? "loadedFrom" : isHere(hostOf(page)) ? "staysHere" : "leavesMachine";
}

/**
 * Before the click, no link leads outside: browsers may look up the names in links.
 * @param {WebPage} page
 * @param {boolean} isLoaded
 * @param {() => void} toggle
 */
function controls({ site, address }, isLoaded, toggle) {
    if (!site) {
        return [];
    }
    const button = element(
        "button", { class: isLoaded ? "" : "main", onclick: toggle }, word(isLoaded ? "standIn" : "loadOutside"));
    const beside = () =>
        element(
            "a", { class: "button", href: address, target: "_blank", rel: "noopener noreferrer" }, word("openBeside"));
    return isLoaded ? [button, beside()] : [button];
}

/**
 * @param {WebPage} page
 * @param {boolean} isLoaded whether its site itself is shown
 * @param {() => void} toggle loads it from there, or goes back to the stand-in
 */
export function webPageRow(page, isLoaded, toggle) {
    const said = word(wordsFor(page, isLoaded)).replace("{host}", () => hostOf(page));
    return element(
        "li",
        { class: isLoaded ? "outside" : "" },
        element(
            "div",
            { class: "names" },
            element("b", {}, `${word(isLoaded ? "loadedOutside" : "playedHere")} · ${hostOf(page)}`),
            element("small", {}, said),
            element("code", { tabindex: 0, title: page.address.slice(0, 2000) }, page.address),
        ),
        element("div", { class: "buttons" }, ...controls(page, isLoaded, toggle)),
    );
}
