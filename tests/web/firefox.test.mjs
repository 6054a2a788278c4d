// What must work in every engine, in Firefox. Usage: node --test firefox.test.mjs
import { after, before, test } from "node:test";
import { closeBrowser, openBrowser, withLearner } from "./browsers.mjs";
import { flows, keptFile } from "./common_flows.mjs";

before(() => openBrowser("firefox"));
after(closeBrowser);

for (const [name, work] of Object.entries(flows)) test(name, () => withLearner({}, work));

test("what F10 saves is there after a reload, and F9 loads it", () => withLearner({}, keptFile));
