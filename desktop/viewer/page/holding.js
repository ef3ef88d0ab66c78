// @ts-check
// How the phone is held, its own buttons, and its appearance: what the page's buttons and keys change of
// them.

/** In the order in which the phone is turned. */
const turns = ["portrait", "landscapeLeft", "landscapeRight"];

/**
 * @param {import("./connection.js").Connection} connection
 * @param {(work: () => any) => void} attempt does what may fail and tells if it does
 */
export function holdPhone(connection, attempt) {
    return {
        /** Turns the phone on, to the next orientation. */
        turn: () =>
            attempt(async () => {
                const present = turns.indexOf(await connection.ask("rotate"));
                await connection.ask("rotate", { to: turns[(present + 1) % turns.length] });
            }),
        /** To the home screen, and back to the application. */
        home: () =>
            attempt(async () => {
                const present = await connection.ask("home");
                await connection.ask("home", { set: !present });
            }),
        lock: () =>
            attempt(async () => {
                const present = await connection.ask("lock");
                await connection.ask("lock", { set: !present });
            }),
        shake: () => attempt(() => connection.ask("shake")),
        /** From light to dark and back. */
        switchAppearance: () =>
            attempt(async () => {
                const present = await connection.ask("appearance");
                await connection.ask("appearance", { set: present === "dark" ? "light" : "dark" });
            }),
    };
}
