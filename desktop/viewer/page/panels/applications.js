// @ts-check
// The applications, the one that runs, and what the phone is.
import { element } from "../element.js";
import { word } from "../words.js";

/** @typedef {import("../connection.js").Connection} Connection */
/** @typedef {{name: string, bundle: string}} Application */

/** @param {Connection} connection */
export function applicationsPanel(connection) {
    const panel = element("div", { class: "panel" });

    /** @param {Application} application @param {boolean} runs */
    const row = ({ name, bundle }, runs) =>
        element(
            "li",
            { class: runs ? "running" : "" },
            element("span", { class: "badge", "aria-hidden": "true" }, word(name).slice(0, 1)),
            element(
                "span",
                { class: "names" },
                element("strong", {}, word(name)),
                element("small", {}, bundle),
            ),
            element(
                "button",
                {
                    "aria-label": `${word(runs ? "restart" : "open")} ${word(name)}`,
                    "data-application": name,
                    onclick: () => connection.send({ type: "launch", application: name }),
                },
                word(runs ? "restart" : "open"),
            ),
        );

    return {
        panel,
        welcome(/** @type {any} */ phone) {
            const { screen } = phone; // there is none when no application runs
            panel.replaceChildren(
                element("p", { class: "hint" }, word("applicationsHint")),
                element(
                    "ul",
                    { class: "card applications" },
                    ...phone.applications.map((/** @type {Application} */ application) =>
                        row(application, Boolean(screen) && application.name === phone.application),
                    ),
                ),
                element(
                    "dl",
                    { class: "card facts" },
                    element("dt", {}, word("version")),
                    element("dd", {}, `Wentra ${phone.version}`),
                    ...(screen ? [
                        element("dt", {}, word("screen")),
                        element("dd", {}, `${screen.width} × ${screen.height} @ ${screen.scale}×`),
                    ] : []),
                    element("dt", {}, word("folder")),
                    element("dd", {}, element("code", {}, phone.folder)),
                ),
            );
            if (phone.afterCrash && screen) {
                panel.prepend(element("p", { class: "warning", role: "alert" }, word("crashed")));
            }
        },
    };
}
