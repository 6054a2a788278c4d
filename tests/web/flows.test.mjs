// What learners and teachers do with the page, in a browser without a window. Usage: node --test flows.test.mjs, with the
// site in ZERIMO_SITE and the browser in ZERIMO_BROWSER (chromium); pictures go to ZERIMO_SHOTS if it is set.
import assert from "node:assert/strict";
import { spawn, spawnSync } from "node:child_process";
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { tmpdir } from "node:os";
import { dirname, join, resolve } from "node:path";
import { after, before, test } from "node:test";
import { fileURLToPath } from "node:url";
import { readPicture } from "./pictures.mjs";

const source = resolve(dirname(fileURLToPath(import.meta.url)), "../..");
const fromPage = createRequire(join(source, "page/package.json"));
const puppeteer = fromPage("puppeteer-core");
const site = process.env.ZERIMO_SITE ?? join(source, "build/web/site");
const work = mkdtempSync(join(tmpdir(), "zerimo-flows-"));
const [server, address] = await startServer();
let browser;

function startServer() {
  const child = spawn(process.execPath, [join(source, "page/serve.mjs"), site, "0"]);
  return new Promise((done) => {
    child.stdout.once("data", (words) => done([child, String(words).match(/http\S+/)[0]]));
  });
}

before(async () => {
  const executablePath = process.env.ZERIMO_BROWSER ?? "/usr/bin/chromium";
  browser = await puppeteer.launch({ executablePath, args: ["--no-sandbox", "--disable-gpu"] });
});

after(async () => {
  await browser?.close();
  server.kill();
  rmSync(work, { recursive: true, force: true });
});

/** A learner in a browser of their own. */
class Learner {
  static async come({ width = 1280, height = 900, hash = "", touch = false } = {}) {
    const context = await browser.createBrowserContext();
    const page = await context.newPage();
    await page.setViewport({ width, height, hasTouch: touch });
    const learner = new Learner(context, page);
    page.on("console", (message) => message.type() === "error" && learner.complaints.push(message.text()));
    page.on("pageerror", (error) => learner.complaints.push(String(error)));
    await page.goto(address + hash);
    if (hash === "") await learner.ready();
    return learner;
  }

  constructor(context, page) {
    [this.context, this.page, this.complaints] = [context, page, []];
  }

  async leave() {
    await this.context.close();
    assert.deepEqual(this.complaints, []);
  }

  /** Asks again and again: the policy of the page forbids what the driver's own waiting does. */
  async until(isSo, ...words) {
    for (const end = Date.now() + 15_000; Date.now() < end; await new Promise((later) => setTimeout(later, 20))) {
      if (await this.page.evaluate(isSo, ...words).catch(() => false)) return;
    }
    throw new Error(`never: ${isSo} ${words}`);
  }

  /** Until a row has the focus. */
  ready() {
    return this.until(() => document.activeElement?.id.startsWith("Text1("));
  }

  async type(line) {
    await this.page.keyboard.type(line);
    await this.page.keyboard.press("Enter");
  }

  /** Once the row of the last line is left, the system has carried it out. */
  async enter(line) {
    await this.type(line);
    await this.until((text) => [...document.querySelectorAll('[id^="Text1"]')].every((row) => row !== document.activeElement || row.value !== text), line);
  }

  key(name) {
    return this.page.keyboard.press(name);
  }

  dialog(words) {
    return this.until((text) => document.querySelector("dialog[open]")?.textContent.includes(text), words);
  }

  noDialog() {
    return this.until(() => document.querySelector("dialog[open]") === null);
  }

  sees(id) {
    return this.until((name) => document.getElementById(name)?.checkVisibility(), id);
  }

  value(id) {
    return this.page.evaluate((name) => document.getElementById(name).value, id);
  }

  text(id) {
    return this.page.evaluate((name) => document.getElementById(name).textContent, id);
  }

  async shot(name) {
    if (process.env.ZERIMO_SHOTS) await this.page.screenshot({ path: join(process.env.ZERIMO_SHOTS, `${name}.png`) });
  }

  /** The picture as the canvas has it, red, green and blue. */
  picture() {
    return this.page.evaluate(async () => {
      await new Promise((frame) => requestAnimationFrame(() => requestAnimationFrame(frame)));
      const canvas = document.querySelector("#Picture1 canvas");
      const { data } = canvas.getContext("2d").getImageData(0, 0, canvas.width, canvas.height);
      let text = "";
      for (let n = 0; n < data.length; n += 4) text += String.fromCharCode(data[n], data[n + 1], data[n + 2]);
      return { columns: canvas.width, text };
    });
  }

