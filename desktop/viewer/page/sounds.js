// @ts-check
// What the phone says and plays, heard after the click that browsers insist on. What is said is shown
// in any case.
import { whenThereIsNews } from "./news.js";
import { word } from "./words.js";

/** What no phone sounds but makes it shake: its tones are low. */
const shakes = [1519, 1520, 1521, 4095];

export class Sounds {
    #button;
    /** @type {AudioContext | null} */
    #output = null;
    /** Aborted when the phone falls silent. */
    #silence = new AbortController();

    /**
     * @param {HTMLElement} button that lets sounds be heard, or not
     * @param {import("./connection.js").Connection} connection
     * @param {(text: string) => void} tell shows a line for a moment
     */
    constructor(button, connection, tell) {
        this.#button = button;
        button.onclick = () => this.#toggle();
        connection.addEventListener("welcome", () => this.#fallSilent());
        whenThereIsNews(connection, (events) => events.forEach((event) => this.#take(event, tell)));
    }

    #toggle() {
        this.#fallSilent();
        this.#output?.close();
        this.#output = this.#output ? null : new AudioContext();
        this.#button.setAttribute("aria-pressed", String(this.#output !== null));
    }

    /** @param {any} event @param {(text: string) => void} tell */
    #take(event, tell) {
        if (event.kind === "speech") {
            tell(word("spoken") + event.text);
        } else if (event.kind === "speechStarted") {
            this.#play(`file/${event.number}`, this.#silence.signal);
        } else if (event.kind === "speechStopped") {
            this.#fallSilent();
        } else if (event.kind === "sound") {
            this.#beep(shakes.includes(event.id) ? 90 : 880);
        }
    }

    #fallSilent() {
        this.#silence.abort();
        this.#silence = new AbortController();
    }

    #beep(/** @type {number} */ frequency) {
        if (this.#output) {
            const tone = new OscillatorNode(this.#output, { frequency });
            tone.connect(this.#output.destination);
            tone.start();
            tone.stop(this.#output.currentTime + 0.1);
        }
    }

    /** @param {string} file @param {AbortSignal} signal */
    async #play(file, signal) {
        const output = this.#output;
        if (!output) {
            return;
        }
        const bytes = await (await fetch(file)).arrayBuffer();
        const source = new AudioBufferSourceNode(output, { buffer: await output.decodeAudioData(bytes) });
        if (!signal.aborted) {
            source.connect(output.destination);
            source.start();
            signal.addEventListener("abort", () => source.stop());
        }
    }
}
