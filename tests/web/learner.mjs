// A learner in front of the page, for the tests. The site is in ZERIMO_SITE; pictures go to ZERIMO_SHOTS if it is set.
import assert from "node:assert/strict";
import { spawn, spawnSync } from "node:child_process";
import { mkdtempSync, rmSync } from "node:fs";
import { createRequire } from "node:module";
import { tmpdir } from "node:os";
import { dirname, join, resolve } from "node:path";
import { setTimeout as later } from "node:timers/promises";
import { fileURLToPath } from "node:url";
import { deflateRawSync } from "node:zlib";
import { readPicture } from "./pictures.mjs";

const source = resolve(dirname(fileURLToPath(import.meta.url)), "../..");
export const site = process.env.ZERIMO_SITE ?? join(source, "build/web/site");
/** For packages of the page. */
export const fromPage = createRequire(join(source, "page/package.json"));

/** A folder for the files of a test run. */
export const folder = mkdtempSync(join(tmpdir(), "zerimo-flows-"));
export const serverScript = join(source, "page/serve.mjs");
const [server, address] = await serve();

/** A server of the site, and its address. */
export function serve() {
  const child = spawn(process.execPath, [serverScript, site, "0"]);
  return new Promise((done) => {
    child.stdout.once("data", (words) => done([child, String(words).match(/http\S+/)[0]]));
  });
}

export function clearUp() {
  server.kill();
  rmSync(folder, { recursive: true, force: true });
}

/** The fragment of an address that brings a program. */
export const linkWith = (name, text) => `#program=${encodeURIComponent(name)}=${deflateRawSync(text).toString("base64url")}`;

/** What a learner does with a page of any driver. */
export class Learner {
  /** `leave` ends the driver's page. */
  constructor(page, leave) {
    [this.page, this.close, this.complaints] = [page, leave, []];
  }

  async come(hash = "") {
    await this.page.goto(address + hash);
    if (hash === "") await this.ready();
  }

  async leave() {
    await this.close();
    assert.deepEqual(this.complaints, []);
  }

  /** Asks again and again: the policy of the page forbids what the driver's own waiting does. */
  async until(isSo, ...words) {
    await this.untilHere(() => this.page.evaluate(isSo, ...words).catch(() => false), `${isSo} ${words}`);
  }

  /** The same for what the test itself can see. */
  async untilHere(isSo, what = isSo) {
    for (const end = Date.now() + 15_000; Date.now() < end; await later(20)) if (await isSo()) return;
    throw new Error(`never: ${what}`);
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

  async withCtrl(name) {
    await this.page.keyboard.down("Control");
    await this.key(name);
    await this.page.keyboard.up("Control");
  }

  async edit(lines) {
    await this.key("F1");
    await this.sees("Text2");
    await this.page.keyboard.type(lines.join("\n"));
  }

  async writeProgram(lines) {
    await this.edit(lines);
    await this.key("F2");
    await this.ready();
  }

  /** Saves a program from the editor; does not wait for what follows. */
  async saveAs(name, lines) {
    await this.edit(lines);
    await this.key("F10");
    await this.dialog("");
    await this.page.keyboard.type(name);
    await this.key("Enter");
  }

  /** Until a program with such a line is in the store; leaves the diagnosis panel open. */
  async isLoaded(line) {
    await this.ready();
    await this.enter("SHOW DIAGNOSIS");
    await this.until((words) => document.getElementById("List1").textContent.includes(words), line);
  }

  chipIsGone() {
    return this.until(() => document.getElementById("chip").hidden);
  }

  dialog(words) {
    return this.until((text) => [...document.querySelectorAll("dialog[open]")].at(-1)?.textContent.includes(text), words);
  }

  dialogText() {
    return this.page.evaluate(() => document.querySelector("dialog[open]")?.textContent ?? "");
  }

  noDialog() {
    return this.until(() => document.querySelector("dialog[open]") === null);
  }

  sees(id) {
    return this.until((name) => document.getElementById(name)?.checkVisibility(), id);
  }

  hides(id) {
    return this.until((name) => !document.getElementById(name)?.checkVisibility(), id);
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
    const file = join(folder, "runner.png");
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
