// @ts-check
// Puts the page together.
import { Connection } from "./connection.js";
import { edgesOf, showBody } from "./device.js";
import { element } from "./element.js";
import { showFilms } from "./films.js";
import { Fingers } from "./fingers.js";
import { showHelp } from "./help.js";
import { holdPhone } from "./holding.js";
import { Inspector } from "./inspector.js";
import { realKeyboard, typeInto } from "./keyboard.js";
import { hangMenu } from "./menu.js";
import { tellOpenedUrls } from "./opened_urls.js";
import { applicationsPanel } from "./panels/applications.js";
import { devicePanel } from "./panels/device.js";
import { eventsPanel } from "./panels/events.js";
import { microphonePanel } from "./panels/microphone.js";
import { pasteboardPanel } from "./panels/pasteboard.js";
import { preferencesPanel } from "./panels/preferences.js";
import { rulesPanel } from "./panels/rules.js";
import { recordPhone } from "./recording.js";
import { Screen } from "./screen.js";
import { Sounds } from "./sounds.js";
import { showState } from "./veil.js";
import { WebPages } from "./web_pages.js";
import { language, switchLanguage, word } from "./words.js";

/** @template {HTMLElement} T @param {string} id @returns {T} */
const part = (id) => /** @type {T} */ (document.getElementById(id));

/**
 * A panel, and what it has to be told: that the phone came up, or that it comes into view; a live
 * one also now and then while it is in view.
 * @typedef {object} Panel
 * @property {HTMLElement} panel
 * @property {(phone: any) => void} [welcome]
 * @property {() => any} [refresh]
 * @property {boolean} [isLive]
 */

const connection = new Connection();
const screen = new Screen(part("screen"), connection);
const holding = holdPhone(connection, attempt);
const inspector = new Inspector(
    part("glass"), part("inspected"), part("inspect"), screen, connection, attempt,
);
new Sounds(part("sound"), connection, tell);
const field = /** @type {HTMLTextAreaElement} */ (part("keyboard"));

/** Shows the words of the page that stand in its HTML. */
function showWords() {
    document.documentElement.lang = language === "zh" ? "zh-CN" : "en";
    for (const worded of document.querySelectorAll("[data-word]")) {
        worded.textContent = word(worded.getAttribute("data-word") ?? "");
    }
    for (const labelled of document.querySelectorAll("[data-label]")) {
        labelled.setAttribute("aria-label", word(labelled.getAttribute("data-label") ?? ""));
    }
    for (const button of /** @type {NodeListOf<HTMLElement>} */ (document.querySelectorAll("nav > button"))) {
        button.title = button.ariaLabel ?? "";
    }
}

/** Tabs as assistive technology knows them: arrows move, one tab is in the order of Tab. */
function makeTabs(/** @type {Record<string, Panel>} */ panels) {
    const tabs = Object.keys(panels).map((name) =>
        element(
            "button",
            { role: "tab", id: `tab-${name}`, "aria-controls": `panel-${name}`, onclick: () => choose(name) },
            word(name),
        ),
    );
    const choose = (/** @type {string} */ chosen) => {
        for (const tab of tabs) {
            const isChosen = tab.id === `tab-${chosen}`;
            tab.setAttribute("aria-selected", String(isChosen));
            tab.tabIndex = isChosen ? 0 : -1;
        }
        for (const [name, { panel }] of Object.entries(panels)) {
            panel.hidden = name !== chosen;
        }
        sessionStorage.setItem("panel", chosen);
        attempt(panels[chosen].refresh);
    };
    for (const [name, { panel }] of Object.entries(panels)) {
        panel.id = `panel-${name}`;
        panel.setAttribute("role", "tabpanel");
        panel.setAttribute("aria-labelledby", `tab-${name}`);
    }
    part("tabs").replaceChildren(...tabs);
    part("tabs").onkeydown = ({ key }) => {
        const step = key === "ArrowRight" ? 1 : key === "ArrowLeft" ? -1 : 0;
        const present = tabs.findIndex((tab) => tab === document.activeElement);
        if (step !== 0 && present >= 0) {
            const next = tabs[(present + step + tabs.length) % tabs.length];
            next.focus();
            next.click();
        }
    };
    part("panels").replaceChildren(...Object.values(panels).map(({ panel }) => panel));
    const remembered = sessionStorage.getItem("panel") ?? "";
    choose(remembered in panels ? remembered : Object.keys(panels)[0]);
}

/** Does what may fail and tells if it does. */
async function attempt(/** @type {(() => any) | undefined} */ work) {
    try {
        await work?.();
    } catch (error) {
        if (connectionState === "connected") {
            tell(word("failed") + /** @type {Error} */ (error).message);
        }
    }
}

let noteEnd = 0;

