// What keys and buttons of the mouse do, whatever has the focus. Usage: node --test keys.test.mjs
import assert from "node:assert/strict";
import { after, before, test } from "node:test";
import { closeBrowser, openBrowser, withLearner } from "./browsers.mjs";
import { linkWith } from "./learner.mjs";

before(() => openBrowser("chromium"));
after(closeBrowser);

test("after F4, one press of F2 brings the rows back, and one of F1 opens the editor", () =>
  withLearner({}, async (learner) => {
    await learner.enter("CS");
    for (const [key, control] of [["F2", "Picture3"], ["F1", "Text2"]]) {
      await learner.key("F4");
      await learner.hides("Picture3");
      await learner.key(key);
      await learner.sees(control);
    }
  }));

test("F1, F2 and F3 never reach the browser, also if nothing has the focus", () =>
  withLearner({}, async (learner) => {
    await learner.enter("CS");
    await learner.key("F4");
    await learner.hides("Picture3");
    await learner.page.evaluate(() => {
      document.activeElement.blur();
      globalThis.left = [];
      addEventListener("keydown", (event) => event.defaultPrevented || globalThis.left.push(event.key));
    });
    for (const key of ["F1", "F2", "F3"]) await learner.key(key);
    await learner.sees("List4");
    assert.deepEqual(await learner.page.evaluate(() => globalThis.left), []);
  }));

test("after the box of an address, F1 opens the editor at once", () =>
  withLearner({ hash: linkWith("TASK.ZRM", "TO TASK\r\nFD 30\r\nEND\r\n") }, async (learner) => {
    await learner.dialog("TASK.ZRM");
    await learner.until(() => document.getElementById("Picture3").style.width !== "");
    await learner.key("Escape");
    await learner.noDialog();
    await learner.key("F1");
    await learner.sees("Text2");
  }));

test("a click below the editor does not take F2 away", () =>
  withLearner({}, async (learner) => {
    await learner.key("F1");
    await learner.sees("Text2");
    await learner.page.mouse.click(640, 890);
    await learner.until(() => document.activeElement === document.body);
    await learner.key("F2");
    await learner.sees("Picture3");
    await learner.ready();
  }));

test("a help page chosen by mouse closes with Esc, and F3 follows at once", () =>
  withLearner({}, async (learner) => {
    await learner.enter("CS");
    await learner.enter("HELP");
    await learner.sees("File1");
    await learner.page.mouse.click(100, 200);
    await learner.until(() => document.getElementById("RichTextBox1").textContent !== "");
    await learner.key("Escape");
    await learner.hides("RichTextBox1");
    await learner.key("F3");
    await learner.sees("List4");
  }));

test("with nothing focused, letters and Enter go to the row", () =>
  withLearner({}, async (learner) => {
    await learner.enter("CS");
    await learner.page.evaluate(() => document.activeElement.blur());
    const isEntered = (line) => learner.until((text) => document.getElementById("List4").textContent.includes(text), `?${line}`);
    await learner.type("FD 30");
    await learner.key("F3");
    await isEntered("FD 30");
    await learner.page.focus("#List4");
    await learner.type("FD 20");
    await isEntered("FD 20");
    assert.equal(await learner.pixelsBeside(["CS", "FD 30", "FD 20"]), 0);
  }));

test("neither Tab nor a line longer than its row moves the screen", () =>
  withLearner({}, async (learner) => {
    await learner.enter("CS");
    const moved = () =>
      learner.page.evaluate(() => {
        const parts = [document.scrollingElement, document.body, ...document.querySelectorAll("#stage, .panel, #Picture1")];
        return parts.map((part) => [part.scrollLeft, part.scrollTop]).flat().filter((by) => by !== 0);
      });
    await learner.key("Tab");
    assert.deepEqual(await moved(), []);
    await learner.page.focus('[id="Text1(1)"]');
    await learner.page.keyboard.type("REPEAT 36 [REPEAT 4 [FD 40 RT 90] RT 10] ".repeat(4));
    assert.deepEqual(await moved(), []);
    for (let n = 0; n < 30; ++n) await learner.key("Tab");
    assert.deepEqual(await moved(), []);
  }));

/** The line that the learner has typed ahead while another line waits, key by key. */
async function typedAhead(learner, keys) {
  await learner.type("WAIT 700");
  await learner.page.keyboard.type("FD 12");
  for (const key of keys) await learner.key(key);
  await learner.page.keyboard.type("9");
  await learner.until(() => /9/.test(document.activeElement?.value));
  return learner.page.evaluate(() => document.activeElement.value);
}

for (const [keys, line] of [
  [["ArrowLeft"], "FD 192"], [["ArrowLeft", "ArrowLeft", "ArrowRight"], "FD 192"], [["Home"], "9FD 12"], [["Home", "End"], "FD 129"],
  [["Home", "Delete"], "9D 12"], [["Backspace"], "FD 19"],
]) {
  test(`typed ahead, ${keys.join(" and ")} edits the line`, () =>
    withLearner({}, async (learner) => assert.equal(await typedAhead(learner, keys), line)));
}

test("what is pasted while a line waits comes after it, in its place", () =>
  withLearner({}, async (learner) => {
    await learner.key("F1");
    await learner.sees("Text2");
    await learner.page.keyboard.type("FD 30");
    await learner.withCtrl("a");
    await learner.withCtrl("x");
    await learner.key("F2");
    await learner.ready();
    await learner.enter("CS");
    await learner.type("WAIT 700");
    await learner.page.keyboard.type("RT 90 ");
    await learner.withCtrl("v");
    await learner.page.keyboard.type(" RT 45");
    await learner.until(() => document.activeElement?.value === "RT 90 FD 30 RT 45");
  }));
