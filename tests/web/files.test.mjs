// What comes into the learner's folder, stays there and goes out of it. Usage: node --test files.test.mjs
import assert from "node:assert/strict";
import { existsSync, readFileSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { closeBrowser, openBrowser, withLearner } from "./browsers.mjs";
import { comesAgain, draws, keeps, keptFile, keptNames, program, refusedFile, save } from "./common_flows.mjs";
import { folder, fromPage } from "./learner.mjs";

before(() => openBrowser("chromium"));
after(closeBrowser);

const { strToU8, unzipSync, zipSync } = fromPage("fflate");

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
    await learner.dialog("can't be read");
  }));

test("a file is deleted only after a question, and a sample that it hid comes again", () =>
  withLearner({}, async (learner) => {
    await save(learner, "FLOWER", 50);
    await learner.page.click("#files");
    for (const [key, isLeft] of [["Escape", true], ["Enter", false]]) {
      await learner.dialog("Save a copy");
      await learner.page.click('[aria-label="Delete FLOWER.ZRM"]');
      await learner.dialog("Delete FLOWER.ZRM");
      await learner.key(key);
      await learner.dialog("Your files");
      assert.equal(/FLOWER\.ZRM/.test(await learner.dialogText()), isLeft);
    }
    await learner.key("Escape");
    await learner.noDialog();
    await learner.key("F2");
    await learner.ready();
    await learner.enter("LOAD FLOWER");
    await learner.key("F1");
    await learner.until(() => document.getElementById("Text2").value.includes("REPEAT"));
    await comesAgain(learner);
    assert.deepEqual(await keptNames(learner), []);
  }));

const refuseDeleting = (page) =>
  page.evaluateOnNewDocument(() => {
    FileSystemDirectoryHandle.prototype.removeEntry = () => Promise.reject(new DOMException("in use", "InvalidStateError"));
  });

