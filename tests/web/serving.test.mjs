// How the page is served, kept for later, and what it says where it can't start. Usage: node --test serving.test.mjs
import assert from "node:assert/strict";
import { spawn, spawnSync } from "node:child_process";
import { existsSync, readFileSync } from "node:fs";
import { createServer } from "node:http";
import { extname, join } from "node:path";
import { after, before, test } from "node:test";
import { pathToFileURL } from "node:url";
import { closeBrowser, openBrowser, withLearner } from "./browsers.mjs";
import { folder, linkWith, serve, serverScript, site } from "./learner.mjs";

before(() => openBrowser("chromium"));
after(closeBrowser);

const kinds = new Map([[".html", "text/html"], [".js", "text/javascript"], [".css", "text/css"], [".wasm", "application/wasm"], [".svg", "image/svg+xml"]]);

/** A server of plain files: two copies of the site in folders, without the headers; everything else is an empty page. */
async function plainServer() {
  const server = createServer((request, response) => {
    const { pathname } = new URL(request.url, "http://localhost");
    const [, copy, name] = /^\/(one|two)\/(.*)$/.exec(pathname) ?? [];
    const file = join(site, name || "index.html");
    if (copy === undefined) return response.writeHead(200, { "Content-Type": "text/html" }).end("<title>other</title>");
    if (!existsSync(file)) return response.writeHead(404).end();
    response.writeHead(200, { "Content-Type": kinds.get(extname(file)) ?? "application/octet-stream" }).end(readFileSync(file));
  });
  await new Promise((listens) => server.listen(0, listens));
  const stop = () => {
    server.closeAllConnections();
    return new Promise((closed) => server.close(closed));
  };
  return { address: `http://localhost:${server.address().port}`, stop };
}

async function withPlainServer(work) {
  const { address, stop } = await plainServer();
  try {
    await withLearner({}, (learner) => work(learner, address, stop));
  } finally {
    await stop();
  }
}

/** Until all is kept for later. */
const isKept = (learner) => learner.page.evaluate(async () => void (await navigator.serviceWorker.ready));

test("after the first visit it works with no server", () =>
  withLearner({}, async (learner) => {
    const [server, address] = await serve();
    await learner.page.goto(address);
    await learner.ready();
    await isKept(learner);
    await new Promise((ended) => {
      server.once("exit", ended);
      server.kill("SIGKILL");
    });
    await learner.page.reload();
    await learner.ready();
    await learner.enter("CS");
    await learner.enter("HELP FD");
    await learner.sees("RichTextBox1");
    await learner.key("Escape");
    assert.equal(await learner.pixelsBeside(["CS"]), 0);
    await learner.page.goto(`${address}${linkWith("TASK.ZRM", "TO TASK\r\nFD 30\r\nEND\r\n")}`);
    await learner.dialog("TASK.ZRM");
    learner.complaints.length = 0;
  }));

test("two copies of the page and another program keep their own things at one origin", () =>
  withPlainServer(async (learner, address, stop) => {
    await learner.page.goto(`${address}/other/`);
    await learner.page.evaluate(async () => void (await (await caches.open("homework")).put("/x", new Response("x"))));
    for (const copy of ["one", "two"]) {
      await learner.page.goto(`${address}/${copy}/`);
      await learner.ready();
      await isKept(learner);
    }
    const names = await learner.page.evaluate(() => caches.keys());
    assert.deepEqual(names.map((name) => name.replace(/[0-9a-f]{16}$/, "")).sort(), ["homework", "zerimo /one/ ", "zerimo /two/ "]);
    await stop();
    for (const copy of ["one", "two"]) {
      await learner.page.goto(`${address}/${copy}/`);
      await learner.ready();
    }
  }));

