#!/usr/bin/env node
// How fast the build for the web is beside the native one: the time of a session, less that of an empty one.
// Usage: tests/web/speed.mjs NATIVE_PROGRAM PROGRAM
import { spawnSync } from "node:child_process";

const [native, program] = process.argv.slice(2);
if (!program) {
  console.error("usage: tests/web/speed.mjs NATIVE_PROGRAM PROGRAM");
  process.exit(2);
}
const runs = 5;
const sessions = {
  "sums": "MAKE :A 0\nREPEAT 300 [REPEAT 300 [MAKE :A :A+1]]",
  "drawing": "RESOLUTION 5\nREPEAT 300 [REPEAT 300 [FD 3 RT 7]]",
};

function seconds(command, words, session) {
  const times = Array.from({ length: runs }, () => {
    const start = performance.now();
    const { status } = spawnSync(command, [...words, "--seconds", "0"], { input: session });
    if (status !== 0) throw new Error(`${command} ended with ${status}`);
    return performance.now() - start;
  });
  return Math.min(...times) / 1000;
}

const net = (command, words, session) => seconds(command, words, session) - seconds(command, words, "");

for (const [name, session] of Object.entries(sessions)) {
  const [there, here] = [net(native, [], session), net(process.execPath, [program], session)];
  console.log(`${name}: native ${there.toFixed(2)} s, here ${here.toFixed(2)} s, ${(there / here).toFixed(2)} of native speed`);
}
