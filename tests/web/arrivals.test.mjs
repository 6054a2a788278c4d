// What comes into the learner's folder by an address, by drop, and from another tab. Usage: node --test arrivals.test.mjs
import assert from "node:assert/strict";
import { mkdirSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { anotherTab, closeBrowser, openBrowser, withLearner } from "./browsers.mjs";
import { comesAgain, draws, keeps, keptNames, program, save } from "./common_flows.mjs";
import { folder, linkWith } from "./learner.mjs";

before(() => openBrowser("chromium"));
after(closeBrowser);

const text = (name, steps) => `${program(name, steps).join("\r\n")}\r\n`;

async function drop(learner, ...files) {
  const data = { items: [], files, dragOperationsMask: 1 };
  const client = await learner.page.createCDPSession();
  for (const type of ["dragEnter", "dragOver", "drop"]) await client.send("Input.dispatchDragEvent", { type, x: 300, y: 300, data });
}

/** A file of this name to be dropped. */
function file(name, bytes) {
  const path = join(folder, name);
  writeFileSync(path, bytes);
  return path;
}

/** Until the editor, opened with F1, has this text. */
async function edits(learner, words) {
  await learner.key("F1");
  await learner.until((wanted) => document.getElementById("Text2").value.includes(wanted), words);
}

test("an address brings a program, asks, and runs nothing by itself", () =>
  withLearner({ hash: linkWith("TASK.ZRM", text("TASK", 30)) }, async (learner) => {
    await learner.dialog("TASK.ZRM");
    await learner.key("Enter");
    await learner.noDialog();
    await learner.isLoaded("FD 30");
    await learner.enter("CS");
    await learner.enter("TASK");
    assert.equal(await learner.pixelsBeside(["CS", "FD 30"]), 0);
  }));

test("an address with all of its signs written with % still brings its program", () =>
  withLearner({ hash: linkWith("TASK.ZRM", text("TASK", 30)).replace("ZRM=", "ZRM%3D") }, (learner) => learner.dialog("brings the program TASK.ZRM")));

const whole = linkWith("TASK.ZRM", text("TASK", 30));
for (const [what, hash] of [
  ["cut off", whole.slice(0, -20)], ["damaged", whole.replace(/ZRM=..../, "ZRM=!!!!")], ["empty", "#program=TASK.ZRM"], ["no program", linkWith("TASK.TXT", "FD 1")],
  ["larger than allowed", linkWith("TASK.ZRM", "FD 1\r\n".repeat(200_000))],
]) {
  test(`an address whose program is ${what} says so`, () =>
    withLearner({ hash }, async (learner) => {
      await learner.dialog("can't be read");
      await learner.key("Enter");
      await learner.noDialog();
      await learner.ready();
    }));
}

test("an address brings its program also into a tab where Zerimo is open", () =>
  withLearner({}, async (learner) => {
    await learner.page.evaluate((hash) => (location.hash = hash), whole);
    await learner.dialog("TASK.ZRM");
    await learner.key("Enter");
    await learner.noDialog();
    await keeps(learner, "TASK.ZRM");
  }));

test("a program that is too large for an address is told", () =>
  withLearner({}, async (learner) => {
    await drop(learner, file("LARGE.ZRM", "FD 1\r\n".repeat(200_000)));
    await learner.dialog("Open LARGE.ZRM");
    await learner.key("Escape");
    await learner.noDialog();
    await learner.page.click("#files");
    await learner.dialog("LARGE.ZRM");
    await learner.page.click('[aria-label="Address with LARGE.ZRM"]');
    await learner.dialog("larger than 1 MB");
  }));

test("if the learner keeps the old file, nothing of an address is opened", () =>
  withLearner({}, async (learner) => {
    await save(learner, "TASK", 99);
    await learner.page.evaluate((hash) => (location.hash = hash), whole);
    await learner.dialog("brings the program");
    await learner.key("Enter");
    await learner.dialog("Replace TASK.ZRM");
    await learner.key("Escape");
    await learner.noDialog();
    await learner.key("F2");
    await learner.ready();
    await draws(learner, "TASK", 99);
    await edits(learner, "FD 99");
  }));

test("a file with other capitals replaces the old one, also a sample", () =>
  withLearner({}, async (learner) => {
    await save(learner, "TASK", 99);
    await drop(learner, file("task.zrm", text("TASK", 31)));
    await learner.dialog("Replace TASK.ZRM");
    await learner.key("Enter");
    await learner.dialog("Open TASK.ZRM");
    await learner.key("Escape");
    await learner.noDialog();
    assert.deepEqual(await keptNames(learner), ["TASK.ZRM"]);
    await drop(learner, file("flower.zrm", text("FLOWER", 11)));
    await learner.dialog("Open FLOWER.ZRM");
    await learner.key("Escape");
    await learner.noDialog();
    for (const [name, steps] of [["FLOWER", 11], ["TASK", 31]]) {
      await comesAgain(learner);
      await learner.enter(`LOAD ${name}`);
      await draws(learner, name, steps);
    }
  }));

test("what one tab saves is in the other, which asks before it replaces that", () =>
  withLearner({}, async (learner) => {
    const other = await anotherTab(learner);
    await save(other, "MINE", 50);
    await learner.page.bringToFront();
    await learner.page.evaluate(() => dispatchEvent(new Event("focus")));
    await learner.page.click("#files");
    await learner.dialog("MINE.ZRM");
    await learner.key("Escape");
    await learner.noDialog();
    await learner.page.focus('[id="Text1(0)"]');
    await learner.enter("LOAD MINE");
    await draws(learner, "MINE", 50);
    await drop(learner, file("MINE.ZRM", text("MINE", 7)));
    await learner.dialog("Replace MINE.ZRM");
    await learner.key("Escape");
    await learner.noDialog();
    await other.page.bringToFront();
    await other.page.reload();
    await other.ready();
    await other.enter("LOAD MINE");
    await draws(other, "MINE", 50);
  }));

test("a dropped program comes into the folder", () =>
  withLearner({}, async (learner) => {
    await drop(learner, file("DROPPED.ZRM", text("DROPPED", 20)));
    await learner.dialog("Open DROPPED.ZRM");
    await learner.key("Enter");
    await learner.noDialog();
    await learner.isLoaded("FD 20");
    await learner.enter("CS");
    await learner.enter("DROPPED");
    assert.equal(await learner.pixelsBeside(["CS", "FD 20"]), 0);
  }));

test("what can't be opened is kept without a question", () =>
  withLearner({}, async (learner) => {
    await drop(learner, file("NOTES.TXT", "hello"));
    await keeps(learner, "NOTES.TXT");
    await learner.page.click("#files");
    await learner.dialog("Save a copy");
  }));

test("a dropped folder is told, and what to do instead", () =>
  withLearner({}, async (learner) => {
    const path = join(folder, "Homework");
    mkdirSync(path);
    await drop(learner, path);
    await learner.dialog("Homework can't be read. If it is a folder");
  }));

test("text dropped within the editor is the editor's", () =>
  withLearner({}, async (learner) => {
    await learner.edit(program("A", 10));
    const isLeftToBrowser = await learner.page.evaluate(() => {
      const dataTransfer = new DataTransfer();
      dataTransfer.setData("text/plain", "FD 10");
      return document.getElementById("Text2").dispatchEvent(new DragEvent("drop", { bubbles: true, cancelable: true, dataTransfer }));
    });
    assert.ok(isLeftToBrowser);
    assert.equal(await learner.dialogText(), "");
  }));
