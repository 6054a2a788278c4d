// The keys of the system, by their codes in console/keys.h, and who has the focus.
import { afterBoxes } from "./boxes";
import type { Events } from "./events";
import type { Stage } from "./stage";

const codes = new Map([
  ["Enter", 13], ["Escape", 27], ["ArrowUp", 38], ["ArrowDown", 40], ["F1", 112], ["F2", 113], ["F3", 114],
  ["F4", 115], ["F9", 120], ["F10", 121], ["F11", 122], ["F12", 123],
]);
/** Ctrl+. and Ctrl+Break, as in the window. */
export const meansStop = ({ ctrlKey, key }: KeyboardEvent) => ctrlKey && ["Pause", "Cancel", "."].includes(key);
export const meansPaste = ({ ctrlKey, metaKey, key }: KeyboardEvent) => (ctrlKey || metaKey) && key.toLowerCase() === "v";

const rowPattern = /^Text1\(/u;
/** Where a key goes if nothing has the focus: the first of these that is on the screen; the last row comes second. */
const receivers = ["Text2", "RichTextBox1", "List4", "Picture1"];

export class Keys {
  private focus = "";
  private lastRow = "Text1(0)";
  private isWalking = false;
  private isFollowing = false;

  constructor(
    private readonly stage: Stage,
    private readonly events: Events,
  ) {
    document.addEventListener("keydown", (event) => this.press(event));
    stage.box.addEventListener("focusin", (event) => this.focused(event.target as Element));
  }

  /** The system has given the focus to a control, or to none. */
  follow(name: string): void {
    this.focus = name;
    if (rowPattern.test(name)) this.lastRow = name;
    afterBoxes(() => this.give(name));
  }

  private give(name: string): void {
    const box = this.stage.view(name)?.box;
    if (box === undefined || box === document.activeElement) return;
    this.isFollowing = true;
    this.focusOn(name);
    this.isFollowing = false;
  }

  /** A key of the system, also from a button of the bar. */
  send(key: string): void {
    const code = codes.get(key);
    if (code === undefined) return;
    this.isWalking = key.startsWith("Arrow");
    this.events.deliver("Key", this.stage.controlOf(document.activeElement) || this.receiver(), code);
  }

  private focused(target: Element): void {
    const name = this.stage.controlOf(target);
    if (this.isFollowing || name === "" || name === this.focus) return;
    this.focus = name;
    this.events.deliver("Focus", name);
  }

  private press(event: KeyboardEvent): void {
    if (event.target instanceof Element && event.target.closest("dialog[open], #bar")) return;
    const { key } = event;
    const writes = key.length === 1;
    const name = this.stage.controlOf(document.activeElement);
    if (name === "" && (codes.has(key) || writes)) this.focusOn(this.receiver());
    // The text screen has no use for letters.
    if (name === "List4" && writes && !event.ctrlKey && !event.altKey && !event.metaKey) this.focusOn(this.lastRow);
    if (!codes.has(key) || event.ctrlKey || event.altKey || event.metaKey) return;
    // On a row, the browser must not handle Up, Down and Enter as well; lists and the editor may.
    const isOfSystem = /^(F|Escape)/u.test(key);
    if (document.activeElement instanceof HTMLTextAreaElement && !isOfSystem) return;
    if (isOfSystem || document.activeElement instanceof HTMLInputElement) event.preventDefault();
    this.send(key);
  }

  /** The control that gets a key if the browser has the focus nowhere. */
  private receiver(): string {
    const names = [this.focus, receivers[0]!, this.lastRow, ...receivers.slice(1)];
    return names.find((name) => this.stage.view(name)?.box.checkVisibility()) ?? "Form1";
  }

  private focusOn(name: string): void {
    const box = this.stage.view(name)?.box;
    box?.focus({ preventScroll: true });
    // Unless an arrow key led here, typing replaces the old line.
    if (box instanceof HTMLInputElement && rowPattern.test(name) && !this.isWalking) box.select();
  }
}
