// What learners and teachers do with the page. Usage: node --test flows.test.mjs
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import { after, before, test } from "node:test";
import { closeBrowser, openBrowser, withLearner } from "./browsers.mjs";
import { flows } from "./common_flows.mjs";
import { fromPage } from "./learner.mjs";

before(() => openBrowser("chromium"));
after(closeBrowser);

for (const [name, work] of Object.entries(flows)) test(name, () => withLearner({}, work));

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

for (const [name, width, height, touch] of [["a phone", 390, 844, true], ["a phone held across", 844, 390, true], ["a large screen", 3840, 2160, false]]) {
  test(`everything fits on ${name}`, () =>
    withLearner({ width, height, touch }, async (learner) => {
      await learner.enter("CS");
      await learner.enter("REPEAT 36 [FD 100 RT 170]");
      const inside = await learner.page.$eval("#Picture3", (box) => {
        const { left, right, bottom } = box.getBoundingClientRect();
        const { clientWidth, clientHeight } = document.documentElement;
        return left >= 0 && right <= clientWidth + 1 && bottom <= clientHeight + 1;
      });
      assert.ok(inside);
      await learner.shot(name.replaceAll(" ", "-"));
    }));
}

for (const [width, height] of [[390, 844], [768, 1024], [600, 800]]) {
  test(`the rows stay on a screen of ${width} by ${height} when a run shows more buttons`, () =>
    withLearner({ width, height, touch: true }, async (learner) => {
      await learner.enter("CS");
      await learner.page.click("#speed");
      await learner.page.click("#speed");
      await learner.page.click("#speed");
      await learner.type("REPEAT 30000 [FD 10]");
      await learner.until(() => !document.getElementById("stop").hidden && !document.getElementById("step").hidden);
      await learner.until(() => document.getElementById("Picture3").getBoundingClientRect().bottom <= document.documentElement.clientHeight + 1);
      const { bottom, top } = await learner.page.evaluate(() => ({
        bottom: document.getElementById("bar").getBoundingClientRect().bottom,
        top: document.getElementById("stage").getBoundingClientRect().top,
      }));
      assert.ok(Math.abs(bottom - top) < 1);
      await learner.page.click("#stop");
      await learner.chipIsGone();
    }));
}

test("axe finds nothing, on the rows, in the editor, the diagnosis and the palette", () =>
  withLearner({}, async (learner) => {
    await learner.page.evaluate(readFileSync(fromPage.resolve("axe-core"), "utf8"));
    // Red on blue are the system's own colours of the rows: 2.86 to 1, where axe wants 3 to 1.
    const isOfRow = (id, target) => id === "color-contrast" && target.every((name) => name.startsWith("#Text1"));
    const findings = async () => {
      const { violations } = await learner.page.evaluate(() => globalThis.axe.run());
      const found = violations.flatMap(({ id, nodes }) => nodes.map(({ target }) => ({ id, target })));
      return found.filter(({ id, target }) => !isOfRow(id, target)).map(({ id, target }) => `${id}: ${target}`);
    };
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

test("with the colours of the system, the palette and the picture keep theirs", () =>
  withLearner({}, async (learner) => {
    const client = await learner.page.createCDPSession();
    await client.send("Emulation.setEmulatedMedia", { features: [{ name: "forced-colors", value: "active" }] });
    await learner.enter("CS");
    await learner.enter("REPEAT 36 [FD 100 RT 170]");
    await learner.enter("SHOW PALLETE");
    await learner.sees("Picture2");
    const ground = (id) => learner.page.evaluate((name) => getComputedStyle(document.getElementById(name)).backgroundColor, id);
    assert.equal(await ground("Label13(4)"), "rgb(128, 0, 0)");
    assert.equal(await ground("Picture3"), await learner.page.evaluate(() => {
      const probe = Object.assign(document.createElement("p"), { id: "probe" });
      document.body.append(probe);
      probe.style.backgroundColor = "Canvas";
      return getComputedStyle(probe).backgroundColor;
    }));
    assert.equal(await learner.pixelsBeside(["CS", "REPEAT 36 [FD 100 RT 170]"]), 0);
    await learner.shot("high-contrast");
  }));
