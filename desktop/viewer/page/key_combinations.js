// @ts-check
// What keys mean that are pressed together, as people know them from the machine's own text fields.

const isMac = /^(Mac|iP)/.test(navigator.platform);

/**
 * Where keys take the caret: alone, with the key for words (Option or Ctrl), with the one for ends
 * (Command).
 * @type {Record<string, (string | null)[]>}
 */
const places = {
    ArrowLeft: ["left", "wordLeft", "lineStart"],
    ArrowRight: ["right", "wordRight", "lineEnd"],
    ArrowUp: ["up", null, "start"],
    ArrowDown: ["down", null, "end"],
    Home: isMac ? ["start", null, null] : ["lineStart", "start", null],
    End: isMac ? ["end", null, null] : ["lineEnd", "end", null],
};

/**
 * Up to where they erase, with the same keys.
 * @type {Record<string, (string | null)[]>}
 */
const erased = {
    Backspace: ["left", "wordLeft", "lineStart"],
    Delete: ["right", "wordRight", "lineEnd"],
};

/** @type {Record<string, string>} */
const edits = { a: "selectAll", c: "copy", x: "cut", z: "undo", y: "redo", Insert: "copy" };

/** The letter on the key, where the keyboard is not a Latin one too. */
function letterOf(/** @type {KeyboardEvent} */ event) {
    return /^[a-z]$/i.test(event.key) || !event.code.startsWith("Key")
        ? event.key.replace(/^[A-Z]$/, (letter) => letter.toLowerCase())
        : event.code.slice(3).toLowerCase();
}

function editOf(/** @type {KeyboardEvent} */ event) {
    const name = edits[letterOf(event)];
    return name === "undo" && event.shiftKey ? "redo" : name;
}

/**
 * The `key` command of the automation protocol that the keys mean; null when they mean text, or
 * nothing on a phone.
 * @param {KeyboardEvent} event
 * @returns {{name: string, to?: string, select?: boolean} | null}
 */
export function commandOf(event) {
    const forWords = isMac ? event.altKey : event.ctrlKey;
    const forEnds = isMac && event.metaKey;
    if (isMac ? event.ctrlKey : event.altKey || event.metaKey) {
        return null;
    }
    const reach = forEnds ? 2 : forWords ? 1 : 0;
    if (event.key in places) {
        const to = places[event.key][reach];
        return to ? { name: "move", to, select: event.shiftKey } : null;
    }
    if (event.key === "Delete" && event.shiftKey && !isMac) {
        return { name: "cut" };
    }
    if (event.key in erased) {
        return { name: "delete", to: erased[event.key][reach] ?? "left" };
    }
    const name = (isMac ? event.metaKey : event.ctrlKey) ? editOf(event) : undefined;
    return name ? { name } : null;
}
