// The system in its worker. While a line runs or a box stands, this thread is held, and the page lives on.
import start, { type System } from "zerimo";
import { type Call, type File, type FromWorker, Shared, type Start, type ToWorker } from "./protocol";

const folder = "/Zerimo";

const besideThis = (name: string) => new URL(name, self.location.href).href;

/** The module and the font come while the page still gathers its files. */
const loading = Promise.all([
  start({ locateFile: besideThis }),
  fetch(besideThis("font.ttf")).then((font) => font.arrayBuffer()),
]);

const post = (message: FromWorker, move: Transferable[] = []) => self.postMessage(message, { transfer: move });

/** The learner's folder as the system sees it, and what has changed there since the page last heard of it. */
class Folder {
  private readonly known = new Map<string, string>();

  constructor(private readonly files: System["FS"]) {
    files.mkdir(folder);
    files.chdir(folder);
  }

  names(): string[] {
    return this.files.readdir(folder).filter((name) => this.files.isFile(this.files.stat(`${folder}/${name}`).mode));
  }

  put(files: File[]): void {
    for (const [path, bytes] of files) {
      const below = path.split("/").slice(0, -1).join("/");
      if (below !== "" && !this.files.readdir(folder).includes(below)) this.files.mkdir(`${folder}/${below}`);
      this.files.writeFile(`${folder}/${path}`, bytes);
    }
    this.takeChanged();
  }

  remove(names: string[]): void {
    for (const name of this.names().filter((one) => names.includes(one))) {
      this.files.unlink(`${folder}/${name}`);
      this.known.delete(name);
    }
  }

  tellChanged(): void {
    const changed = this.takeChanged();
    if (changed.length > 0) post({ kind: "written", files: changed });
  }

  private takeChanged(): File[] {
    const changed: File[] = [];
    for (const name of this.names()) {
      const { mtime, size } = this.files.stat(`${folder}/${name}`);
      const mark = `${mtime.getTime()} ${size}`;
      if (this.known.get(name) === mark) continue;
      this.known.set(name, mark);
      changed.push([name, this.files.readFile(`${folder}/${name}`)]);
    }
    return changed;
  }
}

class Worker {
  private constructor(
    private readonly system: System,
    private readonly shell: number,
    readonly own: Folder,
  ) {}

  static async begin({ shared, width, height, files }: Start): Promise<Worker> {
    const memory = new Shared(shared);
    const [system, font] = await loading;
    system.FS.writeFile("/font.ttf", new Uint8Array(font));
    const own = new Folder(system.FS);
    system.port = {
      tell: (told) => post({ kind: "told", told }),
      show: (part) => post({ kind: "part", part }, [part.pixels.buffer]),
      ask: (question) => {
        own.tellChanged();
        memory.expectAnswer();
        post({ kind: "ask", question: JSON.parse(question), files: own.names() });
        return memory.awaitAnswer();
      },
      hold: (milliseconds) => {
        own.tellChanged();
        memory.hold(milliseconds);
      },
      takeFrame: () => memory.takeFrame(),
      takeStop: () => memory.takeStop(),
      chosenPause: () => memory.chosenPause(),
      holdLine: (pause) => memory.holdLine(pause),
      timeOfDay: () => new Date().toLocaleTimeString([], { timeStyle: "short" }).replace(/\s/gu, " "),
    };
    own.put(files);
    const shell = system.ccall("StartSystem", "number", ["number", "number"], [width, height]);
    return new Worker(system, shell, own);
  }

  run({ name, words, texts }: Call): void {
    for (const [control, text] of texts) this.call("PutText", [control, text]);
    this.call(name, words);
    this.own.tellChanged();
    post({ kind: "done" });
  }

  private call(name: string, words: (string | number)[]): void {
    const kinds = words.map((word) => (typeof word === "string" ? "string" : "number"));
    this.system.ccall(name, null, ["number", ...kinds], [this.shell, ...words]);
  }
}

let worker: Promise<Worker> | undefined;

self.addEventListener("unhandledrejection", ({ reason }) => post({ kind: "failed", by: String(reason) }));

self.onmessage = async ({ data }: MessageEvent<ToWorker>) => {
  if (data.kind === "start") worker = Worker.begin(data);
  const ready = await worker;
  if (data.kind === "call") ready?.run(data);
  if (data.kind === "put") ready?.own.put(data.files);
  if (data.kind === "remove") ready?.own.remove(data.names);
};
