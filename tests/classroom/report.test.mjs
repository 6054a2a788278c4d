// What a teacher clicks in a class report, in a browser without a window. Usage: node --test report.test.mjs, with the
// runner in ZERIMO_BATCH (build/debug/zerimo/zerimo-batch) and the browser in ZERIMO_BROWSER (chromium).
import assert from "node:assert/strict";
import { spawnSync } from "node:child_process";
import { mkdirSync, mkdtempSync, rmSync, writeFileSync } from "node:fs";
import { createRequire } from "node:module";
import { tmpdir } from "node:os";
import { dirname, join, resolve } from "node:path";
import { after, before, test } from "node:test";
import { fileURLToPath, pathToFileURL } from "node:url";

const source = resolve(dirname(fileURLToPath(import.meta.url)), "../..");
const puppeteer = createRequire(join(source, "page/package.json"))("puppeteer-core");
const runner = process.env.ZERIMO_BATCH ?? join(source, "build/debug/zerimo/zerimo-batch");
const work = mkdtempSync(join(tmpdir(), "zerimo-report-"));
let browser;

const programs = {
  ANNA: "TO ANNA|CS|FD 50|END|",
  BEN: "TO BEN|CS|FORWRD 50|FD 10 RT 90|END|",
  CARLA: "TO CARLA|CS|MESSAGE \"A\"|MESSAGE \"B\"|FORWRD 9|FD 9|END|",
};

before(async () => {
  mkdirSync(join(work, "class"));
  for (const [name, lines] of Object.entries(programs))
    writeFileSync(join(work, "class", `${name}.ZRM`), lines.replaceAll("|", "\r\n"));
  for (const language of ["en", "de"]) {
    const run = spawnSync(runner, ["--class", "class", "--out", `${language}.html`, "--lang", language], { cwd: work });
    assert.equal(run.status, 0, String(run.stderr));
  }
  const executablePath = process.env.ZERIMO_BROWSER ?? "/usr/bin/chromium";
  browser = await puppeteer.launch({ executablePath, args: ["--no-sandbox", "--disable-gpu"] });
});

after(async () => {
  await browser?.close();
  rmSync(work, { recursive: true, force: true });
});

/** Opens a report; whatever the browser complains of fails the test. */
async function opened(t, file, hasScripts = true) {
  const page = await browser.newPage();
  const complaints = [];
  page.on("console", (message) => message.type() === "error" && complaints.push(message.text()));
  page.on("pageerror", (error) => complaints.push(String(error)));
  await page.setJavaScriptEnabled(hasScripts);
  await page.goto(pathToFileURL(join(work, file)));
  t.after(async () => {
    await page.close();
    assert.deepEqual(complaints, []);
  });
  return page;
}

const pupils = (page) =>
  page.$$eval("#overview tbody tr", (rows) =>
    rows.filter((row) => row.checkVisibility()).map((row) => row.querySelector("a").textContent));
const sections = (page) =>
  page.$$eval("section.pupil", (all) =>
    all.filter((each) => each.checkVisibility()).map((each) => each.querySelector("h2").textContent));

async function sortBy(page, column) {
  await page.click(`#overview thead th:nth-child(${column}) button`);
  return pupils(page);
}

test("a heading sorts up, then down", async (t) => {
  const page = await opened(t, "en.html");
  assert.deepEqual(await pupils(page), ["ANNA.ZRM", "BEN.ZRM", "CARLA.ZRM"]);
  assert.deepEqual(await sortBy(page, 1), ["ANNA.ZRM", "BEN.ZRM", "CARLA.ZRM"]);
  assert.deepEqual(await sortBy(page, 1), ["CARLA.ZRM", "BEN.ZRM", "ANNA.ZRM"]);
  assert.equal(await page.$eval("#overview th[aria-sort]", (head) => head.textContent), "Program");
  // By the number of notes, and by that of boxes.
  assert.deepEqual(await sortBy(page, 3), ["ANNA.ZRM", "CARLA.ZRM", "BEN.ZRM"]);
  assert.equal((await sortBy(page, 5)).at(-1), "CARLA.ZRM");
  assert.equal((await sortBy(page, 5)).at(0), "CARLA.ZRM");
});

test("a note shows only the programs that have it", async (t) => {
  const page = await opened(t, "en.html");
  const notes = await page.$$eval("#filter option", (all) => all.map((each) => each.textContent));
  // "FD 10 RT 90" goes 1090 steps.
  assert.deepEqual(notes,
                   ["all programs", "ended", "nothing suspicious", "outside the picture", "several statements",
                    "unknown word"]);
  await page.select("#filter select", "several statements");
  assert.deepEqual(await pupils(page), ["BEN.ZRM"]);
  assert.deepEqual(await sections(page), ["BEN.ZRM"]);
  await page.select("#filter select", "");
  assert.equal((await sections(page)).length, 3);
});

test("the filter speaks the language of the page", async (t) => {
  const page = await opened(t, "de.html");
  await page.select("#filter select", "unbekanntes Wort");
  assert.deepEqual(await pupils(page), ["BEN.ZRM", "CARLA.ZRM"]);
});

test("without scripts everything is there", async (t) => {
  const page = await opened(t, "en.html", false);
  const text = await page.$eval("body", (body) => body.innerText);
  for (const words of ["ANNA.ZRM", "nothing suspicious", "FORWRD, perhaps FORWARD"]) assert.ok(text.includes(words), words);
  assert.equal(await page.$("#filter select"), null);
});

test("one pupil or twelve are printed on a page", async (t) => {
  const page = await opened(t, "en.html");
  const pagesOf = async () => String(Buffer.from(await page.pdf())).match(/\/Type\s*\/Page\b/g).length;
  assert.equal(await pagesOf(), 4);
  await page.click("#print-twelve");
  assert.equal(await pagesOf(), 1);
});
