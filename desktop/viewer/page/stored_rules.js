// @ts-check
// The rules that the running application has stored in its user defaults.

/** @typedef {{key: string, marker: string, value: string}} Rule */

/** How text rules are written; those of the other kinds say how the text looks. */
const textMarker = "===";

/** How the rules of each kind are written, and the key under which they are stored. */
const kinds = [
    [textMarker, "zerk"],
    ["#=", "改色zerk"],
    ["#÷=", "大小zerk"],
    ["#g=", "高度zerk"],
    ["#k=", "宽度zerk"],
    ["#x=", "横向zerk"],
    ["#y=", "纵向zerk"],
    ["#t=", "透明zerk"],
    ["#z=", "字体zerk"],
];

/**
 * @param {import("./connection.js").Connection} connection
 * @returns {Promise<Rule[]>}
 */
export async function storedRules(connection) {
    const maps = await Promise.all(kinds.map(([, key]) => connection.ask("defaults", { key })));
    return kinds.flatMap(([marker], index) =>
        Object.entries(maps[index] ?? {}).map(([key, value]) => ({ key, marker, value: String(value) })));
}

/**
 * The rules that speak of a view with that text: of the text itself, of what stands before its first
 * colon, and of the texts in whose place it is shown.
 * @param {Rule[]} rules
 * @param {string} text
 */
export function rulesAbout(rules, text) {
    const shown = text.replaceAll("\n", "↲");
    const shows = [shown, ...(shown.includes(":") ? [shown.slice(0, shown.indexOf(":"))] : [])];
    const asked = rules.filter(({ marker, value }) => marker === textMarker && shows.includes(value));
    const keys = new Set([...shows, text, ...asked.map(({ key }) => key)]);
    return rules.filter((rule) => keys.has(rule.key) || asked.includes(rule));
}
