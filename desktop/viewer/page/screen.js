// @ts-check
// The phone's screen on a canvas: as sharp as the display allows, drawn place by place.
import { unpack } from "./unpack.js";

/** @typedef {import("./connection.js").Connection} Connection */

/**
 * Reads a frame; frame.hpp tells its form.
 * @param {ArrayBuffer} bytes
 */
function readFrame(bytes) {
    const view = new DataView(bytes);
    const count = view.getUint32(8, true);
    const places = Array.from({ length: count }, (_, index) => {
        const part = (/** @type {number} */ at) => view.getUint16(12 + 8 * index + at, true);
        return { x: part(0), y: part(2), width: part(4), height: part(6) };
    });
    const size = places.reduce((sum, { width, height }) => sum + 4 * width * height, 0);
    return {
        number: view.getUint32(0, true),
        width: view.getUint16(4, true),
        height: view.getUint16(6, true),
        places,
        pixels: unpack(new Uint8Array(bytes, 12 + 8 * count), size),
    };
}

/** Keeps a canvas like the phone's screen, and as large as its surroundings allow. Tells "turned". */
export class Screen extends EventTarget {
    /** Points of the phone, and what is around its screen, as the phone tells them. */
    size = {
        width: 390, height: 844, front: "notch", orientation: "portrait", corner: 47, home: false, locked: false,
    };
    /** CSS pixels a point. */
    zoom = 1;
    /** How many frames have been drawn. */
    frames = 0;

    #canvas;
    #connection;
    #context;
    #shownScale = 0;

    /**
     * @param {HTMLCanvasElement} canvas
     * @param {Connection} connection
     */
    constructor(canvas, connection) {
        super();
        this.#canvas = canvas;
        this.#connection = connection;
        const context = canvas.getContext("2d", { alpha: false });
        if (!context) {
            throw new Error("this browser draws no canvas");
        }
        this.#context = context;
        connection.addEventListener("frame", (event) => {
            const { detail } = /** @type {CustomEvent<ArrayBuffer>} */ (event);
            this.#show(detail);
        });
        connection.addEventListener("welcome", (event) => {
            this.size = /** @type {CustomEvent} */ (event).detail.screen;
            this.#shownScale = 0;
            this.dispatchEvent(new Event("turned"));
        });
        connection.addEventListener("screen", (event) => {
            this.size = /** @type {CustomEvent} */ (event).detail.screen;
            this.dispatchEvent(new Event("turned"));
        });
    }

    /** Takes the room that there is, in CSS pixels, but not more than a point for a point. */
    fitInto(/** @type {number} */ width, /** @type {number} */ height) {
        this.zoom = Math.max(
            0.3,
            Math.min(1.25, width / this.size.width, height / this.size.height),
        );
        this.fit();
    }

    /** Asks for as many pixels as the display has for the canvas, but not more than a phone has. */
    fit() {
        const wanted = Math.min(3, Math.max(0.5, this.zoom * devicePixelRatio));
        document.documentElement.style.setProperty("--zoom", String(this.zoom));
        // As the phone rounds: whole pixels of the display, or the browser would blur them.
        const length = (/** @type {number} */ points) => (Math.round(points * wanted) / wanted) * this.zoom;
        this.#canvas.style.width = `${length(this.size.width)}px`;
        this.#canvas.style.height = `${length(this.size.height)}px`;
        if (wanted !== this.#shownScale) {
            this.#shownScale = wanted;
            this.#connection.send({ type: "look", scale: wanted });
        }
    }

    /** A point of the screen, from a place in the window. */
    pointAt(/** @type {{clientX: number, clientY: number}} */ { clientX, clientY }) {
        const box = this.#canvas.getBoundingClientRect();
        const round = (/** @type {number} */ value) => Math.round(value * 100) / 100;
        return {
            x: round((clientX - box.left) / this.zoom),
            y: round((clientY - box.top) / this.zoom),
        };
    }

    #show(/** @type {ArrayBuffer} */ bytes) {
        const { number, width, height, places, pixels } = readFrame(bytes);
        if (this.#canvas.width !== width || this.#canvas.height !== height) {
            this.#canvas.width = width;
            this.#canvas.height = height;
        }
        let from = 0;
        for (const place of places) {
            const size = 4 * place.width * place.height;
            const data = new Uint8ClampedArray(pixels.buffer, from, size);
            this.#context.putImageData(new ImageData(data, place.width), place.x, place.y);
            from += size;
        }
        this.frames += 1;
        this.#connection.send({ type: "seen", picture: number });
    }
}
