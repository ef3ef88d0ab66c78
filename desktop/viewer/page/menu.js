// @ts-check
// The menu with what is rarely needed. The browser itself opens it by its button, and closes it.

/**
 * Keeps the menu below its button, and closes it once something in it was chosen.
 * @param {HTMLElement} button
 * @param {HTMLElement} menu
 */
export function hangMenu(button, menu) {
    menu.addEventListener("beforetoggle", () => {
        const { right, bottom } = button.getBoundingClientRect();
        menu.style.top = `${bottom + 6}px`;
        menu.style.right = `${document.documentElement.clientWidth - right}px`;
    });
    menu.addEventListener("click", () => menu.hidePopover());
}
