// What the page and the worker with the system say to each other.

/** A control or timer with its properties, or an event, as src/web tells it. */
export interface Told {
  event: string;
  name?: string;
  [property: string]: unknown;
}

/** Rows of the picture, each pixel blue, green, red and a byte that says nothing. */
export interface Rows {
  pixels: Uint8Array;
  columns: number;
  first: number;
  rows: number;
}

export type File = [name: string, bytes: Uint8Array];

export type FromWorker =
  | { kind: "told"; told: Told[] }
  | { kind: "rows"; rows: Rows }
  | { kind: "ask"; question: Told; files: string[] }
  | { kind: "written"; files: File[] }
  | { kind: "done" };

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

export type ToWorker = Start | Call | Put;

const headBytes = 8;
const answerBytes = 1 << 16;
const noAnswer = -1;

/** The memory that both sides see: the answer to a question, and the wish to stop. */
export class Shared {
  private readonly head: Int32Array;
  private readonly answerText: Uint8Array;

  constructor(readonly memory: SharedArrayBuffer = new SharedArrayBuffer(headBytes + answerBytes)) {
    this.head = new Int32Array(memory, 0, 2);
    this.answerText = new Uint8Array(memory, headBytes);
  }

  /** To be called before the question is asked. */
  expectAnswer(): void {
    Atomics.store(this.head, 0, noAnswer);
  }

  /** Holds the caller's thread, which can't be the page's. */
  awaitAnswer(): string {
    Atomics.wait(this.head, 0, noAnswer);
    return new TextDecoder().decode(this.answerText.slice(0, Atomics.load(this.head, 0)));
  }

  answer(text: string): void {
    const bytes = new TextEncoder().encode(text).subarray(0, answerBytes);
    this.answerText.set(bytes);
    Atomics.store(this.head, 0, bytes.length);
    Atomics.notify(this.head, 0);
  }

  /** Holds the caller's thread until the time is over or the user wants to stop. */
  hold(milliseconds: number): void {
    Atomics.wait(this.head, 1, 0, milliseconds);
  }

  stop(): void {
    Atomics.store(this.head, 1, 1);
    Atomics.notify(this.head, 1);
  }

  takeStop(): boolean {
    return Atomics.exchange(this.head, 1, 0) !== 0;
  }
}
