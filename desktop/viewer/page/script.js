// @ts-check
// What a page does to the phone as a script: lines of the automation protocol that do it again.

/** Commands that only look, or that name objects by handles, which another run does not have. */
const leftOut = new Set(["find", "tree", "wait", "events", "screenshot", "send", "make", "film"]);

/** @type {Record<string, string>} */
const keys = { enter: "return", deleteBackward: "delete" };

/** The messages of a page, one after the other, with the time between them. */
export class Script {
    /** @type {object[]} */
    #requests = [];
    /** What an input method has shown so far. @type {string[]} */
    #composed = [];
    #last;

    /** @param {number} now milliseconds of any clock */
    constructor(now) {
        this.#last = now;
    }

    /** Takes a message that the page has sent at that time; what changes nothing is left out. */
    take(/** @type {any} */ message, /** @type {number} */ now) {
        const request = this.#requestFor(message);
        if (!request) {
            return;
        }
        const seconds = Math.round(now - this.#last) / 1000;
        if (seconds > 0) {
            this.#requests.push({ do: "advance", seconds });
        }
        this.#last = now;
        this.#requests.push(request);
    }

    /** One request a line. */
    get text() {
        return this.#requests.map((request) => `${JSON.stringify(request)}\n`).join("");
    }

    /** @returns {object | null} */
    #requestFor(/** @type {any} */ message) {
        switch (message.type) {
            case "fingers":
                return { do: "touch", phase: message.phase, points: message.points };
            case "wheel":
                return { do: "wheel", at: [message.x, message.y], by: [message.byX, message.byY] };
            case "press":
                return { do: "key", name: keys[message.key] ?? message.key };
            case "insert":
                return this.#typed(message.text);
            case "compose":
                this.#composed.push(message.text);
                return message.text === "" ? this.#typed("") : null;
            case "ask":
                return asked(message.request);
            default:
                return null;
        }
    }

    /** What was composed before the text belongs to it. */
    #typed(/** @type {string} */ text) {
        const compose = this.#composed.filter((step) => step !== "");
        this.#composed = [];
        return compose.length > 0 ? { do: "type", text, compose } : { do: "type", text };
    }
}

/** A command that changes something has arguments, or is a shake. */
function asked(/** @type {{id: number, do: string}} */ { id, ...request }) {
    const changes =
        request.do === "shake" ||
        (Object.keys(request).length > 1 && !leftOut.has(request.do));
    return changes ? request : null;
}
