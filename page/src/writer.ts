// Writes into the learner's folder where a browser lets only a worker write, as Safari before 26 does. The file is
// written in its place; if that fails, it gets back what it held.
import { folderName, type Writing } from "./writing";

addEventListener("message", async ({ data: [name, bytes] }: MessageEvent<Writing>) => {
  const problem = await write(name, bytes).then(() => "", ({ message }: Error) => message);
  postMessage(problem);
});

async function write(name: string, bytes: Uint8Array<ArrayBuffer>): Promise<void> {
  const root = await navigator.storage.getDirectory();
  const folder = await root.getDirectoryHandle(folderName);
  const handle = await folder.getFileHandle(name);
  if (!("createSyncAccessHandle" in handle)) throw new Error("this browser is too old for that.");
  const file = await handle.createSyncAccessHandle();
  try {
    const before = new Uint8Array(file.getSize());
    file.read(before, { at: 0 });
    try {
      put(file, bytes);
    } catch (error) {
      put(file, before);
      throw error;
    }
  } finally {
    file.close();
  }
}

function put(file: FileSystemSyncAccessHandle, bytes: Uint8Array<ArrayBuffer>): void {
  if (file.write(bytes, { at: 0 }) < bytes.length) throw new Error("there is no room for it.");
  file.truncate(bytes.length);
  file.flush();
}
