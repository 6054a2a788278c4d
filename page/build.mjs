// Makes the static site. Usage: node build.mjs SYSTEM_FOLDER APP_FOLDER OUT_FOLDER
//   SYSTEM_FOLDER  zerimo.mjs, zerimo.wasm and font.ttf, as the preset web builds them
//   APP_FOLDER     the samples and ZMHELP
import { createHash } from "node:crypto";
import { cpSync, mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { dirname, join, resolve } from "node:path";
import { fileURLToPath } from "node:url";
import { build } from "esbuild";
import { zipSync } from "fflate";

const page = dirname(fileURLToPath(import.meta.url));
const [system, app, out] = process.argv.slice(2).map((path) => resolve(path));
if (!out) {
  console.error("usage: node build.mjs SYSTEM_FOLDER APP_FOLDER OUT_FOLDER");
  process.exit(2);
}

const isDelivered = (name) => /^ZMHELP\/|^[^/]+\.(ZRM|JPG)$/.test(name);

function folderArchive() {
  const names = readdirSync(app, { recursive: true, withFileTypes: true })
    .filter((entry) => !entry.isDirectory())
    .map((entry) => join(entry.parentPath, entry.name).slice(app.length + 1))
    .filter(isDelivered)
    .sort();
  return zipSync(Object.fromEntries(names.map((name) => [name, readFileSync(join(app, name))])), { mtime: "1980-01-02" });
}

const bundled = { bundle: true, format: "esm", target: "es2022", minify: true, outdir: out, logLevel: "warning" };

rmSync(out, { recursive: true, force: true });
mkdirSync(out, { recursive: true });
await build({
  ...bundled,
  entryPoints: [...["main", "worker", "writer"].map((name) => join(page, `src/${name}.ts`))],
  alias: { zerimo: join(system, "zerimo.mjs") },
});
for (const name of ["zerimo.wasm", "font.ttf"]) cpSync(join(system, name), join(out, name));
for (const name of ["index.html", "style.css", "manifest.webmanifest"]) cpSync(join(page, name), join(out, name));
cpSync(join(page, "../packaging/icons/zerimo.svg"), join(out, "icon.svg"));
writeFileSync(join(out, "folder.zip"), folderArchive());

const files = readdirSync(out).sort();
const version = createHash("sha256");
for (const name of files) version.update(readFileSync(join(out, name)));
await build({
  ...bundled,
  entryPoints: [join(page, "src/service-worker.ts")],
  define: { version: JSON.stringify(version.digest("hex").slice(0, 16)), files: JSON.stringify(["./", ...files]) },
});
// Beside the page, for a memory stick; browsers keep all files but this one.
cpSync(join(page, "serve.mjs"), join(out, "serve.mjs"));
