import { Boxes, confirmed, dialogOf, element, open, tell } from "./boxes";
import { Chip } from "./chip";
import { Events } from "./events";
import { delivered, download, Folder } from "./folder";
import { filesDialog, takeFiles } from "./files";
import { Keys, meansStop } from "./keys";
import { programIn } from "./link";
import { letPaletteBeDragged } from "./palette";
import { type File, type FromWorker, Shared, type Told, type ToWorker } from "./protocol";
import { Speed } from "./speed";
import { screenFor, Stage } from "./stage";
import { collect, settle, showPage, unitsPerPixel } from "./views";

/** How often the picture is shown as it grows while a line runs. */
const frameMilliseconds = 16;

class Page {
  private readonly shared = new Shared();
  private readonly bar = new Bar();
  private readonly chip = new Chip((isLong) => this.bar.showStop(isLong));
  private readonly speed = new Speed(this.shared, (line) => this.chip.say(line));
  private readonly boxes = new Boxes(() => this.shared.stop());
  private readonly events = new Events((message) => this.post(message), collect, (running) => this.run(running));
  private readonly stage: Stage;
  private readonly keys: Keys;
  private started = () => {};
  private frames = 0;

  constructor(
    private readonly folder: Folder,
    private readonly worker: Worker,
  ) {
    const { width, height } = screenFor(innerWidth, innerHeight - this.bar.height());
    this.stage = new Stage(this.events, width, height);
    this.stage.box.append(this.chip.box);
    document.body.append(this.stage.box);
    this.keys = new Keys(this.stage, this.events);
    letPaletteBeDragged(this.stage, this.events);
    this.fit();
    addEventListener("resize", () => this.fit());
    addEventListener("keydown", (event) => this.stopByKey(event), { capture: true });
    this.worker.onmessage = ({ data }: MessageEvent<FromWorker>) => this.take(data);
    this.bar.connect((key) => this.keys.send(key), () => this.stop(), () => void this.showFiles());
    this.letFilesBeDropped();
  }

  /** Until the system has started. */
  start(files: File[]): Promise<void> {
    const { memory: shared } = this.shared;
    const [width, height] = [this.stage.width * unitsPerPixel, this.stage.height * unitsPerPixel];
    this.post({ kind: "start", shared, width, height, files: [...files, ...this.folder.all()] });
    this.events.deliver("Load");
    void this.offerLinked();
    return new Promise((resolve) => (this.started = resolve));
  }

  private post(message: ToWorker): void {
    this.worker.postMessage(message);
  }

  private fit(): void {
    this.stage.fit(innerWidth, innerHeight - this.bar.height());
  }

  private take(message: FromWorker): void {
    if (message.kind === "told") for (const told of JSON.parse(message.told) as Told[]) this.show(told);
    if (message.kind === "part") this.stage.surface.showPart(message.part);
    if (message.kind === "ask") void this.answer(message.question, message.files);
    if (message.kind === "written") void this.keep(message.files);
    if (message.kind !== "done") return;
    settle();
    this.events.done();
    this.started();
  }

  private show(told: Told): void {
    const name = told.name ?? "";
    if (told.event === "focus") return this.keys.follow(name);
    if (told.event === "line") return this.speed.show(told, this.stage);
    if (told.event === "page") return showPage(this.stage.page, told);
    if (told.event === "ended") return this.end(String(told["by"]));
    if (told.event === "words") return this.describe(told);
    if (told.event === "beep") return beep();
    if (name.startsWith("Timer")) return this.events.setTimer(told);
    if (name === "Form1") return this.bar.caption(String(told["Caption"]));
    if (!this.stage.surface.showOverlay(told)) this.stage.view(name)?.show(told);
  }

  private describe(told: Told): void {
    const box = this.stage.view(told.name ?? "")?.box;
    if (box === undefined) return;
    const part = box.matches("label") ? box.querySelector("input")! : box;
    part.setAttribute("aria-label", String(told["label"]));
    if (told["tip"] !== "") box.title = String(told["tip"]);
  }

  private async answer(question: Told, files: string[]): Promise<void> {
    const text = await this.boxes.ask(question, files);
    this.shared.answer(text);
  }

  private run(running: boolean): void {
    clearInterval(this.frames);
    if (running) this.frames = window.setInterval(() => this.shared.offerFrame(), frameMilliseconds);
    this.chip.run(running);
    if (!running) this.boxes.begin();
  }

  private stop(): void {
    const isRunning = this.events.isRunning();
    if (!isRunning || this.events.isTicking()) this.events.deliver("EndSlideShow");
    if (!isRunning) return;
    this.shared.stop();
    this.boxes.close();
  }