test("a file that can't be deleted stays, and the page says so", () =>
  withLearner({ prepare: refuseDeleting }, async (learner) => {
    await save(learner, "MINE", 50);
    await learner.page.click("#files");
    await learner.dialog("Save a copy");
    await learner.page.click('[aria-label="Delete MINE.ZRM"]');
    await learner.dialog("Delete MINE.ZRM");
    await learner.key("Enter");
    await learner.dialog("does not delete MINE.ZRM: in use");
    await learner.key("Enter");
    await learner.dialog("Your files");
    assert.match(await learner.dialogText(), /MINE\.ZRM/);
    assert.deepEqual(await keptNames(learner), ["MINE.ZRM"]);
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

/** The store is full once something has been begun. */
const refuseBytes = (page) =>
  page.evaluateOnNewDocument(() => {
    FileSystemWritableFileStream.prototype.write = () => Promise.reject(new DOMException("full", "QuotaExceededError"));
  });

test("a file that could not be kept leaves no empty one behind", () =>
  withLearner({ prepare: refuseBytes }, async (learner) => {
    await refusedFile(learner);
    assert.deepEqual(await keptNames(learner), []);
  }));

/** The browser still holds the file after the writing has failed. */
const refuseBytesAndHold = async (page) => {
  await refuseBytes(page);
  await page.evaluateOnNewDocument(() => {
    const { removeEntry } = FileSystemDirectoryHandle.prototype;
    let attempts = 0;
    FileSystemDirectoryHandle.prototype.removeEntry = function (name) {
      if (++attempts <= 3) return Promise.reject(new DOMException("held", "NoModificationAllowedError"));
      return removeEntry.call(this, name);
    };
  });
};

test("an empty file that the browser holds for a moment is not left behind either", () =>
  withLearner({ prepare: refuseBytesAndHold }, async (learner) => {
    await refusedFile(learner);
    assert.deepEqual(await keptNames(learner), []);
  }));

/** Only workers write, as in Safari before 26. The one that does finds `change` done. */
const leaveWritingToWorkers = (change = "") => async (page) => {
  await page.setBypassCSP(true);
  await page.evaluateOnNewDocument((script) => {
    delete FileSystemFileHandle.prototype.createWritable;
    const { Worker } = globalThis;
    const module = (text) => URL.createObjectURL(new Blob([text], { type: "text/javascript" }));
    const after = (address) => `import "${module(script)}"; import "${new URL(address, location.href)}";`;
    globalThis.Worker = function (address, options) {
      return new Worker(address === "writer.js" ? module(after(address)) : address, options);
    };
  }, change);
};

const onWrite = (action) => `
  let writes = 0;
  const { write } = FileSystemSyncAccessHandle.prototype;
  FileSystemSyncAccessHandle.prototype.write = function (bytes, place) {
    ++writes;
    ${action}
    return write.call(this, bytes, place);
  };`;
const refusesAll = onWrite('if (bytes.length > 0) throw new DOMException("full", "QuotaExceededError");');
const hasRoomForFiveInTheSecond = onWrite("if (writes === 2) bytes = bytes.subarray(0, 5);");

const mine = "TO MINE\r\nFD 7\r\nEND\r\n";
const keptText = (learner) =>
  learner.page.evaluate(async () => {
    const kept = await (await navigator.storage.getDirectory()).getDirectoryHandle("Zerimo");
    return (await (await kept.getFileHandle("MINE.ZRM")).getFile()).text();
  });

test("where only workers write, a file is there after a reload, also when it is written again", () =>
  withLearner({ prepare: leaveWritingToWorkers() }, async (learner) => {
    await save(learner, "MINE", 50);
    await comesAgain(learner);
    await learner.saveAs("MINE", program("MINE", 7));
    await learner.untilHere(async () => (await keptText(learner)) === mine, "the new text");
    await comesAgain(learner);
    await learner.enter("LOAD MINE");
    await draws(learner, "MINE", 7);
    assert.deepEqual(await keptNames(learner), ["MINE.ZRM"]);
  }));

test("where only workers write, a store that is full is told, and nothing typed is lost", () =>
  withLearner({ prepare: leaveWritingToWorkers(refusesAll) }, async (learner) => {
    await refusedFile(learner);
    assert.deepEqual(await keptNames(learner), []);
  }));

test("where only workers write, a file that finds no room holds what it held", () =>
  withLearner({ prepare: leaveWritingToWorkers(hasRoomForFiveInTheSecond) }, async (learner) => {
    await save(learner, "MINE", 7);
    await learner.untilHere(async () => (await keptText(learner)) === mine, "the first text");
    await learner.key("F2");
    await learner.ready();
    await learner.saveAs("MINE", program("OTHER", 50));
    await learner.dialog("does not keep MINE.ZRM");
    assert.equal(await keptText(learner), mine);
  }));

const forgetWriting = leaveWritingToWorkers("delete FileSystemFileHandle.prototype.createSyncAccessHandle;");

test("a browser that is too old to keep files says so", () =>
  withLearner({ prepare: forgetWriting }, async (learner) => {
    await learner.saveAs("MINE", program("MINE", 50));
    await learner.dialog("this browser is too old");
  }));

const countAsking = (page) =>
  page.evaluateOnNewDocument(() => {
    globalThis.asked = 0;
    StorageManager.prototype.persist = async () => ++globalThis.asked > 0;
  });

test("the browser is asked once to keep the files for good", () =>
  withLearner({ prepare: countAsking }, async (learner) => {
    const asked = () => learner.page.evaluate(() => globalThis.asked);
    assert.equal(await asked(), 0);
    await save(learner, "MINE", 50);
    await learner.key("F10");
    await learner.dialog("");
    await learner.page.keyboard.type("AGAIN");
    await learner.key("Enter");
    await learner.noDialog();
    await keeps(learner, "AGAIN.ZRM");
    assert.equal(await asked(), 1);
  }));

test("a failure of the system tells where the text of the editor is", () =>
  withLearner({}, async (learner) => {
    await learner.saveAs("bad/name", program("MINE", 50));
    await learner.dialog("The text of the editor is in your folder, as Rescued.ZRM.");
    await learner.key("Enter");
    await learner.untilHere(() => learner.page.evaluate(() => document.getElementById("Text2").value === "").catch(() => false));
    await learner.ready();
    await learner.enter("LOAD RESCUED");
    await draws(learner, "MINE", 50);
  }));
