// Serves the site on this machine alone. Usage: node serve.mjs [FOLDER [PORT]]; by default, the folder that it is in
import { createReadStream, statSync } from "node:fs";
import { createServer } from "node:http";
import { dirname, extname, join, normalize, resolve, sep } from "node:path";
import { fileURLToPath } from "node:url";

const kinds = new Map([
  [".html", "text/html; charset=utf-8"],
  [".js", "text/javascript"],
  [".css", "text/css"],
  [".wasm", "application/wasm"],
  [".svg", "image/svg+xml"],
  [".webmanifest", "application/manifest+json"],
]);
const isolation = {
  "Cross-Origin-Opener-Policy": "same-origin",
  "Cross-Origin-Embedder-Policy": "require-corp",
  "Cross-Origin-Resource-Policy": "same-origin",
};

const [folder = dirname(fileURLToPath(import.meta.url)), port = "8080"] = process.argv.slice(2);
const root = resolve(folder);

function end(status, sentence) {
  console.error(sentence);
  process.exit(status);
}

/** The file for the path of an address, or nothing if it is no such path. */
function fileOf(address) {
  try {
    const path = decodeURIComponent(new URL(address, "http://localhost").pathname);
    return path.includes("\0") ? undefined : join(root, normalize(path.endsWith("/") ? `${path}index.html` : path));
  } catch {
    return undefined;
  }
}

const isFile = (path) => statSync(path, { throwIfNoEntry: false })?.isFile() === true;

if (!/^\d+$/.test(port) || Number(port) > 65535) end(2, `There is no port ${port}: ports are numbers up to 65535.`);
if (!isFile(join(root, "index.html"))) end(2, `There is no index.html in ${root}: "./web --out DIR" writes the page into a folder.`);

const server = createServer((request, response) => {
  const file = fileOf(request.url ?? "/");
  if (file === undefined) return response.writeHead(400).end();
  if (!file.startsWith(root + sep) || !isFile(file)) return response.writeHead(404).end();
  const kind = kinds.get(extname(file)) ?? "application/octet-stream";
  response.writeHead(200, { ...isolation, "Content-Type": kind, "Cache-Control": "no-cache" });
  createReadStream(file).on("error", () => response.destroy()).pipe(response);
});
server.on("error", ({ code }) => end(1, code === "EADDRINUSE" ? `Port ${port} is in use: name another one.` : `Port ${port} can't be used: ${code}.`));
server.listen(Number(port), "127.0.0.1", () => console.log(`Zerimo is at http://localhost:${server.address().port}/`));
