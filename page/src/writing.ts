// How a file of the learner's folder is written so that it is there, whole, when the promise is kept.

export const folderName = "Zerimo";

/** What the worker `writer.ts` is told: a file of the folder, and what it shall hold. It answers with what went wrong, if anything. */
export type Writing = [name: string, bytes: Uint8Array<ArrayBuffer>];

let writer: Worker | undefined;

/** Writes a file that is there. Fails if the browser refuses; the file is as it was then. To be called one at a time. */
export async function write(handle: FileSystemFileHandle, bytes: Uint8Array<ArrayBuffer>): Promise<void> {
  const { name } = handle;
  if ("createWritable" in handle) return writeAtOnce(handle, bytes);
  writer ??= new Worker("writer.js", { type: "module" });
  const problem = await answered(writer, [name, bytes]);
  if (problem !== "") throw new Error(problem);
}

/** Into a file beside, which takes the place of the other when it is whole. */
async function writeAtOnce(handle: FileSystemFileHandle, bytes: Uint8Array<ArrayBuffer>): Promise<void> {
  const stream = await handle.createWritable();
  try {
    await stream.write(bytes);
    await stream.close();
  } catch (error) {
    await stream.abort().catch(() => undefined);
    throw error;
  }
}

function answered(worker: Worker, writing: Writing): Promise<string> {
  return new Promise((done, fail) => {
    worker.onmessage = ({ data }) => done(data);
    worker.onerror = ({ message }) => fail(new Error(message || "the page's own writer.js can't be loaded."));
    worker.postMessage(writing);
  });
}
