// The learner's folder in the browser's private file system, and what comes into it and goes out of it.
import { strToU8, unzipSync, zipSync } from "fflate";
import type { File as FolderFile } from "./protocol";
import { folderName, write } from "./writing";

/** What the folder takes: programs, pictures and pages. */
const known = /\.(zrm|bmp|png|jpe?g|gif|rtf|txt)$/iu;

/** What has come into the folder and what is no longer there. */
export interface Changes {
  come: FolderFile[];
  gone: string[];
}

export class Folder {
  /** The learner's files as they are now, also those that could not be kept. */
  private readonly files = new Map<string, Uint8Array>();
  /** The state of each kept file when it was last read or written here. */
  private readonly states = new Map<string, string>();
  private last: Promise<unknown> = Promise.resolve();
  private hasKept = false;

  private constructor(
    private readonly place: FileSystemDirectoryHandle | undefined,
    private readonly samples: Map<string, Uint8Array>,
  ) {}

  /** What was kept, over the delivered files. Without a private file system, as in some private windows, nothing is. */
  static async open(samples: Promise<FolderFile[]>): Promise<Folder> {
    const place = await navigator.storage
      ?.getDirectory()
      .then((root) => root.getDirectoryHandle(folderName, { create: true }))
      .catch(() => undefined);
    const folder = new Folder(place, new Map(await samples));
    await folder.look();
    return folder;
  }

  all(): FolderFile[] {
    return [...this.samples, ...this.files];
  }

  own(): FolderFile[] {
    return [...this.files];
  }

  /** Whether the learner has a file of this name, which is one that `nameFor` gave. */
  has(name: string): boolean {
    return this.files.has(name);
  }

  /** The name of the file in the folder that differs in capitals only, since the system sees no difference, or the given one. */
  nameFor(given: string): string {
    const isSame = (name: string) => name.toUpperCase() === given.toUpperCase();
    return [...this.files.keys(), ...this.samples.keys()].find(isSame) ?? given;
  }

  /** Reads what this page has kept in another tab since. */
  look(): Promise<Changes> {
    return this.inTurn(() => this.read());
  }

  /** Keeps files beyond the closing of the page. Fails if the browser refuses; they are still here then. */
  keep(files: FolderFile[]): Promise<void> {
    for (const [name, bytes] of files) this.files.set(name, bytes);
    return this.inTurn(() => this.write(files));
  }

  /** A sample that a file of the same name has hidden comes again. */
  remove(name: string): Promise<Changes> {
    return this.inTurn(async () => {
      if (this.place) await removed(this.place, name);
      return this.forget([name]);
    });
  }

  /** After all that was begun before. */
  private inTurn<Result>(work: () => Promise<Result>): Promise<Result> {
    const result = this.last.then(work);
    this.last = result.catch(() => undefined);
    return result;
  }

  private forget(names: string[]): Changes {
    for (const name of names) {
      this.files.delete(name);
      this.states.delete(name);
    }
    return {
      come: names.flatMap((name): FolderFile[] => (this.samples.has(name) ? [[name, this.samples.get(name)!]] : [])),
      gone: names.filter((name) => !this.samples.has(name)),
    };
  }

  private async read(): Promise<Changes> {
    const come: FolderFile[] = [];
    const left = new Set(this.states.keys());
    for await (const [name, handle] of this.place?.entries() ?? []) {
      if (handle.kind !== "file") continue;
      left.delete(name);
      const file = await (handle as FileSystemFileHandle).getFile();
      if (this.states.get(name) === stateOf(file)) continue;
      this.states.set(name, stateOf(file));
      come.push([name, new Uint8Array(await file.arrayBuffer())]);
    }
    for (const [name, bytes] of come) this.files.set(name, bytes);
    const gone = this.forget([...left]);
    return { come: [...gone.come, ...come], gone: gone.gone };
  }

  private async write(files: FolderFile[]): Promise<void> {
    const { place } = this;
    if (place === undefined) throw new Error("this browser keeps no files here.");
    // Otherwise the browser may clear what it keeps when it runs short of room.
    if (!this.hasKept) void navigator.storage.persist?.().catch(() => false);
    this.hasKept = true;
    for (const [name, bytes] of files) {
      const isNew = await place.getFileHandle(name).then(() => false, () => true);
      try {
        const handle = await place.getFileHandle(name, { create: true });
        await write(handle, bytes as Uint8Array<ArrayBuffer>);
        this.states.set(name, stateOf(await handle.getFile()));
      } catch (error) {
        if (isNew) await removed(place, name).catch(() => undefined);
        throw error;
      }
    }
  }
}

const stateOf = ({ lastModified, size }: File) => `${lastModified} ${size}`;

/** Removes a file, if it is there. The browser holds it for a moment after a writing that has failed. */
async function removed(place: FileSystemDirectoryHandle, name: string, mostAttempts = 20): Promise<void> {
  for (let attempt = 1; ; ++attempt) {
    try {
      return await place.removeEntry(name);
    } catch (error) {
      const reason = error instanceof DOMException ? error.name : "";
      if (reason === "NotFoundError") return;
      if (reason !== "NoModificationAllowedError" || attempt === mostAttempts) throw error;
    }
    await new Promise((done) => setTimeout(done, 50));
  }
}

/** A file that the user has chosen or dropped, those of an archive one by one. Others than the folder takes are left out. */
export async function imported(file: File): Promise<FolderFile[]> {
  const bytes = new Uint8Array(await file.arrayBuffer());
  const found: FolderFile[] = isArchive(file) ? Object.entries(unzipSync(bytes)) : [[file.name, bytes]];
  return found
    .map(([path, inside]): FolderFile => [path.split(/[\\/]/u).at(-1) ?? "", inside])
    .filter(([name]) => known.test(name));
}

export const isArchive = ({ name }: File) => /\.zip$/iu.test(name);

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
