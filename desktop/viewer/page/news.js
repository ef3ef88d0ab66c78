// @ts-check
// What happens on the phone while the page shows it.

/**
 * Calls `take` with the events of each message. What happened before the page came, which the phone
 * tells right after its welcome, is over.
 * @param {import("./connection.js").Connection} connection
 * @param {(events: any[]) => void} take
 */
export function whenThereIsNews(connection, take) {
    let isOver = true;
    connection.addEventListener("welcome", () => {
        isOver = true;
    });
    connection.addEventListener("events", (event) => {
        if (!isOver) {
            take(/** @type {CustomEvent} */ (event).detail.events);
        }
        isOver = false;
    });
}
