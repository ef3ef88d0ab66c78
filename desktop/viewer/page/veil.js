// @ts-check
// What lies over the phone while this page does not have it in hand: why, and what to do about it.
import { word } from "./words.js";

/** @typedef {import("./connection.js").Connection} Connection */

/**
 * What is said in each state, and what its button does.
 * @type {Record<string, {text: string, hint?: string, action?: string,
 *     act?: (connection: Connection, phone: any) => void}>}
 */
const states = {
    connecting: { text: "connecting" },
    watching: {
        text: "watching",
        action: "takeHand",
        act: (connection) => connection.send({ type: "takeHand" }),
    },
    resting: {
        text: "resting",
        hint: "restingHint",
        action: "startAgain",
        act: (connection, phone) => connection.send({ type: "launch", application: phone.application }),
    },
    ended: { text: "ended", hint: "endedHint" },
};

/**
 * Shows the state, and makes what does nothing in it look so.
 * @param {string} state as the connection tells it
 * @param {Connection} connection
 * @param {any} phone as it told about itself
 */
export function showState(state, connection, phone) {
    const part = (/** @type {string} */ id) => /** @type {HTMLElement} */ (document.getElementById(id));
    const { text, hint, action, act } = states[state] ?? { text: "" };
    part("veil").hidden = state === "connected";
    part("veil").className = state;
    part("veil-text").textContent = word(text);
    part("veil-hint").textContent = hint ? word(hint) : "";
    part("veil-action").hidden = !action;
    part("veil-action").textContent = action ? word(action) : "";
    part("veil-action").onclick = () => act?.(connection, phone);
    for (const id of ["controls", "phone-menu", "keyboard", "typing", "home-button"]) {
        part(id).inert = state !== "connected";
    }
    for (const panel of /** @type {NodeListOf<HTMLElement>} */ (document.querySelectorAll("#panels > *"))) {
        panel.inert = state !== "connected" && !(state === "resting" && panel.id === "panel-applications");
    }
}
