// @ts-check
// What is in the film views of the phone: the phone shows a picture of each, the browser plays it.
import { element } from "./element.js";
import { overScreen } from "./over_screen.js";
import { word } from "./words.js";

/**
 * A player in the film's place on the screen.
 * @param {{event: number, frame: number[]}} film
 */
function player({ event, frame }) {
    return overScreen(
        element("video", {
            class: "film", src: `file/${event}`, controls: true, playsinline: true, "aria-label": word("film"),
        }),
        frame,
    );
}

/**
 * Keeps the players over the screen as the films are on the phone.
 * @param {HTMLElement} glass
 * @param {import("./connection.js").Connection} connection
 */
export function showFilms(glass, connection) {
    const remove = () => glass.querySelectorAll(".film").forEach((former) => former.remove());
    connection.addEventListener("films", (event) => {
        remove();
        const { films } = /** @type {CustomEvent} */ (event).detail;
        glass.append(...films.map(player));
    });
    connection.addEventListener("welcome", remove);
}
