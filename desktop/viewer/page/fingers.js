// @ts-check
// Mouse, pen and touch as fingers on the phone.

/** @typedef {import("./connection.js").Connection} Connection */
/** @typedef {import("./screen.js").Screen} Screen */
/** @typedef {{x: number, y: number}} Point */

const mostFingers = 10;

/** Two fingers for one mouse: mirrored about a centre, which moves with them while Shift is held. */
export class MirroredFingers {
    /** @type {Point} */
    centre;
    /** @type {Point} */
    #pointer;

    constructor(/** @type {Point} */ centre) {
        this.centre = centre;
        this.#pointer = centre;
    }

    /** The mouse is there now. */
    moveTo(/** @type {Point} */ point, /** @type {boolean} */ movesCentre) {
        if (movesCentre) {
            this.centre = {
                x: this.centre.x + point.x - this.#pointer.x,
                y: this.centre.y + point.y - this.#pointer.y,
            };
        }
        this.#pointer = point;
    }

    /** @returns {Point[]} */
    points() {
        const { centre } = this;
        const pointer = this.#pointer;
        return [pointer, { x: 2 * centre.x - pointer.x, y: 2 * centre.y - pointer.y }];
    }
}

/** Listens to pointers and the wheel over the screen, and sends what the fingers do. */
export class Fingers {
    #surface;
    #marks;
    #screen;
    #connection;
    /** Which finger each pointer moves. @type {Map<number, number>} */
    #fingers = new Map();
    /** Where fingers have moved since the last frame. @type {Map<number, Point>} */
    #moved = new Map();
    #wheel = { x: 0, y: 0, byX: 0, byY: 0 };
    #isFlushing = false;
    #mirrored;
    #mirrorsNow = false;

    /**
     * @param {HTMLElement} surface that the pointers are over
     * @param {HTMLElement} marks that shows the two circles
     * @param {Screen} screen
     * @param {Connection} connection
     */
    constructor(surface, marks, screen, connection) {
        this.#surface = surface;
        this.#marks = marks;
        this.#screen = screen;
        this.#connection = connection;
        this.#mirrored = new MirroredFingers(this.#middle());
        surface.addEventListener("pointerdown", (event) => this.#down(event));
        surface.addEventListener("pointermove", (event) => this.#move(event));
        surface.addEventListener("pointerup", (event) => this.#leave(event, "ended"));
        surface.addEventListener("pointercancel", (event) => this.#leave(event, "cancelled"));
        surface.addEventListener("pointerleave", () => this.#showMarks(false));
        surface.addEventListener("wheel", (event) => this.#turn(event), { passive: false });
        surface.addEventListener("contextmenu", (event) => event.preventDefault());
        window.addEventListener("keydown", (event) => this.#modifier(event));
        window.addEventListener("keyup", (event) => this.#modifier(event));
    }

    #middle() {
        return { x: this.#screen.size.width / 2, y: this.#screen.size.height / 2 };
    }

    #send(/** @type {string} */ phase, /** @type {number[][]} */ points) {
        this.#connection.send({ type: "fingers", phase, points });
    }

    #down(/** @type {PointerEvent} */ event) {
        if (event.button !== 0 && event.pointerType === "mouse") {
            return;
        }
        const finger = [...Array(mostFingers).keys()].find((id) => !this.#isDown(id));
        if (finger === undefined) {
            return;
        }
        this.#surface.setPointerCapture(event.pointerId);
        const point = this.#screen.pointAt(event);
        const mirrors = event.pointerType === "mouse" && (event.altKey || event.ctrlKey);
        if (mirrors) {
            this.#mirrored.moveTo(point, event.shiftKey);
            this.#mirrorsNow = true;
            this.#fingers.set(event.pointerId, 0);
            this.#send("began", this.#mirroredPoints());
        } else {
            this.#fingers.set(event.pointerId, finger);
            this.#send("began", [[finger, point.x, point.y]]);
        }
        this.#showMarks(mirrors);
        event.preventDefault();
    }

    #isDown(/** @type {number} */ finger) {
        return [...this.#fingers.values()].includes(finger) || (this.#mirrorsNow && finger === 1);
    }

    #mirroredPoints() {
        return this.#mirrored.points().map(({ x, y }, finger) => [finger, x, y]);
    }

    #move(/** @type {PointerEvent} */ event) {
        const point = this.#screen.pointAt(event);
        const finger = this.#fingers.get(event.pointerId);
        if (event.pointerType === "mouse") {
            const mirrors = this.#mirrorsNow || event.altKey || event.ctrlKey;
            this.#mirrored.moveTo(point, mirrors && event.shiftKey);
            this.#showMarks(mirrors && (finger === undefined || this.#mirrorsNow));
        }
        if (finger === undefined) {
            return;
        }
        if (this.#mirrorsNow) {
            this.#mirrored.points().forEach((place, index) => this.#moved.set(index, place));
        } else {
            this.#moved.set(finger, point);
        }
        this.#flushSoon();
    }

    #leave(/** @type {PointerEvent} */ event, /** @type {string} */ phase) {
        const finger = this.#fingers.get(event.pointerId);
        if (finger === undefined) {
            return;
        }
        this.#flush();
        this.#fingers.delete(event.pointerId);
        if (this.#mirrorsNow) {
            this.#send(phase, this.#mirroredPoints());
            this.#mirrorsNow = false;
            this.#showMarks(event.altKey || event.ctrlKey);
        } else {
            const { x, y } = this.#screen.pointAt(event);
            this.#send(phase, [[finger, x, y]]);
        }
    }

    #turn(/** @type {WheelEvent} */ event) {
        event.preventDefault();
        const lineHeight = 20;
        const unit = [1, lineHeight, this.#screen.size.height][event.deltaMode];
        const { x, y } = this.#screen.pointAt(event);
        this.#wheel.x = x;
        this.#wheel.y = y;
        this.#wheel.byX += (event.deltaX * unit) / this.#screen.zoom;
        this.#wheel.byY += (event.deltaY * unit) / this.#screen.zoom;
        this.#flushSoon();
    }

    /** What moves is told once in each frame of the display. */
    #flushSoon() {
        if (!this.#isFlushing) {
            this.#isFlushing = true;
            requestAnimationFrame(() => {
                this.#isFlushing = false;
                this.#flush();
            });
        }
    }

    #flush() {
        if (this.#moved.size > 0) {
            this.#send("moved", [...this.#moved].map(([finger, { x, y }]) => [finger, x, y]));
            this.#moved.clear();
        }
        if (this.#wheel.byX !== 0 || this.#wheel.byY !== 0) {
            this.#connection.send({ type: "wheel", ...this.#wheel });
            this.#wheel.byX = 0;
            this.#wheel.byY = 0;
        }
    }

    #modifier(/** @type {KeyboardEvent} */ event) {
        if (event.key === "Alt" || event.key === "Control") {
            const shows = event.type === "keydown" && this.#surface.matches(":hover");
            this.#showMarks(shows || this.#mirrorsNow);
            if (shows && event.key === "Alt") {
                event.preventDefault(); // or the browser opens its menu
            }
        }
    }

    #showMarks(/** @type {boolean} */ shown) {
        this.#marks.hidden = !shown;
        this.#mirrored.points().concat(this.#mirrored.centre).forEach(({ x, y }, index) => {
            const mark = /** @type {HTMLElement} */ (this.#marks.children[index]);
            mark.style.left = `${x * this.#screen.zoom}px`;
            mark.style.top = `${y * this.#screen.zoom}px`;
        });
    }
}
