// Boxes of the system and of the page, each a dialog over it. Closing one counts as cancelling.
import type { Told } from "./protocol";

/** What is to follow when the last box has been closed. */
let next: (() => void) | undefined;

export const isBoxOpen = () => document.querySelector("dialog[open]") !== null;

/** Now, or when the last box has been closed; only the latest work counts. */
export function afterBoxes(work: () => void): void {
  if (isBoxOpen()) next = work;
  else work();
}

/** The focus goes where it was, unless the system has moved it meanwhile. */
function returnFocus(before: Element | null): void {
  const work = isBoxOpen() || next === undefined ? () => before instanceof HTMLElement && before.focus() : next;
  if (work === next) next = undefined;
  work();
}

/** What the dialog was left with: the word of a button, or nothing. */
export function open(dialog: HTMLDialogElement): Promise<string> {
  document.body.append(dialog);
  const before = document.activeElement;
  dialog.returnValue = "";
  dialog.showModal();
  return new Promise((resolve) => {
    dialog.addEventListener("close", () => {
      dialog.remove();
      returnFocus(before);
      resolve(dialog.returnValue);
    });
  });
}

export function element<Tag extends keyof HTMLElementTagNameMap>(
  tag: Tag,
  parts: Partial<HTMLElementTagNameMap[Tag]> & { label?: string } = {},
  ...inside: (Node | string)[]
): HTMLElementTagNameMap[Tag] {
  const { label, ...properties } = parts;
  const made = Object.assign(document.createElement(tag), properties);
  if (label !== undefined) made.setAttribute("aria-label", label);
  made.append(...inside);
  return made;
}

/** A dialog with a form; each button closes it with its word. */
export function dialogOf(title: string, content: Node[], buttons: string[]): HTMLDialogElement {
  const heading = element("h2", { id: "box-title", textContent: title === "" ? "Zerimo" : title });
  const row = element("div", { className: "buttons" });
  for (const word of buttons) row.append(element("button", { value: word, textContent: word }));
  const form = element("form", { method: "dialog" }, heading, ...content, row);
  const dialog = element("dialog", {}, form);
  dialog.setAttribute("aria-labelledby", "box-title");
  return dialog;
}

const textOf = (told: Told) => String(told["text"] ?? "").replace(/\r\n?/gu, "\n");
const titleOf = (told: Told) => String(told["title"] ?? "");

/** A box that comes sooner than this after an answer may be one of many, in milliseconds. */
const atOnce = 1000;
const stopWord = "Stop the program";

export class Boxes {
  private answered = -Infinity;
  private shown: HTMLDialogElement | undefined;

  constructor(private readonly stop: () => void) {}

  /** A new program runs: its first box is no repetition. */
  begin(): void {
    this.answered = -Infinity;
  }

  /** The box counts as cancelled. */
  close(): void {
    this.shown?.close("");
  }

  /** The answer to a question of the system: empty if it was cancelled, otherwise with a plus sign before it. */
  async ask(question: Told, files: string[]): Promise<string> {
    const answer = await this.answer(question, files);
    this.answered = performance.now();
    return answer;
  }

  private async answer(question: Told, files: string[]): Promise<string> {
    const words = element("p", { className: "words", textContent: textOf(question) });
    if (question.event === "box") {
      const buttons = question["buttons"] as string[];
      const many = performance.now() - this.answered < atOnce;
      const word = await this.show(dialogOf(titleOf(question), [words], many ? [...buttons, stopWord] : buttons));
      if (word === stopWord) this.stop();
      return word === "" ? "" : `+${word}`;
    }
    const isFile = question.event !== "input";
    const input = element("input", {
      type: "text",
      autocomplete: "off",
      spellcheck: false,
      label: isFile ? "Name of the file" : textOf(question),
      value: String(question["value"] ?? ""),
      // Before the list of files.
      autofocus: true,
    });
    const content = isFile ? [fileList(files, input), input] : [words, input];
    const word = await this.show(dialogOf(titleOf(question), content, ["OK", "Cancel"]));
    const isGiven = word === "OK" && !(isFile && input.value.trim() === "");
    return isGiven ? `+${isFile ? `\\Zerimo\\${input.value.trim()}` : input.value}` : "";
  }

  private async show(dialog: HTMLDialogElement): Promise<string> {
    this.shown = dialog;
    const result = await open(dialog);
    this.shown = undefined;
    return result;
  }
}

function fileList(files: string[], input: HTMLInputElement): HTMLSelectElement {
  const options = files.map((name) => element("option", { value: name, textContent: name }));
  const list = element("select", { size: 12, label: "Files of the folder" }, ...options);
  list.addEventListener("change", () => (input.value = list.value));
  const take = () => list.value !== "" && list.closest("dialog")?.close("OK");
  list.addEventListener("dblclick", take);
  list.addEventListener("keydown", (event) => {
    if (event.key !== "Enter") return;
    // Else it would go on to the system, whose box is gone then.
    event.stopPropagation();
    take();
  });
  return list;
}

/** Tells something and waits until it has been read. */
export async function tell(text: string): Promise<void> {
  await open(dialogOf("Zerimo", [element("p", { className: "words", textContent: text })], ["OK"]));
}

export async function confirmed(text: string, yes: string): Promise<boolean> {
  const words = element("p", { className: "words", textContent: text });
  return (await open(dialogOf("Zerimo", [words], [yes, "Cancel"]))) === yes;
}
