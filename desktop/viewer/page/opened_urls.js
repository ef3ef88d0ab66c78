// @ts-check
// Tells which address the phone has opened in another application. The page opens none of them.
import { whenThereIsNews } from "./news.js";
import { word } from "./words.js";

/**
 * @param {import("./connection.js").Connection} connection
 * @param {(text: string) => void} tell shows a line for a moment
 */
export function tellOpenedUrls(connection, tell) {
    whenThereIsNews(connection, (events) => {
        const opened = events.findLast(({ kind }) => kind === "openURL");
        if (opened) {
            tell(word("openedIn").replace("{application}", () => opened.by) + opened.url);
        }
    });
}