  /** How many pixels differ from what the runner draws of the same lines on the same screen. */
  async pixelsBeside(lines) {
    const { width, height } = await this.page.evaluate(() => {
      const { width, height } = document.getElementById("stage").style;
      return { width: parseInt(width), height: parseInt(height) };
    });
    const file = join(work, "runner.png");
    const words = ["--screen", `${width}x${height}`, "--picture", file];
    const run = spawnSync(process.execPath, [join(source, "build/web/zerimo-batch.mjs"), ...words], { input: lines.join("\n") });
    assert.equal(run.status, 0, String(run.stderr));
    const wanted = readPicture(file);
    const { columns, text } = await this.picture();
    let other = 0;
    for (let row = 0; row < wanted.rows; ++row) {
      for (let column = 0; column < wanted.columns; ++column) {
        for (let part = 0; part < 3; ++part) {
          const here = text.charCodeAt(3 * (row * columns + column) + part);
          if (here !== wanted.pixels[wanted.channels * (row * wanted.columns + column) + part]) ++other;
        }
      }
    }
    return other;
  }
}

async function withLearner(options, work) {
  const learner = await Learner.come(options);
  try {
    await work(learner);
  } finally {
    await learner.leave();
  }
}

test("the first lesson of the README draws what the runner draws", () =>
  withLearner({}, async (learner) => {
    await learner.shot("start");
    const lines = ["CS", "FD 60", "RT 90", "FD 60", "CS", "SETPC 14", "REPEAT 36 [REPEAT 4 [FD 40 RT 90] RT 10]"];
    for (const line of lines) await learner.enter(line);
    assert.equal(await learner.pixelsBeside(lines), 0);
    await learner.shot("flower");
    await learner.key("F1");
    await learner.sees("Text2");
    await learner.page.keyboard.type("TO BOX :SIZE\nREPEAT 4 [FD :SIZE RT 90]\nEND");
    await learner.shot("editor");
    await learner.key("F2");
    await learner.ready();
    await learner.enter("CS");
    await learner.enter("BOX 50");
    assert.equal(await learner.pixelsBeside([...lines, "CS", "REPEAT 4 [FD 50 RT 90]"]), 0);
  }));

test("F3 shows the text screen, F4 the whole picture, and the arrows walk the rows", () =>
  withLearner({}, async (learner) => {
    await learner.enter("PRINT 7");
    await learner.key("F3");
    await learner.sees("List4");
    assert.match(await learner.text("List4"), /PRINT 7/);
    await learner.key("F2");
    await learner.key("ArrowUp");
    await learner.until(() => document.activeElement?.value === "PRINT 7");
    await learner.key("F4");
    await learner.until(() => !document.getElementById("Picture3").checkVisibility());
  }));

test("a box is answered with the keyboard, and what was typed ahead follows", () =>
  withLearner({}, async (learner) => {
    await learner.type('MESSAGE "HELLO"');
    await learner.dialog("HELLO");
    await learner.key("Enter");
    await learner.noDialog();
    await learner.type("WAIT 300");
    await learner.type("MAKE :A 5");
    await learner.type("PRINT :A");
    await learner.key("F3");
    await learner.until(() => document.getElementById("List4").textContent.includes("PRINT :A"));
  }));

test("an endless program does not freeze the page, and stops", () =>
  withLearner({}, async (learner) => {
    await learner.type("REPEAT 30000 [REPEAT 30000 [FD 10 RT 7]]");
    await learner.until(() => !document.getElementById("stop").hidden);
    const started = Date.now();
    await learner.page.keyboard.down("Control");
    await learner.key(".");
    await learner.page.keyboard.up("Control");
    await learner.until(() => document.getElementById("stop").hidden);
    assert.ok(Date.now() - started < 2000);
    await learner.enter("CS");
    assert.equal(await learner.pixelsBeside(["CS"]), 0);
  }));

test("what is saved is there after a reload", () =>
  withLearner({}, async (learner) => {
    await learner.key("F1");
    await learner.sees("Text2");
    await learner.page.keyboard.type("TO MINE\nFD 50\nEND");
    await learner.key("F10");
    await learner.dialog("");
    await learner.page.keyboard.type("MINE");
    await learner.key("Enter");
    await learner.noDialog();
    await learner.until(async () => {
      const folder = await (await navigator.storage.getDirectory()).getDirectoryHandle("Zerimo");
      return (await Array.fromAsync(folder.keys())).some((name) => /MINE/i.test(name));
    });
    await learner.page.reload();
    await learner.ready();
    await learner.enter("LOAD MINE");
    await learner.enter("CS");
    await learner.enter("MINE");
    assert.equal(await learner.pixelsBeside(["CS", "FD 50"]), 0);
  }));

test("samples, slides and help pages are in the folder", () =>
  withLearner({}, async (learner) => {
    await learner.enter("LOAD FLOWER");
    await learner.enter("FLOWER");
    await learner.shot("sample");
    await learner.enter("HELP FD");
    await learner.sees("RichTextBox1");
    assert.match(await learner.text("RichTextBox1"), /FD/);
    await learner.shot("help");
    await learner.key("Escape");
  }));

