// The phone in a real browser, as tests use it.
import { spawn } from "node:child_process";
import { readFileSync } from "node:fs";
import { mkdtemp, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { createInterface } from "node:readline";
import { fileURLToPath } from "node:url";
import { chromium } from "playwright-core";

export const program = process.env.WENTRA_HOST ??
    fileURLToPath(new URL("../../build/release/bin/host", import.meta.url));

const browserOptions = {
    executablePath: "/usr/bin/chromium",
    args: [
        "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
        "--disable-background-networking", "--disable-component-update", "--disable-sync",
    ],
};

/** One browser for all tests of a file. */
export const openBrowser = (...options) =>
    chromium.launch({ ...browserOptions, args: [...browserOptions.args, ...options] });

/** A host process with the viewer, and its data in a fresh folder. */
export class Host {
    /** @param {string[]} options further options of the host */
    static async start(...options) {
        const host = new Host();
        host.root = await mkdtemp(join(tmpdir(), "wentra-browser-"));
        host.process = spawn(program, ["--viewer", "--root", host.root, ...options]);
        host.errors = "";
        host.process.stderr.on("data", (text) => {
            host.errors += text;
        });
        host.ended = new Promise((done) => host.process.on("exit", (status) => done(status)));
        host.lines = [];
        for await (const line of createInterface(host.process.stdout)) {
            host.lines.push(line);
            if (line.startsWith("http://")) {
                host.address = line;
                return host;
            }
        }
        throw new Error(`the host ended: ${host.errors}`);
    }

    /** The process in which the application runs now. */
    child() {
        const { pid } = this.process;
        return Number(readFileSync(`/proc/${pid}/task/${pid}/children`, "utf8").trim());
    }

    /** Interrupts the host as Ctrl-C does; its exit status. */
    async stop() {
        this.process.kill("SIGINT");
        const status = await this.ended;
        await rm(this.root, { recursive: true, force: true });
        return status;
    }
}

/** The viewer's page in a tab of the browser. Points are those of the phone's screen. */
export class Phone {
    constructor(page) {
        this.page = page;
    }

    /**
     * @param {import("playwright-core").Browser} browser
     * @param {string} address
     * @param {import("playwright-core").BrowserContextOptions} [options]
     */
    static async open(browser, address, options = {}) {
        const context = await browser.newContext({ viewport: { width: 1280, height: 800 }, ...options });
        const phone = new Phone(await context.newPage());
        phone.complaints = [];
        phone.page.on("pageerror", (error) => phone.complaints.push(error.message));
        phone.page.on("console", (message) => {
            if (message.type() === "error") {
                phone.complaints.push(message.text());
            }
        });
        await phone.page.goto(address);
        await phone.picture();
        return phone;
    }

    close() {
        return this.page.context().close();
    }

    /** Waits until the phone has been drawn at least once, or `more` times more than now. */
    async picture(more = 0) {
        const drawn = more > 0 ? await this.frames() : 0;
        await this.page.waitForFunction(
            (wanted) => window.wentra?.screen.frames >= wanted, drawn + Math.max(1, more));
    }

    frames() {
        return this.page.evaluate(() => window.wentra.screen.frames);
    }

    /** Starts the application anew, and waits until it is there. */
    async restart() {
        const welcome = this.page.evaluate(() => new Promise((done) => {
            window.wentra.connection.addEventListener("welcome", () => done(true), { once: true });
        }));
        await this.page.click("#tab-applications");
        await this.page.getByRole("button", { name: "重新启动" }).first().click();
        await welcome;
    }

    /** Carries out a command of the automation protocol. */
    do(command, given = {}) {
        return this.page.evaluate(
            ([name, rest]) => window.wentra.connection.ask(name, rest), [command, given]);
    }

    tree() {
        return this.do("tree");
    }

    /** The visible view that shows this text, as a node, as soon as there is one. */
    async showing(text) {
        const [node] = await this.do("wait", { for: { text, visible: true } });
        return node;
    }

    /** Waits until there is no such view. */
    async gone(where) {
        while ((await this.do("find", { where })).length > 0) {
            await this.page.waitForTimeout(50);
        }
    }

    /** A view of the class in front of everything else on the phone. */
    async addView(className, frame) {
        const view = await this.do("make", {
            class: className, selector: "initWithFrame:", args: [{ rect: frame }],
        });
        const [window] = await this.tree();
        await this.do("send", { to: window, selector: "addSubview:", args: [view] });
        return view;
    }

    /** The place in the page of a point of the screen. */
    async place([x, y]) {
        const box = await this.page.locator("#screen").boundingBox();
        const zoom = await this.page.evaluate(() => window.wentra.screen.zoom);
        return [box.x + x * zoom, box.y + y * zoom];
    }

    async tap(point) {
        await this.page.mouse.click(...await this.place(point));
    }

    async press(point, milliseconds) {
        await this.page.mouse.move(...await this.place(point));
        await this.page.mouse.down();
        await this.page.waitForTimeout(milliseconds);
        await this.page.mouse.up();
    }

    /** Along the points, in some steps, lifted at the end. */
    async drag(points, { steps = 10 } = {}) {
        await this.page.mouse.move(...await this.place(points[0]));
        await this.page.mouse.down();
        for (const point of points.slice(1)) {
            await this.page.mouse.move(...await this.place(point), { steps });
        }
        await this.page.mouse.up();
    }

    /** Two fingers about the middle of the screen, from one distance to another. */
    async pinch(from, to, { steps = 10 } = {}) {
        const { width, height } = await this.page.evaluate(() => window.wentra.screen.size);
        const at = (distance) => [width / 2 + distance / 2, height / 2];
        await this.page.mouse.move(...await this.place(at(from)));
        await this.page.keyboard.down("Alt");
        await this.page.mouse.down();
        await this.page.mouse.move(...await this.place(at(to)), { steps });
        await this.page.mouse.up();
        await this.page.keyboard.up("Alt");
    }

    /** The colour of a point of the drawn screen: red, green, blue. */
    colourAt([x, y]) {
        return this.page.evaluate(([left, top]) => {
            const canvas = document.getElementById("screen");
            const scale = canvas.width / window.wentra.screen.size.width;
            const data = canvas.getContext("2d").getImageData(left * scale, top * scale, 1, 1).data;
            return [...data.slice(0, 3)];
        }, [x, y]);
    }

    /** How many different colours the rectangle of the drawn screen has: text has many. */
    coloursIn([x, y, width, height]) {
        return this.page.evaluate(([left, top, wide, high]) => {
            const canvas = document.getElementById("screen");
            const scale = canvas.width / window.wentra.screen.size.width;
            const { data } = canvas.getContext("2d").getImageData(
                left * scale, top * scale, wide * scale, high * scale);
            return new Set(new Uint32Array(data.buffer)).size;
        }, [x, y, width, height]);
    }

    /** What the rectangle of the drawn screen looks like, to be compared. */
    imageOf([x, y, width, height]) {
        return this.page.evaluate(([left, top, wide, high]) => {
            const canvas = document.getElementById("screen");
            const scale = canvas.width / window.wentra.screen.size.width;
            const { data } = canvas.getContext("2d").getImageData(
                left * scale, top * scale, wide * scale, high * scale);
            return data.join();
        }, [x, y, width, height]);
    }

    /** Waits until the rectangle looks different. */
    async changed(rectangle, image) {
        while (await this.imageOf(rectangle) === image) {
            await this.picture(1);
        }
    }
}