/** Shows a line for a moment. */
function tell(/** @type {string} */ text) {
    const note = part("note");
    note.textContent = text;
    note.hidden = false;
    clearTimeout(noteEnd);
    noteEnd = setTimeout(() => {
        note.hidden = true;
    }, 6000);
}

let connectionState = "connecting";
/** @type {any} */
let phone = null;
/** @type {any[]} */
let events = [];
/** @type {Record<string, Panel>} */
let panels = {};

function showPage() {
    const eventList = eventsPanel();
    panels = {
        applications: applicationsPanel(connection),
        device: devicePanel(connection, attempt, holding),
        preferences: preferencesPanel(connection),
        rules: rulesPanel(connection, attempt),
        pasteboard: pasteboardPanel(connection, attempt),
        microphone: microphonePanel(connection),
        events: eventList,
    };
    showWords();
    inspector.show();
    makeTabs(panels);
    showState(connectionState, connection, phone);
    eventList.add(events);
    if (phone) {
        Object.values(panels).forEach((panel) => panel.welcome?.(phone));
    }
    connection.removeEventListener("events", showEvents);
    showEvents = (event) => {
        const added = /** @type {CustomEvent} */ (event).detail.events;
        events = events.concat(added).slice(-1000);
        eventList.add(added);
    };
    connection.addEventListener("events", showEvents);
}

/** @type {(event: Event) => void} */
let showEvents = () => {};

function fitScreen() {
    const room = part("stage").getBoundingClientRect();
    showBody(part("phone"), screen.size);
    part("home").setAttribute("aria-pressed", String(screen.size.home));
    part("lock").setAttribute("aria-pressed", String(screen.size.locked));
    const { across, down } = edgesOf(part("phone"));
    screen.fitInto(room.width - across, room.height - down);
}

connection.addEventListener("state", (event) => {
    connectionState = /** @type {CustomEvent} */ (event).detail;
    showState(connectionState, connection, phone);
});
for (const told of ["welcome", "resting"]) {
    connection.addEventListener(told, (event) => {
        phone = /** @type {CustomEvent} */ (event).detail;
        events = [];
        document.title = `${word(phone.application)} — Wentra`;
        showPage();
    });
}
screen.addEventListener("turned", () => {
    fitScreen();
    if (phone) {
        panels.device.welcome?.({ ...phone, screen: screen.size });
    }
});
connection.addEventListener("refused", (event) => {
    tell(word("failed") + /** @type {CustomEvent} */ (event).detail.why);
});

new Fingers(part("glass"), part("marks"), screen, connection);
const webPages = new WebPages(part("glass"), part("web-pages"), connection);
showFilms(part("glass"), connection);
tellOpenedUrls(connection, tell);
const keyboard = realKeyboard(connection, part("keys"));
typeInto(field, part("more"), connection, keyboard.types, attempt);
part("keys").onclick = () => attempt(keyboard.toggle);
part("glass").addEventListener("pointerdown", () => field.focus({ preventScroll: true }));
part("help").onclick = showHelp;
part("home").onclick = holding.home;
part("home-button").onclick = holding.home;
part("lock").onclick = holding.lock;
part("shake").onclick = holding.shake;
hangMenu(part("more"), part("menu"));
const recording = recordPhone(part("record"), connection, attempt);
part("rotate").onclick = holding.turn;
part("appearance").onclick = holding.switchAppearance;
part("language").onclick = () => {
    switchLanguage();
    showPage();
    recording.show();
    webPages.show();
};
field.addEventListener("focus", () => {
    part("typing").textContent = word("typingOn");
});
field.addEventListener("blur", () => {
    part("typing").textContent = word("typingOff");
});

/** What keys do while nothing is written. @type {Record<string, () => void>} */
const shortcuts = {
    "?": showHelp,
    r: holding.turn,
    d: holding.switchAppearance,
    h: holding.home,
    l: holding.lock,
    s: holding.shake,
    k: () => attempt(keyboard.toggle),
    i: () => inspector.toggle(),
};
window.addEventListener("keydown", (event) => {
    const types = event.target instanceof HTMLInputElement || event.target instanceof HTMLTextAreaElement;
    if (types || event.ctrlKey || event.metaKey || event.altKey) {
        return;
    }
    shortcuts[event.key]?.();
});
const shownPanel = () => Object.values(panels).find(({ panel }) => !panel.hidden);
window.addEventListener("focus", () => attempt(shownPanel()?.refresh));
setInterval(() => {
    const shown = shownPanel();
    if (shown?.isLive && !document.hidden && connectionState === "connected") {
        attempt(shown.refresh);
    }
}, 1500);
new ResizeObserver(fitScreen).observe(part("stage"));

showPage();
recording.show();
connection.open();

// For the browser's console and for tests.
Object.assign(window, { wentra: { connection, screen } });
