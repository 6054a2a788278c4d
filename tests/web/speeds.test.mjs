// How lines can be watched, and stopped. Usage: node --test speeds.test.mjs
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { setTimeout as later } from "node:timers/promises";
import { closeBrowser, openBrowser, withLearner } from "./browsers.mjs";

before(() => openBrowser("chromium"));
after(closeBrowser);

/** What a typed line takes, in milliseconds. */
async function timeOfALine(learner) {
  const start = performance.now();
  await learner.enter("RT 1");
  return performance.now() - start;
}

test("the button chooses the speeds in turn", () =>
  withLearner({}, async (learner) => {
    const press = () => learner.page.click("#speed");
    await press();
    assert.equal(await learner.text("speed"), "Speed: fast");
    assert.ok((await timeOfALine(learner)) >= 60);
    await press();
    assert.equal(await learner.text("speed"), "Speed: slow");
    assert.ok((await timeOfALine(learner)) >= 500);
    await press();
    await press();
    assert.equal(await learner.text("speed"), "Speed: full");
    await learner.enter("REPEAT 36 [FD 100 RT 170]");
    await learner.chipIsGone();
  }));

test("a finger steps through a program", () =>
  withLearner({ touch: true }, async (learner) => {
    for (let presses = 0; presses < 3; ++presses) await learner.page.tap("#speed");
    await learner.type("FD 10");
    await learner.until(() => document.getElementById("chip").textContent.endsWith("FD 10"));
    await learner.page.tap("#step");
    await learner.chipIsGone();
    assert.equal(await learner.page.evaluate(() => document.getElementById("step").hidden), true);
  }));

test("full speed ends the stepping of a run", () =>
  withLearner({}, async (learner) => {
    await learner.withCtrl("4");
    await learner.type("REPEAT 100 [RT 1]");
    await learner.until(() => !document.getElementById("chip").hidden);
    await learner.withCtrl("1");
    await learner.chipIsGone();
    await learner.enter("FD 50");
    assert.equal(await learner.pixelsBeside(["REPEAT 100 [RT 1]", "FD 50"]), 0);
  }));

test("a program at full speed can be slowed down", () =>
  withLearner({}, async (learner) => {
    await learner.type("REPEAT 30000 [REPEAT 30000 [RT 1]]");
    await learner.until(() => !document.getElementById("stop").hidden);
    assert.match(await learner.text("chip"), /^Running for \d+ s\. Ctrl\+\. or "Stop" stops\.$/);
    await learner.withCtrl("4");
    await learner.until(() => document.getElementById("chip").textContent.includes("Your line: "));
    await learner.withCtrl(".");
    await learner.chipIsGone();
  }));

for (const [name, key] of [["Ctrl+.", "."], ["Ctrl+Break", "Pause"]]) {
  test(`${name} stops a stepped run, and the lines after it run`, () =>
    withLearner({}, async (learner) => {
      await learner.withCtrl("4");
      await learner.type("FD 10");
      await learner.until(() => !document.getElementById("chip").hidden);
      await learner.withCtrl(key);
      await learner.chipIsGone();
      await learner.withCtrl("1");
      await learner.enter("FD 50");
      assert.equal(await learner.pixelsBeside(["FD 50"]), 0);
    }));
}

test("while nothing runs, the space bar types", () =>
  withLearner({}, async (learner) => {
    await learner.withCtrl("4");
    await learner.page.keyboard.type("FD 1");
    assert.equal(await learner.value("Text1(0)"), "FD 1");
  }));

test("the keys that stop end a slide show, and the slide stays", () =>
  withLearner({}, async (learner) => {
    await learner.enter("CS");
    const before = await learner.picture();
    await learner.enter("SLIDESHOW BOAT 400");
    await learner.untilHere(async () => (await learner.picture()).text !== before.text, "a slide");
    await learner.withCtrl(".");
    // A slide that was on its way still comes.
    await later(1000);
    const slide = await learner.picture();
    await later(1000);
    assert.equal((await learner.picture()).text, slide.text);
  }));