test("loading all of it again starts it, also where the server sends no headers", () =>
  withPlainServer(async (learner, address) => {
    await learner.page.goto(`${address}/one/`);
    await learner.ready();
    await isKept(learner);
    const client = await learner.page.createCDPSession();
    await learner.page.evaluate(() => (globalThis.isOld = true));
    await client.send("Page.reload", { ignoreCache: true });
    await learner.until(() => globalThis.isOld === undefined);
    await learner.ready();
    await learner.enter("CS");
    assert.equal(await learner.pixelsBeside(["CS"]), 0);
  }));

const refuseServiceWorkers = (page) =>
  page.evaluateOnNewDocument(() => {
    ServiceWorkerContainer.prototype.register = () => Promise.reject(new DOMException("blocked", "SecurityError"));
  });

test("where a policy refuses service workers, the page works if its server sends the headers", () =>
  withLearner({ prepare: refuseServiceWorkers }, async (learner) => {
    await learner.enter("CS");
    assert.equal(await learner.pixelsBeside(["CS"]), 0);
  }));

test("without headers and service workers, it says that it can't start", () =>
  withPlainServer(async (learner, address) => {
    await refuseServiceWorkers(learner.page);
    await learner.page.goto(`${address}/one/`);
    await learner.dialog("does not allow what Zerimo needs");
    assert.equal(await learner.page.$eval("#bar nav", (buttons) => buttons.checkVisibility()), false);
  }));

test("opened as a file, it says what it needs, and has no dead buttons", () =>
  withLearner({}, async (learner) => {
    await learner.page.goto(pathToFileURL(join(site, "index.html")).href);
    await learner.sees("waiting");
    assert.match(await learner.text("waiting"), /not as a file/);
    assert.equal(await learner.page.$eval("#bar nav", (buttons) => buttons.checkVisibility()), false);
    learner.complaints.length = 0;
  }));

test("where the system itself can't be fetched, the page says so", () =>
  withLearner({}, async (learner) => {
    const lame = createServer((request, response) => {
      const name = new URL(request.url, "http://localhost").pathname.slice(1) || "index.html";
      const headers = { "Cross-Origin-Opener-Policy": "same-origin", "Cross-Origin-Embedder-Policy": "require-corp" };
      if (name.endsWith(".wasm") || !existsSync(join(site, name))) return response.writeHead(403, headers).end();
      response.writeHead(200, { ...headers, "Content-Type": kinds.get(extname(name)) ?? "application/octet-stream" });
      response.end(readFileSync(join(site, name)));
    });
    await new Promise((listens) => lame.listen(0, listens));
    await learner.page.goto(`http://localhost:${lame.address().port}/`);
    await learner.dialog("has ended");
    learner.complaints.length = 0;
    lame.closeAllConnections();
    lame.close();
  }));

test("the server answers odd addresses and goes on", async () => {
  const [server, address] = await serve();
  const status = async (path) => (await fetch(address + path)).status;
  try {
    for (const path of ["%00", "%", "%E0%A4%A"]) assert.equal(await status(path), 400, path);
    assert.equal(await status("nothing"), 404);
    assert.equal(await status("%2e%2e/%2e%2e/etc/passwd"), 404);
    assert.equal(await status(""), 200);
  } finally {
    server.kill();
  }
});

test("the server says in a sentence why it can't serve", async () => {
  const [server, address] = await serve();
  const run = (...words) => {
    const { status, stderr } = spawnSync(process.execPath, [serverScript, ...words], { encoding: "utf8" });
    assert.match(stderr, /^[^\n]+\n$/);
    return status;
  };
  try {
    assert.equal(run(site, "banana"), 2);
    assert.equal(run(site, "70000"), 2);
    assert.equal(run(folder, "0"), 2);
    assert.equal(run(site, new URL(address).port), 1);
  } finally {
    server.kill();
  }
});

test("the written site brings its server along", async () => {
  const server = spawn(process.execPath, [join(site, "serve.mjs"), site, "0"]);
  const address = await new Promise((done) => server.stdout.once("data", (words) => done(String(words).match(/http\S+/)[0])));
  assert.equal((await fetch(address)).status, 200);
  server.kill();
});
