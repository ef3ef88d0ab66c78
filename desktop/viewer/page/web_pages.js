// @ts-check
// What is in the web views of the phone: the phone itself fetches no page, the browser does.
import { element } from "./element.js";
import { word } from "./words.js";

/**
 * A web page in its place on the screen. It runs locked in, as nobody's page; one that refuses to
 * be framed can be opened beside this one.
 * @param {{address: string, frame: number[]}} page
 */
function framed({ address, frame: [x, y, width, height] }) {
    const place = element(
        "div",
        { class: "web-page" },
        element("iframe", {
            src: address, title: address, sandbox: "allow-scripts allow-forms", referrerpolicy: "no-referrer",
        }),
        element(
            "a",
            { class: "button", href: address, target: "_blank", rel: "noopener noreferrer" },
            word("openBeside"),
        ),
    );
    Object.assign(place.style, {
        left: `calc(${x}px * var(--zoom))`,
        top: `calc(${y}px * var(--zoom))`,
        width: `${width}px`,
        height: `${height}px`,
    });
    return place;
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
