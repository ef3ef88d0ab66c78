// @ts-check
// What the browser shows in a place of the phone's screen.

/**
 * Moves the element there, in points of the screen.
 * @param {HTMLElement} made
 * @param {number[]} frame
 */
export function moveOverScreen(made, [x, y, width, height]) {
    Object.assign(made.style, {
        left: `calc(${x}px * var(--zoom))`,
        top: `calc(${y}px * var(--zoom))`,
        width: `${width}px`,
        height: `${height}px`,
    });
}

/**
 * Puts the element there, in points of the screen. What happens on it is its own, not a finger on the
 * glass.
 * @template {HTMLElement} Made
 * @param {Made} made
 * @param {number[]} frame
 */
export function overScreen(made, frame) {
    moveOverScreen(made, frame);
    for (const kind of ["pointerdown", "pointerup", "pointermove"]) {
        made.addEventListener(kind, (happened) => happened.stopPropagation());
    }
    return made;
}
