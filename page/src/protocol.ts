// What the page and the worker with the system say to each other.

/** A control or timer with its properties, or an event, as src/web sends it in JSON; of a hidden one, only that it is hidden. */
export interface Told {
  event: string;
  name?: string;
  [property: string]: unknown;
}

/** A part of the picture, as a canvas takes it, its place in the picture, and the size of that. */
export interface Part {
  pixels: Uint8ClampedArray<ArrayBuffer>;
  left: number;
  top: number;
  columns: number;
  width: number;
  height: number;
}

export type File = [name: string, bytes: Uint8Array];

export type FromWorker =
  | { kind: "told"; told: string }
  | { kind: "part"; part: Part }
  | { kind: "ask"; question: Told; files: string[] }
  | { kind: "written"; files: File[] }
  | { kind: "done" }
  /** Something that is no failure of a program. */
  | { kind: "failed"; by: string };

export interface Start {
  kind: "start";
  shared: SharedArrayBuffer;
  /** In surface units. */
  width: number;
  height: number;
  files: File[];
}

/** One event of the user, with what the user has typed since the last. */
export interface Call {
  kind: "call";
  name: string;
  words: (string | number)[];
  texts: [control: string, text: string][];
}

export interface Put {
  kind: "put";
  files: File[];
}

export interface Remove {
  kind: "remove";
  names: string[];
}

export type ToWorker = Start | Call | Put | Remove;

/** The places of numbers at the beginning of the shared memory. */
const place = { answer: 0, stop: 1, changes: 2, pause: 3, frame: 4 };
const headNumbers = 5;
const headBytes = headNumbers * Int32Array.BYTES_PER_ELEMENT;
const answerBytes = 1 << 16;
const noAnswer = -1;

/** The memory that both sides see: the answer to a question, the wishes to stop and to be slow, and whether a frame is due. */
export class Shared {
  private readonly head: Int32Array;
  private readonly answerText: Uint8Array;
  private seenChanges = 0;

  constructor(readonly memory: SharedArrayBuffer = new SharedArrayBuffer(headBytes + answerBytes)) {
    this.head = new Int32Array(memory, 0, headNumbers);
    this.answerText = new Uint8Array(memory, headBytes);
  }

  /** To be called before the question is asked. */
  expectAnswer(): void {
    Atomics.store(this.head, place.answer, noAnswer);
  }

  /** Holds the caller's thread, which can't be the page's. */
  awaitAnswer(): string {
    Atomics.wait(this.head, place.answer, noAnswer);
    return new TextDecoder().decode(this.answerText.slice(0, Atomics.load(this.head, place.answer)));
  }

  answer(text: string): void {
    const bytes = new TextEncoder().encode(text).subarray(0, answerBytes);
    this.answerText.set(bytes);
    Atomics.store(this.head, place.answer, bytes.length);
    Atomics.notify(this.head, place.answer);
  }

  /** Holds the caller's thread until the time is over or the user wants to stop. */
  hold(milliseconds: number): void {
    Atomics.wait(this.head, place.stop, 0, milliseconds);
  }

  stop(): void {
    Atomics.store(this.head, place.stop, 1);
    Atomics.notify(this.head, place.stop);
    this.goOn();
    this.offerFrame();
  }

  /** The page can show another frame. */
  offerFrame(): void {
    Atomics.store(this.head, place.frame, 1);
  }

  takeFrame(): boolean {
    // Asked again and again, mostly in vain: reading is cheaper than exchanging.
    return Atomics.load(this.head, place.frame) !== 0 && Atomics.exchange(this.head, place.frame, 0) !== 0;
  }

  /** Ends the pause before a line. */
  goOn(): void {
    Atomics.add(this.head, place.changes, 1);
    Atomics.notify(this.head, place.changes);
  }

  /** Before each line, in milliseconds; negative until `goOn`. */
  choosePause(pause: number): void {
    Atomics.store(this.head, place.pause, pause);
    this.goOn();
  }

  chosenPause(): number {
    this.seenChanges = Atomics.load(this.head, place.changes);
    return Atomics.load(this.head, place.pause);
  }

  /** Holds the caller's thread until the pause is over or something has been wished since `chosenPause` was called. */
  holdLine(pause: number): void {
    Atomics.wait(this.head, place.changes, this.seenChanges, pause < 0 ? Infinity : pause);
  }

  takeStop(): boolean {
    return Atomics.exchange(this.head, place.stop, 0) !== 0;
  }
}
