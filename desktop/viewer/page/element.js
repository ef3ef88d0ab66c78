// @ts-check
// Making elements in one expression.

/**
 * An element with these attributes and children. An attribute that is a function listens to the
 * event of its name ("onclick"); one that is false or undefined is left out.
 * @template {keyof HTMLElementTagNameMap} Name
 * @param {Name} name
 * @param {Record<string, string | number | boolean | undefined | ((event: any) => void)>} [attributes]
 * @param {...(Node | string)} children
 * @returns {HTMLElementTagNameMap[Name]}
 */
export function element(name, attributes = {}, ...children) {
    const made = document.createElement(name);
    for (const [key, value] of Object.entries(attributes)) {
        if (typeof value === "function") {
            made.addEventListener(key.slice(2), value);
        } else if (value !== false && value !== undefined) {
            made.setAttribute(key, value === true ? "" : String(value));
        }
    }
    made.append(...children);
    return made;
}
