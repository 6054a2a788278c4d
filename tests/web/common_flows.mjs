// What must work in every engine.
import assert from "node:assert/strict";

const marked = (learner) => learner.page.evaluate(() => document.querySelector("#List1 [aria-current]")?.textContent ?? "");

export const flows = {
  "the first lesson of the README draws what the runner draws": async (learner) => {
    await learner.shot("start");
    const lines = ["CS", "FD 60", "RT 90", "FD 60", "CS", "SETPC 14", "REPEAT 36 [REPEAT 4 [FD 40 RT 90] RT 10]"];
    for (const line of lines) await learner.enter(line);
    assert.equal(await learner.pixelsBeside(lines), 0);
    await learner.shot("flower");
    await learner.writeProgram(["TO BOX :SIZE", "REPEAT 4 [FD :SIZE RT 90]", "END"]);
    await learner.enter("CS");
    await learner.enter("BOX 50");
    assert.equal(await learner.pixelsBeside([...lines, "CS", "REPEAT 4 [FD 50 RT 90]"]), 0);
  },

  "a box is answered with the keyboard, and what was typed ahead follows": async (learner) => {
    await learner.type('MESSAGE "HELLO"');
    await learner.dialog("HELLO");
    await learner.key("Enter");
    await learner.noDialog();
    await learner.type("WAIT 300");
    await learner.type("MAKE :A 5");
    await learner.type("PRINT :A");
    await learner.key("F3");
    await learner.until(() => document.getElementById("List4").textContent.includes("PRINT :A"));
  },

  "an endless program does not freeze the page, and stops": async (learner) => {
    await learner.type("REPEAT 30000 [REPEAT 30000 [FD 10 RT 7]]");
    await learner.until(() => !document.getElementById("stop").hidden);
    await learner.withCtrl(".");
    await learner.until(() => document.getElementById("stop").hidden);
    await learner.enter("CS");
    assert.equal(await learner.pixelsBeside(["CS"]), 0);
  },

  "each Space runs one line; the chip tells which, and the panel marks it": async (learner) => {
    await learner.writeProgram(["TO BOX :S", "FD :S", "RT 90", "END"]);
    await learner.enter("SHOW DIAGNOSIS");
    await learner.sees("List1");
    await learner.withCtrl("4");
    assert.equal(await learner.text("speed"), "Speed: step");
    await learner.type("BOX 30");
    const steps = [
      ["Your line: BOX 30", ""],
      ["BOX, line 2: FD :S", " 2  FD :S"],
      ["BOX, line 3: RT 90", " 3  RT 90"],
      ["BOX, line 4: END", " 4  END"],
    ];
    for (const [words, line] of steps) {
      await learner.until((text) => document.getElementById("chip").textContent === text, words);
      assert.equal(await marked(learner), line);
      if (line.endsWith("RT 90")) await learner.shot("step");
      await learner.key(" ");
    }
    await learner.chipIsGone();
    assert.equal(await marked(learner), "");
    assert.equal(await learner.value("Text1(3)"), "");
  },
};

/** For a browser that refuses to keep files. */
export async function refusedFile(learner) {
  await learner.saveAs("MINE", ["TO MINE", "FD 50", "END"]);
  await learner.dialog("does not keep MINE.ZRM");
  await learner.key("Enter");
  await learner.noDialog();
  assert.match(await learner.value("Text2"), /^TO MINE\nFD 50\nEND/);
  await learner.key("F2");
  await learner.ready();
  await learner.enter("LOAD MINE");
  await draws(learner, "MINE", 50);
}

/** The lines of a program that goes so many steps. */
export const program = (name, steps) => [`TO ${name}`, `FD ${steps}`, "END"];

/** The names of the files that the browser keeps. */
export const keptNames = (learner) =>
  learner.page.evaluate(async () => {
    const kept = await (await navigator.storage.getDirectory()).getDirectoryHandle("Zerimo");
    return Array.fromAsync(kept.keys());
  });

/** Until the browser keeps a file of this name with these words in it. While it is written, a new one is empty. */
export const keeps = (learner, name, words = "") =>
  learner.until(async (file, part) => {
    const kept = await (await navigator.storage.getDirectory()).getDirectoryHandle("Zerimo");
    const key = (await Array.fromAsync(kept.keys())).find((one) => one.toUpperCase() === file);
    const text = key && (await (await (await kept.getFileHandle(key)).getFile()).text());
    return text && text.includes(part);
  }, name, words);

export async function save(learner, name, steps) {
  await learner.saveAs(name, program(name, steps));
  await learner.noDialog();
  await keeps(learner, `${name}.ZRM`, `FD ${steps}`);
}

export async function comesAgain(learner) {
  await learner.page.reload();
  await learner.ready();
}

export async function draws(learner, word, steps) {
  await learner.enter("CS");
  await learner.enter(word);
  assert.equal(await learner.pixelsBeside(["CS", `FD ${steps}`]), 0);
}

/** What F10 saves is there after a reload, and F9 loads it. */
export async function keptFile(learner) {
  await save(learner, "MINE", 50);
  await comesAgain(learner);
  await learner.key("F9");
  await learner.dialog("");
  await learner.page.keyboard.type("MINE");
  await learner.key("Enter");
  await learner.noDialog();
  await learner.ready();
  await draws(learner, "MINE", 50);
}
