#!/usr/bin/env node
// Holds generated sessions, run by the build for the web, against the native results: transcripts, every operation of
// the surface, and the sum of the pixels. Usage: tests/web/random_parity.mjs NATIVE_FOLDER RUN_SESSIONS COUNT [SEED]
import { spawn, spawnSync } from "node:child_process";
import { join } from "node:path";
import { differenceOf, forgiven, linesOf } from "./transcripts.mjs";

const [nativeFolder, program, count, seed = "1"] = process.argv.slice(2);
if (!nativeFolder || !program || !(count > 0)) {
  console.error("usage: tests/web/random_parity.mjs NATIVE_FOLDER RUN_SESSIONS COUNT [SEED]");
  process.exit(2);
}
const sessionsAtOnce = 100;

function collect(command, words, input) {
  return new Promise((resolve, reject) => {
    const child = spawn(command, words, { stdio: ["pipe", "pipe", "inherit"] });
    const parts = [];
    child.stdout.on("data", (part) => parts.push(part));
    child.on("error", reject);
    child.on("close", (status) => {
      if (status !== 0) return reject(new Error(`${command} ended with ${status}`));
      resolve(Buffer.concat(parts).toString("utf8").split("\f").slice(0, -1).map(linesOf));
    });
    child.stdin.end(input);
  });
}

/** Events of a session without its end, if the clock stopped it on either side. */
function untilClock(...transcripts) {
  if (!transcripts.some((lines) => lines.at(-2) === '{"event":"stopped","by":"seconds"}')) return transcripts;
  const common = Math.min(...transcripts.map((lines) => lines.length)) - 2;
  ++byClock;
  return transcripts.map((lines) => lines.slice(0, common));
}

let [events, byClock] = [0, 0];
for (let from = 0; from < Number(count); from += sessionsAtOnce) {
  const first = Number(seed) + from;
  const these = Math.min(sessionsAtOnce, count - from);
  const writing = spawnSync(join(nativeFolder, "write_sessions"), [String(these), String(first)], { maxBuffer: 1 << 28 });
  const [wanted, found] = await Promise.all([
    collect(join(nativeFolder, "run_sessions"), [], writing.stdout),
    collect(process.execPath, [program], writing.stdout),
  ]);
  if (wanted.length !== these || found.length !== these) throw new Error(`seeds from ${first}: a transcript is missing`);
  for (let n = 0; n < these; ++n) {
    const difference = differenceOf(`seed ${first + n}`, ...untilClock(wanted[n], found[n]));
    if (difference) {
      console.log(difference);
      process.exit(1);
    }
    events += wanted[n].length;
  }
}
for (const place of forgiven) console.log(`forgiven: ${place}`);
console.log(`${count} sessions with ${events} events, ${byClock} stopped by the clock, ${forgiven.length} digits forgiven`);
