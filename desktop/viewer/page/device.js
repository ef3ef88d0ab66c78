// @ts-check
// The phone around its screen: corners, and a home button or what takes a part of the screen's edge.

/**
 * Shows the body of that phone, as it is held.
 * @param {HTMLElement} body
 * @param {{front: string, orientation: string, corner: number}} shape
 */
export function showBody(body, { front, orientation, corner }) {
    body.dataset.front = front;
    body.dataset.orientation = orientation;
    body.style.setProperty("--corner", `${corner}px`);
}

/**
 * How much of the room the body takes beside the screen, in CSS pixels.
 * @param {HTMLElement} body
 */
export function edgesOf(body) {
    const { paddingLeft, paddingRight, paddingTop, paddingBottom } = getComputedStyle(body);
    const sum = (/** @type {string} */ one, /** @type {string} */ other) => parseFloat(one) + parseFloat(other);
    return { across: sum(paddingLeft, paddingRight) + 4, down: sum(paddingTop, paddingBottom) + 4 };
}
