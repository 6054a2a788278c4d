// The learner's folder in the browser's private file system, and what comes into it and goes out of it.
import { strToU8, unzipSync, zipSync } from "fflate";
import type { File as FolderFile } from "./protocol";

const folderName = "Zerimo";

/** What the folder takes: programs, pictures and pages. */
const known = /\.(zrm|bmp|png|jpe?g|gif|rtf|txt)$/iu;

export class Folder {
  /** All files as they are now, also those that could not be kept. */
  private readonly files = new Map<string, Uint8Array>();
  private writing: Promise<void> = Promise.resolve();

  private constructor(private readonly place: FileSystemDirectoryHandle | undefined) {}

  /** What was kept. Without a private file system, as in some private windows, nothing is. */
  static async open(): Promise<Folder> {
    const place = await navigator.storage
      ?.getDirectory()
      .then((root) => root.getDirectoryHandle(folderName, { create: true }))
      .catch(() => undefined);
    const folder = new Folder(place);
    for await (const [name, handle] of place?.entries() ?? []) {
      if (handle.kind !== "file") continue;
      const bytes = await (await (handle as FileSystemFileHandle).getFile()).arrayBuffer();
      folder.files.set(name, new Uint8Array(bytes));
    }
    return folder;
  }

  all(): FolderFile[] {
    return [...this.files];
  }

  has(name: string): boolean {
    return [...this.files.keys()].some((file) => file.toUpperCase() === name.toUpperCase());
  }

  /** Keeps files beyond the closing of the page. Fails if the browser refuses; they are still here then. */
  keep(files: FolderFile[]): Promise<void> {
    for (const [name, bytes] of files) this.files.set(name, bytes);
    this.writing = this.writing.catch(() => undefined).then(() => this.write(files));
    return this.writing;
  }

  private async write(files: FolderFile[]): Promise<void> {
    if (this.place === undefined) throw new Error("this browser keeps no files here");
    for (const [name, bytes] of files) {
      const handle = await this.place.getFileHandle(name, { create: true });
      const stream = await handle.createWritable();
      await stream.write(bytes as Uint8Array<ArrayBuffer>);
      await stream.close();
    }
  }
}

/** Files that the user has chosen or dropped, those of archives one by one. Others than the folder takes are left out. */
export async function imported(files: Iterable<File>): Promise<FolderFile[]> {
  const found: FolderFile[] = [];
  for (const file of files) {
    const bytes = new Uint8Array(await file.arrayBuffer());
    if (/\.zip$/iu.test(file.name)) found.push(...Object.entries(unzipSync(bytes)));
    else found.push([file.name, bytes]);
  }
  return found
    .map(([path, bytes]): FolderFile => [path.split(/[\\/]/u).at(-1) ?? "", bytes])
    .filter(([name]) => known.test(name));
}

/** The delivered samples and help pages. */
export async function delivered(): Promise<FolderFile[]> {
  const archive = await fetch("folder.zip");
  return Object.entries(unzipSync(new Uint8Array(await archive.arrayBuffer())));
}

export function archive(files: FolderFile[]): Uint8Array {
  return zipSync(Object.fromEntries(files));
}

/** Hands a file to the user. */
export function download(name: string, bytes: Uint8Array): void {
  const address = URL.createObjectURL(new Blob([bytes as Uint8Array<ArrayBuffer>]));
  const link = document.createElement("a");
  Object.assign(link, { href: address, download: name });
  link.click();
  setTimeout(() => URL.revokeObjectURL(address), 10_000);
}

/** A program as a file, whose characters are single bytes. */
export const programBytes = (text: string) => strToU8(text, true);
