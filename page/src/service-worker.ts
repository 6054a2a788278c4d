// Keeps the page for later, and adds the headers without which there is no shared memory.
const worker = self as unknown as ServiceWorkerGlobalScope;
declare const version: string;
declare const files: string[];

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
  const kept = await caches.match(request, { ignoreSearch: true });
  return withIsolation(kept ?? (await fetch(request)));
}

worker.addEventListener("install", (event) => {
  event.waitUntil(
    caches
      .open(version)
      .then((cache) => cache.addAll(files.map((file) => new Request(file, { cache: "reload" }))))
      .then(() => worker.skipWaiting()),
  );
});

worker.addEventListener("activate", (event) => {
  const old = caches.keys().then((keys) => keys.filter((key) => key !== version));
  event.waitUntil(old.then((keys) => Promise.all(keys.map((key) => caches.delete(key)))).then(() => worker.clients.claim()));
});

worker.addEventListener("fetch", (event) => {
  const { request } = event;
  if (request.method === "GET" && new URL(request.url).origin === worker.location.origin) event.respondWith(answer(request));
});
