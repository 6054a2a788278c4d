// What must work in every engine, in WebKit. Usage: xvfb-run -a node --test webkit.test.mjs
import { test } from "node:test";
import { flows, refusedFile } from "./common_flows.mjs";
import { withLearner } from "./webkit.mjs";

for (const [name, work] of Object.entries(flows)) test(name, () => withLearner(work));

test("where nothing can be kept, that is told, and nothing typed is lost", () => withLearner(refusedFile));