  private stopByKey(event: KeyboardEvent): void {
    if (!meansStop(event)) return;
    event.preventDefault();
    event.stopImmediatePropagation();
    this.stop();
  }

  private end(by: string): void {
    const words = element("p", { className: "words", textContent: `Zerimo has ended (${by}).` });
    void open(dialogOf("Zerimo", [words], ["Start again"])).then(() => location.reload());
  }

  private async keep(files: File[]): Promise<void> {
    try {
      await this.folder.keep(files);
    } catch (error) {
      const names = files.map(([name]) => name).join(", ");
      await tell(`The browser does not keep ${names}: ${String(error)}\n\nUntil this page is closed, "Files" can save a copy.`);
    }
  }

  private async showFiles(): Promise<void> {
    await filesDialog(this.folder, (files) => this.takeIn(files), download);
  }

  /** Takes files into the folder, after a question where one would replace another. */
  private async takeIn(files: File[]): Promise<void> {
    for (const [name, bytes] of files) {
      if (this.folder.has(name) && !(await confirmed(`Replace ${name} in your folder?`, "Replace"))) continue;
      this.post({ kind: "put", files: [[name, bytes]] });
      await this.keep([[name, bytes]]);
    }
  }

  private letFilesBeDropped(): void {
    addEventListener("dragover", (event) => event.preventDefault());
    addEventListener("drop", (event) => {
      event.preventDefault();
      void takeFiles(event.dataTransfer?.files ?? []).then((files) => this.takeInAndOffer(files));
    });
  }

  private async takeInAndOffer(files: File[]): Promise<void> {
    await this.takeIn(files);
    const [name] = files.length === 1 ? files[0]! : [undefined];
    if (name !== undefined && (await confirmed(`Open ${name} now?`, "Open"))) this.open(name);
  }

  private open(name: string): void {
    this.events.deliver("Open", `\\Zerimo\\${name}`);
  }

  private async offerLinked(): Promise<void> {
    const program = programIn(location.href);
    if (program === undefined) return;
    history.replaceState(null, "", location.pathname);
    if (!(await confirmed(`This address brings the program ${program.name}. Put it into your folder and load it?`, "Load"))) return;
    await this.takeIn([[program.name, program.bytes]]);
    this.open(program.name);
  }
}

/** The title line, and what a touch screen has no keys for. */
class Bar {
  private readonly box = document.getElementById("bar")!;
  private readonly title = document.getElementById("caption")!;
  private readonly stopButton = document.getElementById("stop") as HTMLButtonElement;

  connect(press: (key: string) => void, stop: () => void, files: () => void): void {
    // The focus stays where the learner types.
    this.box.addEventListener("pointerdown", (event) => event.preventDefault());
    for (const button of this.box.querySelectorAll<HTMLButtonElement>("button[data-key]")) {
      button.addEventListener("click", () => press(button.dataset["key"]!));
    }
    this.stopButton.addEventListener("click", stop);
    document.getElementById("files")!.addEventListener("click", files);
  }

  height(): number {
    return this.box.offsetHeight;
  }

  caption(text: string): void {
    this.title.textContent = text;
    document.title = text;
  }

  showStop(isShown: boolean): void {
    this.stopButton.hidden = !isShown;
  }
}

function beep(): void {
  const sound = new AudioContext();
  const tone = sound.createOscillator();
  tone.connect(sound.destination);
  tone.start();
  tone.stop(sound.currentTime + 0.15);
  tone.onended = () => void sound.close();
}

/** The service worker keeps the page for later, and brings the headers for shared memory where the server does not. */
async function serviceWorker(): Promise<void> {
  await navigator.serviceWorker?.register("service-worker.js");
  await navigator.serviceWorker?.ready;
}

async function isolated(): Promise<boolean> {
  // Some engines isolate the page and have no shared memory all the same.
  if (crossOriginIsolated) return "SharedArrayBuffer" in globalThis;
  await serviceWorker();
  if (sessionStorage.getItem("isolated") !== null) return false;
  sessionStorage.setItem("isolated", "tried");
  location.reload();
  return new Promise(() => {});
}

if (await isolated()) {
  // What it loads comes while the files are gathered.
  const worker = new Worker("worker.js", { type: "module" });
  const [folder, files] = await Promise.all([Folder.open(), delivered()]);
  await new Page(folder, worker).start(files);
  // Not before: all that it fetches would delay the start.
  await serviceWorker();
} else {
  await tell("This browser, or the way this page is served, does not allow what Zerimo needs: shared memory.");
}