for (const touch of [false, true]) {
  test(`the palette is dragged ${touch ? "by touch" : "by mouse"} and colours the pen`, () =>
    withLearner({ touch }, async (learner) => {
      await learner.enter("CS");
      await learner.enter("SHOW PALLETE");
      await learner.sees("Picture2");
      const place = () => learner.page.$eval("#Picture2", (box) => box.getBoundingClientRect().left);
      const from = await learner.page.$eval("#Label16", (box) => box.getBoundingClientRect().toJSON());
      const [x, y] = [from.left + 20, from.top + 10];
      const before = await place();
      const finger = touch ? learner.page.touchscreen : undefined;
      if (touch) {
        await finger.touchStart(x, y);
        await finger.touchMove(x - 200, y + 60);
        await finger.touchEnd();
      } else {
        await learner.page.mouse.move(x, y);
        await learner.page.mouse.down();
        await learner.page.mouse.move(x - 200, y + 60, { steps: 4 });
        await learner.page.mouse.up();
      }
      await learner.until((left) => Math.abs(document.getElementById("Picture2").getBoundingClientRect().left - left + 200) < 4, before);
      await learner.page.$eval('[id="Label13(4)"]', (square) => square.click());
      await learner.until(() => /4/.test(document.getElementById("Label15").textContent));
      await learner.shot(touch ? "palette-touch" : "palette");
    }));
}

test("after the first visit it works offline", () =>
  withLearner({}, async (learner) => {
    await learner.page.evaluate(() => navigator.serviceWorker.ready);
    await learner.page.setOfflineMode(true);
    await learner.page.reload();
    await learner.ready();
    await learner.enter("CS");
    assert.equal(await learner.pixelsBeside(["CS"]), 0);
    await learner.page.setOfflineMode(false);
  }));

test("an address brings a program, asks, and runs nothing by itself", async () => {
  const { deflateSync } = fromPage("fflate");
  const packed = Buffer.from(deflateSync(Buffer.from("TO TASK\r\nFD 30\r\nEND\r\n"))).toString("base64url");
  await withLearner({ hash: `#program=TASK.ZRM=${packed}` }, async (learner) => {
    await learner.dialog("TASK.ZRM");
    await learner.key("Enter");
    await learner.noDialog();
    await learner.enter("CS");
    await learner.enter("TASK");
    assert.equal(await learner.pixelsBeside(["CS", "FD 30"]), 0);
  });
});

test("a dropped program comes into the folder", () =>
  withLearner({}, async (learner) => {
    const file = join(work, "DROPPED.ZRM");
    writeFileSync(file, "TO DROPPED\r\nFD 20\r\nEND\r\n");
    const data = { items: [], files: [file], dragOperationsMask: 1 };
    const client = await learner.page.createCDPSession();
    for (const type of ["dragEnter", "dragOver", "drop"]) await client.send("Input.dispatchDragEvent", { type, x: 300, y: 300, data });
    await learner.dialog("DROPPED.ZRM");
    await learner.key("Enter");
    await learner.noDialog();
    await learner.enter("CS");
    await learner.enter("DROPPED");
    assert.equal(await learner.pixelsBeside(["CS", "FD 20"]), 0);
  }));

for (const [name, width, height] of [["a phone", 390, 844], ["a large screen", 3840, 2160]]) {
  test(`everything fits on ${name}`, () =>
    withLearner({ width, height }, async (learner) => {
      await learner.enter("CS");
      await learner.enter("REPEAT 36 [FD 100 RT 170]");
      const inside = await learner.page.$eval("#Picture3", (box) => {
        const { left, right, bottom } = box.getBoundingClientRect();
        return left >= 0 && right <= innerWidth + 1 && bottom <= innerHeight + 1;
      });
      assert.ok(inside);
      await learner.shot(name.replaceAll(" ", "-"));
    }));
}

test("axe finds nothing, on the rows, in the editor, the diagnosis and the palette", () =>
  withLearner({}, async (learner) => {
    await learner.page.evaluate(readFileSync(fromPage.resolve("axe-core"), "utf8"));
    // Red on blue are the system's own colours of the rows.
    const findings = async () =>
      (await learner.page.evaluate(() => globalThis.axe.run({ exclude: [['[id^="Text1"]']] }))).violations.map(({ id, nodes }) => `${id}: ${nodes.map(({ target }) => target).join(" ")}`);
    assert.deepEqual(await findings(), []);
    await learner.enter("SHOW PALLETE");
    await learner.enter("SHOW DIAGNOSIS");
    await learner.sees("Frame1");
    assert.deepEqual(await findings(), []);
    await learner.shot("diagnosis");
    await learner.key("Escape");
    await learner.key("F1");
    await learner.sees("Text2");
    assert.deepEqual(await findings(), []);
  }));
