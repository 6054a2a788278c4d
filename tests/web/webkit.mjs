// Learners in WebKitGTK's own browser, each in one of their own, through its WebDriver. To be run in xvfb-run.
import { spawn } from "node:child_process";
import { writeFileSync } from "node:fs";
import { createServer } from "node:net";
import { after, before } from "node:test";
import { setTimeout as later } from "node:timers/promises";
import { clearUp, Learner } from "./learner.mjs";

const binary = process.env.ZERIMO_WEBKIT ?? "/usr/lib/x86_64-linux-gnu/webkit2gtk-4.1/MiniBrowser";
/** What the engine has, but WebKitGTK 2.50 switches off: shared memory and the private file system. */
const environment = { ...process.env, JSC_useSharedArrayBuffer: "1" };
const features = "--features=StorageAPI,FileSystem,AccessHandle,FileSystemWritableStream";

/** The keys that WebDriver writes with characters of its own. */
const keys = new Map([
  ["Enter", "\ue007"], ["\n", "\ue007"], ["Escape", "\ue00c"], ["Control", "\ue009"],
  ["F1", "\ue031"], ["F2", "\ue032"], ["F3", "\ue033"], ["F10", "\ue03a"],
]);

let driver;
let address;

function freePort() {
  return new Promise((done) => {
    const server = createServer().listen(0, "127.0.0.1", () => {
      const { port } = server.address();
      server.close(() => done(port));
    });
  });
}

async function command(method, path, body) {
  const response = await fetch(address + path, { method, body: body && JSON.stringify(body) });
  const { value } = await response.json();
  if (value?.error) throw new Error(`${path}: ${value.error}: ${value.message}`);
  return value;
}

before(async () => {
  const port = await freePort();
  driver = spawn("WebKitWebDriver", [`--port=${port}`], { env: environment, stdio: "ignore" });
  address = `http://127.0.0.1:${port}`;
  for (const end = Date.now() + 15_000; Date.now() < end; await later(50)) {
    if (await command("GET", "/status").catch(() => undefined)) return;
  }
  throw new Error("WebKitWebDriver does not answer");
});

after(() => {
  driver.kill();
  clearUp();
});

/** As much of a driver's page as a learner needs. */
class Page {
  static async open() {
    const options = { binary, args: ["--automation", features] };
    const wanted = { alwaysMatch: { "webkitgtk:browserOptions": options } };
    const { sessionId } = await command("POST", "/session", { capabilities: wanted });
    return new Page(`/session/${sessionId}`);
  }

  constructor(session) {
    this.session = session;
    this.keyboard = {
      down: (key) => this.#keys([["keyDown", key]]),
      up: (key) => this.#keys([["keyUp", key]]),
      press: (key) => this.#keys([["keyDown", key], ["keyUp", key]]),
      type: (text) => this.#keys([...text].flatMap((key) => [["keyDown", key], ["keyUp", key]])),
    };
  }

  close() {
    return command("DELETE", this.session);
  }

  goto(url) {
    return command("POST", `${this.session}/url`, { url });
  }

  evaluate(work, ...words) {
    return command("POST", `${this.session}/execute/sync`, { script: `return (${work}).apply(null, arguments)`, args: words });
  }

  async screenshot({ path }) {
    writeFileSync(path, Buffer.from(await command("GET", `${this.session}/screenshot`), "base64"));
  }

  #keys(moves) {
    const actions = moves.map(([type, key]) => ({ type, value: keys.get(key) ?? key }));
    return command("POST", `${this.session}/actions`, { actions: [{ type: "key", id: "keyboard", actions }] });
  }
}

export async function withLearner(work) {
  const page = await Page.open();
  const learner = new Learner(page, () => page.close());
  try {
    await learner.come();
    await work(learner);
  } finally {
    await learner.leave();
  }
}
