// @ts-check
// Tells which address the phone has opened in another application. The page opens none of them.
import { word } from "./words.js";

/**
 * What happened before the page came, which the phone tells right after its welcome, is over.
 * @param {import("./connection.js").Connection} connection
 * @param {(text: string) => void} tell shows a line for a moment
 */
export function tellOpenedUrls(connection, tell) {
    let isOver = true;
    connection.addEventListener("welcome", () => {
        isOver = true;
    });
    connection.addEventListener("events", (event) => {
        const { events } = /** @type {CustomEvent} */ (event).detail;
        const opened = events.findLast((/** @type {any} */ { kind }) => kind === "openURL");
        if (opened && !isOver) {
            tell(word("openedIn").replace("{application}", () => opened.by) + opened.url);
        }
        isOver = false;
    });
}
