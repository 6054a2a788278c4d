// Sessions whose time is that of the interpreter, and how long a program takes for them. They run for seconds: an engine
// of WebAssembly compiles a module hastily, and what runs often once more.
import { spawnSync } from "node:child_process";

const runs = 5;

export const sessions = {
  "sums": "MAKE :A 0\nREPEAT 20000 [REPEAT 1500 [MAKE :A :A+1]]",
  "drawing": "RESOLUTION 5\nREPEAT 10000 [REPEAT 1000 [FD 3 RT 7]]",
};

function seconds(command, words, session) {
  const times = Array.from({ length: runs }, () => {
    const start = performance.now();
    const { error, status } = spawnSync(command, [...words, "--seconds", "0", "--steps", "0"], { input: session });
    if (error) throw error;
    if (status !== 0) throw new Error(`${command} ended with ${status}`);
    return performance.now() - start;
  });
  return Math.min(...times) / 1000;
}

/** The time of a session, less that of an empty one. */
export const net = (command, words, session) => seconds(command, words, session) - seconds(command, words, "");
