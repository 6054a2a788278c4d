// What comes into the learner's folder, stays there and goes out of it. Usage: node --test files.test.mjs
import assert from "node:assert/strict";
import { existsSync, readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { closeBrowser, openBrowser, withLearner } from "./browsers.mjs";
import { comesAgain, draws, keeps, keptFile, program, refusedFile, save } from "./common_flows.mjs";
import { folder, fromPage } from "./learner.mjs";

before(() => openBrowser("chromium"));
after(closeBrowser);

const { deflateSync, strToU8, unzipSync, zipSync } = fromPage("fflate");

test("what F10 saves is there after a reload, and F9 loads it", () => withLearner({}, keptFile));

test("SHOW SAVEAS and SHOW OPEN work by keyboard", () =>
  withLearner({}, async (learner) => {
    await learner.writeProgram(program("OTHER", 40));
    await learner.type("SHOW SAVEAS");
    await learner.dialog("Save As");
    await learner.page.keyboard.type("OTHER");
    await learner.key("Enter");
    await learner.noDialog();
    await keeps(learner, "OTHER.ZRM");
    await comesAgain(learner);
    await learner.type("SHOW OPEN");
    await learner.dialog("OTHER.ZRM");
    await learner.page.keyboard.type("OTHER.ZRM");
    await learner.key("Enter");
    await learner.noDialog();
    await learner.ready();
    await draws(learner, "OTHER", 40);
  }));

test("a file is chosen from the list with arrows and Enter, and Esc cancels", () =>
  withLearner({}, async (learner) => {
    await learner.type("SHOW OPEN");
    await learner.dialog("FLOWER.ZRM");
    await learner.key("Escape");
    await learner.noDialog();
    await learner.type("SHOW OPEN");
    await learner.dialog("FLOWER.ZRM");
    await learner.page.focus("dialog select");
    await learner.page.keyboard.type("FLOWER");
    await learner.key("Enter");
    await learner.noDialog();
    await learner.ready();
    await learner.key("F1");
    await learner.until(() => document.getElementById("Text2").value.includes("FLOWER"));
  }));

test("all files go out as an archive, and come in from it", async () => {
  const archive = join(folder, "Zerimo.zip");
  await withLearner({}, async (learner) => {
    await save(learner, "MINE", 50);
    const client = await learner.page.createCDPSession();
    await client.send("Page.setDownloadBehavior", { behavior: "allow", downloadPath: folder });
    await learner.page.click("#files");
    await learner.dialog("MINE.ZRM");
    await learner.page.click("dialog .buttons button");
    await learner.untilHere(() => existsSync(archive));
    const names = Object.keys(unzipSync(readFileSync(archive)));
    assert.deepEqual(names, ["MINE.ZRM"]);
  });
  await withLearner({}, async (learner) => {
    await learner.page.click("#files");
    await learner.dialog("Bring in");
    await (await learner.page.$("dialog input[type=file]")).uploadFile(archive);
    await learner.noDialog();
    await keeps(learner, "MINE.ZRM");
    await learner.enter("LOAD MINE");
    await draws(learner, "MINE", 50);
  });
});

test("an archive that can't be read is told", () =>
  withLearner({}, async (learner) => {
    const archive = join(folder, "BROKEN.zip");
    writeFileSync(archive, "no archive");
    await learner.page.click("#files");
    await learner.dialog("Bring in");
    await (await learner.page.$("dialog input[type=file]")).uploadFile(archive);
    await learner.dialog("can not be read");
  }));

test("an archive replaces a file only after a question", () =>
  withLearner({}, async (learner) => {
    await save(learner, "MINE", 50);
    const archive = join(folder, "Theirs.zip");
    writeFileSync(archive, zipSync({ "MINE.ZRM": strToU8("TO MINE\r\nFD 99\r\nEND\r\n") }));
    await learner.page.click("#files");
    await learner.dialog("Bring in");
    await (await learner.page.$("dialog input[type=file]")).uploadFile(archive);
    await learner.dialog("Replace MINE.ZRM");
    await learner.key("Escape");
    await learner.noDialog();
    await comesAgain(learner);
    await learner.enter("LOAD MINE");
    await draws(learner, "MINE", 50);
  }));

/** The browser's store is full. */
const refuse = (page) =>
  page.evaluateOnNewDocument(() => {
    FileSystemFileHandle.prototype.createWritable = () => Promise.reject(new DOMException("full", "QuotaExceededError"));
  });

test("a store that refuses is told, and nothing typed is lost", () => withLearner({ prepare: refuse }, refusedFile));

test("an address brings a program, asks, and runs nothing by itself", async () => {
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
    const file = join(folder, "DROPPED.ZRM");
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
