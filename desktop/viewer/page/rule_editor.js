// @ts-check
// The library's own rule editor, opened in a window of the phone that is never shown: what it lists is
// what the phone lists, and what it saves is what the phone saves.

/** The state of a long press that has begun. */
const began = 1;

export class RuleEditor {
    #connection;

    /** @param {import("./connection.js").Connection} connection */
    constructor(connection) {
        this.#connection = connection;
    }

    /** The help and the stored rules, as the editor opens with them. */
    async text() {
        const { host, editor } = await this.#open();
        const text = await this.#send(editor, "text");
        await this.#send(editor, "removeFromSuperview");
        await this.#send(host, "removeFromSuperview");
        return text;
    }

    /** Stores the rules in the text. @param {string} text */
    async save(text) {
        const { host, editor } = await this.#open();
        await this.#send(editor, "setText:", text);
        await this.#send(host, "saveRulesFromTextView:", editor);
        await this.#send(host, "removeFromSuperview");
    }

    async #open() {
        const window = await this.#view("UIWindow");
        const host = await this.#view("UIView");
        await this.#send(window, "addSubview:", host);
        const press = await this.#connection.ask("make", {
            class: "UILongPressGestureRecognizer", selector: "init",
        });
        await this.#send(press, "setState:", began);
        await this.#send(host, "handleLongPress33:", press);
        return { host, editor: await this.#send(host, "inputTextView") };
    }

    #view(/** @type {string} */ name) {
        return this.#connection.ask("make", {
            class: name, selector: "initWithFrame:", args: [{ rect: [0, 0, 390, 844] }],
        });
    }

    #send(/** @type {any} */ to, /** @type {string} */ selector, /** @type {any[]} */ ...args) {
        return this.#connection.ask("send", { to, selector, args });
    }
}
