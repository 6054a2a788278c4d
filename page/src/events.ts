// Hands the user's events to the system, one at a time, and keeps those that come while a line runs.
import { isBoxOpen } from "./boxes";
import { meansPaste, meansStop } from "./keys";
import type { Call, Told, ToWorker } from "./protocol";

type Word = string | number;

/** A held key that stays down makes so many events at most. */
const mostKept = 1000;

type TextPart = HTMLInputElement | HTMLTextAreaElement;

/** Where a key puts the caret of a box whose selection it ends. */
function caretAfter(key: string, { value }: TextPart, from: number, to: number): number | undefined {
  if (key === "ArrowLeft") return from === to ? Math.max(0, from - 1) : from;
  if (key === "ArrowRight") return from === to ? Math.min(value.length, to + 1) : to;
  if (key === "Home") return value.lastIndexOf("\n", from - 1) + 1;
  if (key === "End") return value.includes("\n", to) ? value.indexOf("\n", to) : value.length;
  return undefined;
}

function replaceSelection(box: TextPart, text: string): void {
  box.setRangeText(text, box.selectionStart ?? 0, box.selectionEnd ?? 0, "end");
  box.dispatchEvent(new Event("input", { bubbles: true }));
}

/** Types a key into a text box as the browser would have done. */
function typeInto(box: TextPart, key: string): void {
  const [from, to] = [box.selectionStart ?? 0, box.selectionEnd ?? 0];
  const caret = caretAfter(key, box, from, to);
  if (caret !== undefined) return box.setSelectionRange(caret, caret);
  if (key === "Backspace") box.setRangeText("", from === to ? Math.max(0, from - 1) : from, to, "end");
  else if (key === "Delete") box.setRangeText("", from, from === to ? Math.min(box.value.length, to + 1) : to, "end");
  else if (key === "Enter" && box instanceof HTMLTextAreaElement) box.setRangeText("\n", from, to, "end");
  else if ([...key].length === 1) return replaceSelection(box, key);
  else return;
  box.dispatchEvent(new Event("input", { bubbles: true }));
}

const deletions = new Map([["deleteContentBackward", "Backspace"], ["deleteContentForward", "Delete"]]);

/** What a touch keyboard wrote or deleted, or what was pasted. */
function replayInput({ data, inputType }: InputEvent): void {
  const box = document.activeElement;
  if (!(box instanceof HTMLInputElement || box instanceof HTMLTextAreaElement)) return;
  const deletion = deletions.get(inputType);
  if (deletion !== undefined) return typeInto(box, deletion);
  // All at once: each part of a long text would be looked through again.
  if (data !== null) replaceSelection(box, data);
}

function replay(event: Event): void {
  const isKey = event instanceof KeyboardEvent;
  if (event instanceof InputEvent) return replayInput(event);
  const target = isKey ? (document.activeElement ?? document.body) : event.target;
  const again = new (event.constructor as typeof Event)(event.type, event);
  if (!target?.dispatchEvent(again) || !isKey || event.ctrlKey || event.metaKey) return;
  // As the browser does it: where the focus is now.
  const box = document.activeElement;
  if (box instanceof HTMLInputElement || box instanceof HTMLTextAreaElement) typeInto(box, event.key);
}

export class Events {
  /** The name of the call that is being carried out, or nothing. */
  private running = "";
  private readonly waiting: Call[] = [];
  private readonly kept: Event[] = [];
  private readonly timers = new Map<string, { clock: number; every: number; isDue: boolean }>();

  /** `collect` gives what the user has typed since it was last asked. */
  constructor(
    private readonly send: (message: ToWorker) => void,
    private readonly collect: () => [string, string][],
    private readonly whenRunning: (running: boolean) => void,
  ) {
    for (const type of ["keydown", "pointerdown", "pointermove", "pointerup", "click", "beforeinput"]) {
      window.addEventListener(type, (event) => this.hold(event), { capture: true });
    }
  }

  isRunning(): boolean {
    return this.running !== "";
  }

  /** A timer's tick runs, which shows the next slide. */
  isTicking(): boolean {
    return this.running === "Tick";
  }

  deliver(name: string, ...words: Word[]): void {
    this.waiting.push({ kind: "call", name, words, texts: [] });
    if (!this.isRunning()) this.next();
  }

  /** The system has carried out the last event and shown what it left. */
  done(): void {
    this.running = "";
    this.whenRunning(false);
    if (this.waiting.length > 0) return this.next();
    while (this.kept.length > 0 && !this.isRunning()) replay(this.kept.shift()!);
    for (const [name, timer] of this.timers) {
      if (!timer.isDue || this.isRunning()) continue;
      timer.isDue = false;
      this.deliver("Tick", name);
    }
  }

  setTimer(told: Told): void {
    const [name, every] = [String(told.name), told["Enabled"] === true ? Number(told["Interval"]) : 0];
    const known = this.timers.get(name);
    if (known?.every === every) return;
    clearInterval(known?.clock);
    this.timers.delete(name);
    if (every <= 0) return;
    const clock = window.setInterval(() => this.tick(name), every);
    this.timers.set(name, { clock, every, isDue: false });
  }

  private tick(name: string): void {
    const timer = this.timers.get(name);
    if (timer === undefined) return;
    timer.isDue = this.isRunning();
    if (!timer.isDue) this.deliver("Tick", name);
  }

  private next(): void {
    const call = this.waiting.shift();
    if (call === undefined) return;
    this.running = call.name;
    this.whenRunning(true);
    this.send({ ...call, texts: this.collect() });
  }

  /** Boxes and the page's own bar are not the system's: they live while it runs. */
  private hold(event: Event): void {
    if (!this.isRunning() || !event.isTrusted || (event instanceof KeyboardEvent && meansStop(event))) return;
    const target = event.target instanceof Element ? event.target : document.body;
    if (target.closest("dialog[open], #bar") || isBoxOpen()) return;
    event.stopImmediatePropagation();
    // What is pasted comes as an input.
    if (event instanceof KeyboardEvent && meansPaste(event)) return;
    event.preventDefault();
    const isMove = event.type === "pointermove" && this.kept.at(-1)?.type === "pointermove";
    if (isMove) this.kept.pop();
    if (this.kept.length < mostKept) this.kept.push(event);
  }
}
