// @ts-check
// The clipboard of the machine and the pasteboard of the phone. Browsers allow it after a click or
// a key, some of them when they have asked.

/** @typedef {import("./connection.js").Connection} Connection */

/** Puts what lies on the phone's pasteboard onto the machine's clipboard. */
export async function copyToMachine(/** @type {Connection} */ connection) {
    const text = await connection.ask("pasteboard");
    if (text !== null) {
        await navigator.clipboard.writeText(text);
        return;
    }
    const answer = await fetch("pasteboard.png");
    if (answer.status === 200) {
        await navigator.clipboard.write([new ClipboardItem({ "image/png": await answer.blob() })]);
    }
}

/** Puts what lies on the machine's clipboard onto the phone's pasteboard. */
export async function copyFromMachine(/** @type {Connection} */ connection) {
    for (const item of await navigator.clipboard.read()) {
        if (item.types.includes("text/plain")) {
            return putText(connection, await (await item.getType("text/plain")).text());
        }
        const picture = item.types.find((type) => type.startsWith("image/"));
        if (picture) {
            return putPicture(connection, await item.getType(picture));
        }
    }
}

export function putText(/** @type {Connection} */ connection, /** @type {string} */ text) {
    return connection.ask("pasteboard", { set: text });
}

export async function putPicture(/** @type {Connection} */ connection, /** @type {Blob} */ picture) {
    connection.send({ type: "paste", picture: await base64(picture) });
}

/** @returns {Promise<string>} */
function base64(/** @type {Blob} */ file) {
    return new Promise((resolve, reject) => {
        const reader = new FileReader();
        reader.onload = () => {
            const address = String(reader.result);
            resolve(address.slice(address.indexOf(",") + 1));
        };
        reader.onerror = () => reject(reader.error);
        reader.readAsDataURL(file);
    });
}
