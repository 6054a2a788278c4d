// Serves the site on this machine alone. Usage: node serve.mjs FOLDER [PORT]
import { createReadStream, statSync } from "node:fs";
import { createServer } from "node:http";
import { extname, join, normalize, resolve } from "node:path";

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

const [folder = "", port = "8080"] = process.argv.slice(2);
const root = resolve(folder);

createServer((request, response) => {
  const path = decodeURIComponent(new URL(request.url ?? "/", "http://localhost").pathname);
  const file = join(root, normalize(path.endsWith("/") ? `${path}index.html` : path));
  const isThere = file.startsWith(root) && statSync(file, { throwIfNoEntry: false })?.isFile();
  if (!isThere) return response.writeHead(404).end();
  const kind = kinds.get(extname(file)) ?? "application/octet-stream";
  response.writeHead(200, { ...isolation, "Content-Type": kind, "Cache-Control": "no-cache" });
  createReadStream(file).pipe(response);
}).listen(Number(port), "127.0.0.1", function () {
  console.log(`Zerimo is at http://localhost:${this.address().port}/`);
});
