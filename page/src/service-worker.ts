// Keeps the page for later, and adds the headers without which there is no shared memory.
const worker = self as unknown as ServiceWorkerGlobalScope;
declare const version: string;
declare const files: string[];

/** Others keep things at this origin too, such as a Zerimo in another folder of the server. */
const prefix = `zerimo ${new URL(worker.registration.scope).pathname} `;
const cacheName = prefix + version;

const isolation = {
  "Cross-Origin-Opener-Policy": "same-origin",
  "Cross-Origin-Embedder-Policy": "require-corp",
  "Cross-Origin-Resource-Policy": "same-origin",
};

function withIsolation(response: Response): Response {
  const headers = new Headers(response.headers);
  for (const [name, value] of Object.entries(isolation)) headers.set(name, value);
  return new Response(response.body, { status: response.status, statusText: response.statusText, headers });
}

async function answer(request: Request): Promise<Response> {
  const kept = await caches.match(request, { cacheName, ignoreSearch: true });
  return withIsolation(kept ?? (await fetch(request)));
}

async function keep(): Promise<void> {
  const cache = await caches.open(cacheName);
  await cache.addAll(files.map((file) => new Request(file, { cache: "reload" })));
  await worker.skipWaiting();
}

async function takeOver(): Promise<void> {
  const old = (await caches.keys()).filter((name) => name.startsWith(prefix) && name !== cacheName);
  await Promise.all(old.map((name) => caches.delete(name)));
  await worker.clients.claim();
}

worker.addEventListener("install", (event) => event.waitUntil(keep()));

worker.addEventListener("activate", (event) => event.waitUntil(takeOver()));

worker.addEventListener("fetch", (event) => {
  const { request } = event;
  if (request.method === "GET" && new URL(request.url).origin === worker.location.origin) event.respondWith(answer(request));
});
