// @ts-check
// The button that records: the phone's screen as a film, and what the page does to it as a script.
import { element } from "./element.js";
import { Script } from "./script.js";
import { word } from "./words.js";

/**
 * @param {HTMLElement} button
 * @param {import("./connection.js").Connection} connection
 * @param {(work: () => any) => void} attempt does what may fail and tells if it does
 */
export function recordPhone(button, connection, attempt) {
    /** @type {Script | null} */
    let script = null;
    /** The numbers of the films that are there to be fetched, by their files. @type {Map<string, number>} */
    const films = new Map();

    const show = () => {
        button.setAttribute("aria-pressed", String(script !== null));
        button.title = word(script ? "stopRecording" : "record");
        button.ariaLabel = button.title;
    };
    const become = (/** @type {Script | null} */ next) => {
        script = next;
        show();
    };
    const stop = async (/** @type {Script} */ recorded) => {
        become(null);
        const { file } = await connection.ask("film", { films: false });
        const number = await numberOf(file);
        showRecording(`file/${number}`, recorded.text);
    };
    /** The event that carries the film may come after the answer. @returns {Promise<number>} */
    const numberOf = (/** @type {string} */ file) =>
        new Promise((found) => {
            const look = () => {
                const number = films.get(file);
                if (number !== undefined) {
                    connection.removeEventListener("events", look);
                    found(number);
                }
            };
            connection.addEventListener("events", look);
            look();
        });

    /** A page that was reloaded has left its film running. */
    const end = (/** @type {{films: boolean}} */ { films: runs }) =>
        runs ? connection.ask("film", { films: false }) : null;

    connection.addEventListener("events", (event) => {
        for (const { kind, file, number } of /** @type {CustomEvent} */ (event).detail.events) {
            if (kind === "film") {
                films.set(file, number);
            }
        }
    });
    connection.addEventListener("sent", (event) => {
        script?.take(/** @type {CustomEvent} */ (event).detail, performance.now());
    });
    connection.addEventListener("welcome", () => become(null)); // an application that starts ends the film
    button.onclick = () =>
        attempt(async () => {
            if (script) {
                await stop(script);
            } else {
                await end(await connection.ask("film"));
                await connection.ask("film", { films: true });
                become(new Script(performance.now()));
            }
        });
    return { show };
}

/** Shows what was recorded until it is closed. */
function showRecording(/** @type {string} */ film, /** @type {string} */ script) {
    const address = URL.createObjectURL(new Blob([script], { type: "application/jsonl" }));
    const dialog = element(
        "dialog",
        { class: "recorded", "aria-labelledby": "recorded-title" },
        element("h2", { id: "recorded-title" }, word("film")),
        element("video", { controls: true, src: film }),
        element(
            "p",
            { class: "buttons" },
            element("a", { class: "button", href: film, download: "wentra.webm" }, word("downloadFilm")),
            element("a", { class: "button", href: address, download: "wentra.jsonl" }, word("downloadScript")),
        ),
        element("p", { class: "hint" }, word("scriptHint")),
        element("form", { method: "dialog" }, element("button", { class: "main" }, word("close"))),
    );
    dialog.addEventListener("close", () => {
        URL.revokeObjectURL(address);
        dialog.remove();
    });
    document.body.append(dialog);
    dialog.showModal();
}
