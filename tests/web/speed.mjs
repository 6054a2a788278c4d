#!/usr/bin/env node
// How fast the build for the web is under node, beside the native one. Usage: tests/web/speed.mjs NATIVE_PROGRAM PROGRAM
import { net, sessions } from "./sessions_to_time.mjs";

const [native, program] = process.argv.slice(2);
if (!program) {
  console.error("usage: tests/web/speed.mjs NATIVE_PROGRAM PROGRAM");
  process.exit(2);
}
for (const [name, session] of Object.entries(sessions)) {
  const [there, here] = [net(native, [], session), net(process.execPath, [program], session)];
  console.log(`${name}: native ${there.toFixed(2)} s, here ${here.toFixed(2)} s, ${(there / here).toFixed(2)} of native speed`);
}
