// A small label in the corner of the picture: the line that runs next, or that a program has been running for long.
import { element, isBoxOpen } from "./boxes";

/** A program that runs longer than this can be seen to run, in milliseconds. */
const longRun = 2000;
/** Between two looks at the clock, in milliseconds. */
const beat = 250;

export class Chip {
  readonly box = element("div", { id: "chip", hidden: true });
  private line = "";
  private started = Infinity;
  private clock = 0;

  constructor(private readonly whenLong: (isLong: boolean) => void) {
    this.box.setAttribute("role", "status");
  }

  /** Instead of the time; with no line, the time again. */
  say(line: string): void {
    this.line = line;
    this.show();
  }

  run(isRunning: boolean): void {
    clearInterval(this.clock);
    this.started = isRunning ? performance.now() : Infinity;
    if (isRunning) this.clock = window.setInterval(() => this.show(), beat);
    this.show();
  }

  private show(): void {
    const running = performance.now() - this.started;
    const isLong = running >= longRun;
    this.whenLong(isLong);
    // While a box is open, the program waits for its answer.
    const time = isLong && !isBoxOpen() ? `Running for ${Math.floor(running / 1000)} s. Ctrl+. or "Stop" stops.` : "";
    const words = this.line || time;
    // Only lines are for screen readers; the seconds would be no end of news.
    this.box.setAttribute("aria-live", this.line === "" ? "off" : "polite");
    if (this.box.textContent !== words) this.box.textContent = words;
    this.box.hidden = words === "";
  }
}
