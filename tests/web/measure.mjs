#!/usr/bin/env node
// Measures the page in Chromium, on a quiet machine: what is delivered, compressed; how soon it can be used from a warm
// server; how soon a typed line is a picture; how fast the interpreter is beside the native one.
// Usage: tests/web/measure.mjs NATIVE_PROGRAM
import { readdirSync, readFileSync } from "node:fs";
import { join } from "node:path";
import { gzipSync } from "node:zlib";
import { closeBrowser, openBrowser, withLearner } from "./browsers.mjs";
import { site } from "./learner.mjs";
import { net, sessions } from "./sessions_to_time.mjs";

const [native] = process.argv.slice(2);
if (!native) {
  console.error("usage: tests/web/measure.mjs NATIVE_PROGRAM");
  process.exit(2);
}
const runs = 20;
const median = (values) => values.toSorted((one, other) => one - other)[Math.floor(values.length / 2)];
const kilobytes = (names) => Math.round(names.reduce((sum, name) => sum + gzipSync(readFileSync(join(site, name))).length, 0) / 1000);

function tellSize() {
  const names = readdirSync(site).filter((name) => !["font.ttf", "folder.zip"].includes(name));
  console.log(`size: ${kilobytes(names)} KB compressed, of which scripts ${kilobytes(names.filter((name) => name.endsWith(".js")))} KB`);
}

/** When a row has the focus, in milliseconds since the address was entered. */
const noteReady = (page) =>
  page.evaluateOnNewDocument(() => {
    addEventListener("focusin", ({ target }) => target.id === "Text1(0)" && (globalThis.readyAt ??= performance.now()), { capture: true });
  });

/** When the last line was entered, and when its picture was there. */
const noteLines = (page) =>
  page.evaluateOnNewDocument(() => {
    const times = (globalThis.times = {});
    addEventListener("keydown", ({ key }) => key === "Enter" && Object.assign(times, { entered: performance.now(), drawn: 0 }), { capture: true });
    const put = CanvasRenderingContext2D.prototype.putImageData;
    CanvasRenderingContext2D.prototype.putImageData = function (...words) {
      put.apply(this, words);
      times.drawn = performance.now();
    };
  });

async function tellStart() {
  const times = [];
  for (let run = 0; run < runs; ++run) {
    await withLearner({ prepare: noteReady }, async ({ page }) => times.push(await page.evaluate(() => globalThis.readyAt)));
  }
  console.log(`usable after ${Math.round(median(times))} ms`);
}

const tellLines = () =>
  withLearner({ prepare: noteLines }, async (learner) => {
    await learner.enter("CS");
    const times = [];
    for (let run = 0; run < runs; ++run) {
      await learner.type("REPEAT 36 [FD 100 RT 170]");
      await learner.until(() => globalThis.times.drawn > 0);
      times.push(await learner.page.evaluate(() => globalThis.times.drawn - globalThis.times.entered));
      await learner.ready();
    }
    console.log(`a typed line is a picture after ${median(times).toFixed(1)} ms`);
  });

/** From the Enter key of the last line until its row is left. */
async function secondsOf(session) {
  let took = 0;
  await withLearner({}, async (learner) => {
    const lines = session.split("\n");
    for (const line of lines.slice(0, -1)) await learner.enter(line);
    await learner.page.keyboard.type(lines.at(-1));
    const start = performance.now();
    await learner.key("Enter");
    await learner.until((line) => document.activeElement.value !== line, lines.at(-1));
    took = performance.now() - start;
  });
  return took / 1000;
}

async function tellSpeed() {
  for (const [name, session] of Object.entries(sessions)) {
    const times = [];
    for (let run = 0; run < 3; ++run) times.push(await secondsOf(session));
    const [there, here] = [net(native, [], session), Math.min(...times)];
    console.log(`${name}: native ${there.toFixed(2)} s, in the browser ${here.toFixed(2)} s, ${(there / here).toFixed(2)} of native speed`);
  }
}

await openBrowser("chromium");
tellSize();
await tellStart();
await tellLines();
await tellSpeed();
await closeBrowser();
