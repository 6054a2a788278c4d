#!/usr/bin/env node
// Runs every recorded session and every sample through the WebAssembly build and compares transcripts, files and
// pictures with what the native program gave. Usage: tests/web/parity.mjs PROGRAM APP_FOLDER [PART_OF_A_NAME]
import { spawnSync } from "node:child_process";
import { cpSync, existsSync, mkdtempSync, readdirSync, readFileSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import { basename, dirname, join, resolve } from "node:path";
import { fileURLToPath } from "node:url";
import { comparePictures } from "./pictures.mjs";
import { differenceOf, forgiven, linesOf } from "./transcripts.mjs";

const source = resolve(dirname(fileURLToPath(import.meta.url)), "../..");
const [program, appFolder, part = ""] = process.argv.slice(2);
if (!program || !appFolder) {
  console.error("usage: tests/web/parity.mjs PROGRAM APP_FOLDER [PART_OF_A_NAME]");
  process.exit(2);
}

// Printed letters are those of another reader of the same font, and a JPEG is another decoder's.
const otherPixels = new Map([["CARD", 0.03], ["SLIDES", 0.005]]);
function run(folder, words, session) {
  const result = spawnSync(process.execPath, [resolve(program), "--app-folder", ".", "--transcript", "-", ...words], {
    cwd: folder,
    input: session,
    maxBuffer: 1 << 30,
  });
  return { lines: linesOf(result.stdout.toString("utf8")), complaint: result.stderr.toString("utf8") };
}

function inFolder(work) {
  const folder = mkdtempSync(join(tmpdir(), "zerimo-parity-"));
  try {
    return work(folder);
  } finally {
    rmSync(folder, { recursive: true, force: true });
  }
}

function filesDifference(name, after, folder) {
  if (!existsSync(after)) return "";
  const other = readdirSync(after).find((file) => {
    const left = join(folder, file);
    return !existsSync(left) || !readFileSync(join(after, file)).equals(readFileSync(left));
  });
  return other === undefined ? "" : `${name}: the file ${other} differs`;
}

function checkSession(name) {
  const beside = (ending) => join(source, "tests/sessions", name + ending);
  const session = readFileSync(beside(".session"));
  const options = session.toString("latin1").match(/^@ options: (.*)$/m)?.[1].trim().split(/\s+/) ?? [];
  return inFolder((folder) => {
    if (existsSync(beside(".files"))) cpSync(beside(".files"), folder, { recursive: true });
    const { lines, complaint } = run(folder, options, session);
    const difference = differenceOf(name, linesOf(readFileSync(beside(".expected"), "utf8")), lines);
    return difference ? difference + complaint : filesDifference(name, beside(".after"), folder);
  });
}

function checkSample(name) {
  const golden = join(source, "tests/samples", name);
  return inFolder((folder) => {
    cpSync(appFolder, folder, { recursive: true, filter: (file) => !/zerimo(-batch)?$/.test(basename(file)) || file === appFolder });
    const { lines, complaint } = run(folder, ["--picture", "drawn.png"], readFileSync(golden + ".session"));
    const difference = differenceOf(name, linesOf(readFileSync(golden + ".jsonl", "utf8")), lines);
    if (difference) return difference + complaint;
    const wanted = join(source, "docs/images/samples", name + ".png");
    return comparePictures(name, wanted, join(folder, "drawn.png"), otherPixels.get(name) ?? 0);
  });
}

function namesIn(folder) {
  const files = readdirSync(join(source, folder)).filter((file) => file.endsWith(".session") && file.includes(part));
  return files.map((file) => basename(file, ".session"));
}

const sessions = namesIn("tests/sessions").map(checkSession);
const samples = namesIn("tests/samples").map(checkSample);
const differences = [...sessions, ...samples].filter((difference) => difference !== "");
for (const difference of differences) console.log(difference);
for (const place of forgiven) console.log(`forgiven: ${place}`);
console.log(`${sessions.length} sessions, ${samples.length} samples, ${differences.length} differ`);
process.exit(differences.length === 0 && sessions.length + samples.length > 0 ? 0 : 1);
