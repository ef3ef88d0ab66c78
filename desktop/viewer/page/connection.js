// @ts-check
// The connection with the phone: one WebSocket, opened again whenever it is lost.

const retryMilliseconds = 700;
/** The listening socket outlives the phone's processes: whoever is refused that often finds no host. */
const mostRefusals = 2;

/** Texts that have no UTF-8 form come as their units, which are at home in JavaScript's strings. */
function revived(/** @type {string} */ _, /** @type {any} */ value) {
    const isUnits = Array.isArray(value?.units) && Object.keys(value).length === 1;
    return isUnits
        ? value.units.map((/** @type {number} */ unit) => String.fromCharCode(unit)).join("")
        : value;
}

/**
 * Dispatches a CustomEvent for each message of the phone, named by its type, with the message as its
 * detail; "sent" with what this page has said; "frame" with the bytes of a frame; and "state" whenever
 * that changes: "connecting"; "connected", with the phone in this page's hand; "watching", with it in
 * another's; "resting" when the application crashes again and again; "ended" when there is no host any
 * more.
 */
export class Connection extends EventTarget {
    /** @type {WebSocket | null} */
    #socket = null;
    /** @type {Map<number, {resolve: (result: any) => void, reject: (error: Error) => void}>} */
    #asked = new Map();
    #lastId = 0;
    #refusals = 0;
    #state = "";

    open() {
        const address = new URL("socket", location.href);
        address.protocol = "ws:";
        const socket = new WebSocket(address);
        socket.binaryType = "arraybuffer";
        socket.onmessage = ({ data }) => this.#receive(data);
        socket.onopen = () => {
            this.#refusals = 0;
        };
        socket.onclose = () => this.#closed();
        this.#socket = socket;
    }

    /** Sends a message; it is lost while there is no connection. */
    send(/** @type {object} */ message) {
        if (this.#socket?.readyState === WebSocket.OPEN) {
            this.#socket.send(JSON.stringify(message));
            this.#tell("sent", message);
        }
    }

    /**
     * Carries out a command of the automation protocol.
     * @param {string} command
     * @param {object} [given] its arguments
     * @returns {Promise<any>} its result; rejected with what the phone says against it
     */
    ask(command, given = {}) {
        return new Promise((resolve, reject) => {
            if (this.#state !== "connected") {
                reject(new Error("not connected"));
                return;
            }
            const id = ++this.#lastId;
            this.#asked.set(id, { resolve, reject });
            this.send({ type: "ask", request: { do: command, ...given, id } });
        });
    }

    #receive(/** @type {string | ArrayBuffer} */ data) {
        if (data instanceof ArrayBuffer) {
            this.#tell("frame", data);
            return;
        }
        const message = JSON.parse(data, revived);
        if (message.type === "answer") {
            this.#answered(message.response);
            return;
        }
        if (message.type === "resting") {
            this.#become("resting");
        } else if ("hand" in message) {
            this.#become(message.hand ? "connected" : "watching");
        }
        this.#tell(message.type, message);
    }

    #answered(/** @type {{id: number, ok: boolean, result?: any, error?: string}} */ response) {
        const waiting = this.#asked.get(response.id);
        this.#asked.delete(response.id);
        if (response.ok) {
            waiting?.resolve(response.result);
        } else {
            waiting?.reject(new Error(response.error));
        }
    }

    #closed() {
        for (const { reject } of this.#asked.values()) {
            reject(new Error("the connection was lost"));
        }
        this.#asked.clear();
        this.#refusals += 1;
        this.#become(this.#refusals > mostRefusals ? "ended" : "connecting");
        setTimeout(() => this.open(), retryMilliseconds * Math.min(this.#refusals, 8));
    }

    #become(/** @type {string} */ state) {
        if (state !== this.#state) {
            this.#state = state;
            this.#tell("state", state);
        }
    }

    #tell(/** @type {string} */ name, /** @type {any} */ detail) {
        this.dispatchEvent(new CustomEvent(name, { detail }));
    }
}
