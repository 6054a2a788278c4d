import { Arrivals } from "./arrivals";
import { Boxes, dialogOf, element, open, tell } from "./boxes";
import { Chip } from "./chip";
import { Events } from "./events";
import { delivered, Folder } from "./folder";
import { Keys, meansStop } from "./keys";
import { letPaletteBeDragged } from "./palette";
import { type FromWorker, Shared, type Told, type ToWorker } from "./protocol";
import { Speed } from "./speed";
import { screenFor, Stage } from "./stage";
import { collect, settle, showPage, unitsPerPixel } from "./views";

/** How often the picture is shown as it grows while a line runs. */
const frameMilliseconds = 16;

/** As src/files/saving.cpp names it. */
const rescuedName = "Rescued.ZRM";

class Page {
  private readonly shared = new Shared();
  private readonly bar = new Bar();
  private readonly chip = new Chip((isLong) => this.bar.showStop(isLong));
  private readonly speed = new Speed(this.shared, (line) => this.chip.say(line));
  private readonly boxes = new Boxes(() => this.shared.stop());
  private readonly events = new Events((message) => this.post(message), collect, (running) => this.run(running));
  private readonly stage: Stage;
  private readonly keys: Keys;
  private readonly arrivals: Arrivals;
  /** What has ended the system, if anything has. */
  private endedBy: string | undefined;
  /** The names of the files that the last run has written, once they are kept. */
  private kept = Promise.resolve<string[]>([]);
  private started = () => {};
  private frames = 0;

  constructor(
    private readonly folder: Folder,
    private readonly worker: Worker,
  ) {
    const { width, height } = screenFor(...this.room());
    this.stage = new Stage(this.events, width, height);
    this.stage.box.append(this.chip.box);
    document.body.append(this.stage.box);
    this.keys = new Keys(this.stage, this.events);
    letPaletteBeDragged(this.stage, this.events);
    this.bar.whenResized(() => this.fit());
    addEventListener("resize", () => this.fit());
    addEventListener("keydown", (event) => this.stopByKey(event), { capture: true });
    this.worker.onmessage = ({ data }: MessageEvent<FromWorker>) => this.take(data);
    this.worker.onerror = ({ message }) => void this.end(message || "its worker can't be loaded");
    this.bar.connect((key) => this.keys.send(key), () => this.stop(), () => void this.arrivals.showFiles());
    this.arrivals = new Arrivals(folder, (message) => this.post(message), (name) => this.events.deliver("Open", `\\Zerimo\\${name}`));
  }

  /** Until the system has started. */
  start(): Promise<void> {
    const { memory: shared } = this.shared;
    const [width, height] = [this.stage.width * unitsPerPixel, this.stage.height * unitsPerPixel];
    this.post({ kind: "start", shared, width, height, files: this.folder.all() });
    this.events.deliver("Load");
    void this.arrivals.offerLinked();
    return new Promise((resolve) => (this.started = resolve));
  }

  private post(message: ToWorker): void {
    this.worker.postMessage(message);
  }

  /** Width and height below the bar, also while a touch screen is zoomed. */
  private room(): [number, number] {
    const { clientWidth, clientHeight } = document.documentElement;
    return [clientWidth, clientHeight - this.bar.height()];
  }

  private fit(): void {
    this.stage.fit(...this.room());
  }

  private take(message: FromWorker): void {
    if (message.kind === "told") for (const told of JSON.parse(message.told) as Told[]) this.show(told);
    if (message.kind === "part") this.stage.surface.showPart(message.part);
    if (message.kind === "ask") void this.answer(message.question, message.files);
    if (message.kind === "written") this.kept = this.arrivals.keep(message.files);
    if (message.kind === "failed") void this.end(message.by);
    if (message.kind !== "done") return;
    if (this.endedBy !== undefined) return void this.end(this.endedBy);
    settle();
    this.events.done();
    this.started();
  }

  private show(told: Told): void {
    const name = told.name ?? "";
    if (told.event === "focus") return this.keys.follow(name);
    if (told.event === "line") return this.speed.show(told, this.stage);
    if (told.event === "page") return showPage(this.stage.page, told);
    if (told.event === "ended") return this.endAfterRun(String(told["by"]));
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

  /** What the run has written arrives after its end. */
  private endAfterRun(by: string): void {
    this.endedBy = by;
    this.kept = Promise.resolve([]);
  }

  private async end(by: string): Promise<void> {
    const rescued = (await this.kept).find((name) => name === rescuedName);
    const advice = rescued === undefined ? "" : `\n\nThe text of the editor is in your folder, as ${rescued}.`;
    const words = element("p", { className: "words", textContent: `Zerimo has ended (${by}).${advice}` });
    await open(dialogOf("Zerimo", [words], ["Start again"]));
    location.reload();
  }
}

/** The title line, and what a touch screen has no keys for. */
class Bar {
  private readonly box = document.getElementById("bar")!;
  private readonly title = document.getElementById("caption")!;
  private readonly stopButton = document.getElementById("stop") as HTMLButtonElement;

  constructor() {
    document.getElementById("waiting")?.remove();
    this.box.querySelector("nav")!.hidden = false;
  }

  connect(press: (key: string) => void, stop: () => void, files: () => void): void {
    // The focus stays where the learner types.
    this.box.addEventListener("pointerdown", (event) => event.preventDefault());
    for (const button of this.box.querySelectorAll<HTMLButtonElement>("button[data-key]")) {
      button.addEventListener("click", () => press(button.dataset["key"]!));
    }
    this.stopButton.addEventListener("click", stop);
    document.getElementById("files")!.addEventListener("click", files);
  }

  /** At once, and when it takes more or fewer lines: a run shows more buttons. */
  whenResized(work: () => void): void {
    work();
    new ResizeObserver(work).observe(this.box);
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
  await navigator.serviceWorker.register("service-worker.js");
  await navigator.serviceWorker.ready;
}

/** Marks that the page has been loaded again for the headers; it lasts until then. */
const reloaded = "reloaded";

/** Whether the page has what it needs. It may load once more for that. */
async function isolated(): Promise<boolean> {
  const wasTried = history.state === reloaded;
  history.replaceState(null, "");
  // Some engines isolate the page and have no shared memory all the same.
  if (crossOriginIsolated) return "SharedArrayBuffer" in globalThis;
  const isRefused = await serviceWorker().then(() => false, () => true);
  if (isRefused || wasTried) return false;
  history.replaceState(reloaded, "");
  // The browser may show this page again as it was left, and while it does, it may ignore one wish to load.
  addEventListener("pageshow", ({ persisted }) => persisted && setInterval(() => location.reload(), 1000));
  location.reload();
  return new Promise(() => {});
}

async function begin(): Promise<void> {
  if (!(await isolated())) throw new Error("This browser, or the way this page is served, does not allow what Zerimo needs: shared memory.");
  // What it loads comes while the files are gathered.
  const worker = new Worker("worker.js", { type: "module" });
  await new Page(await Folder.open(delivered()), worker).start();
  // Not before: all that it fetches would delay the start. Without it, only working offline is lost.
  await serviceWorker().catch(() => undefined);
}

await begin().catch((error: unknown) => tell(`Zerimo can't start. ${error instanceof Error ? error.message : String(error)}`));
