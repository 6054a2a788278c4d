// The controls of the system as elements. Each shows its data; what the user does becomes an event of the system.
import { element } from "./boxes";
import type { Events } from "./events";
import { knownText, plainLines } from "./letters";
import type { Told } from "./protocol";

export const unitsPerPixel = 15;
const smallestFont = 13;

export const pixels = (units: unknown) => `${Math.round(Number(units) / unitsPerPixel)}px`;

export function colour(value: unknown): string {
  const number = Number(value);
  return `rgb(${number & 255}, ${(number >> 8) & 255}, ${(number >> 16) & 255})`;
}

/** One control of the system in one element. */
export class View {
  constructor(
    readonly name: string,
    readonly box: HTMLElement,
    readonly update: (told: Told) => void = () => {},
  ) {
    box.id = name;
  }

  show(told: Told): void {
    const { style } = this.box;
    this.box.hidden = told["Visible"] !== true;
    if (this.box.hidden) return;
    if (told["Left"] !== undefined) {
      [style.left, style.top] = [pixels(told["Left"]), pixels(told["Top"])];
      [style.width, style.height] = [pixels(told["Width"]), pixels(told["Height"])];
    }
    if (told["BackColor"] !== undefined) style.backgroundColor = colour(told["BackColor"]);
    if (told["ForeColor"] !== undefined) style.color = colour(told["ForeColor"]);
    if (told["Font.Size"] !== undefined) {
      style.fontSize = `${Math.max(smallestFont, Math.round((Number(told["Font.Size"]) * 96) / 72))}px`;
    }
    this.update(told);
  }
}

/** A box that the user types into, and the text that the system sent last. */
interface TextPlace {
  box: HTMLInputElement | HTMLTextAreaElement;
  told: string;
}

/** What the user has typed and the system has not got yet, and what it has just got, by control. */
const typed = new Map<string, () => string>();
const handedOver = new Map<string, TextPlace>();
const textPlaces = new Map<string, TextPlace>();

export function collect(): [string, string][] {
  const texts = [...typed].map(([name, text]): [string, string] => [name, text()]);
  for (const name of typed.keys()) handedOver.set(name, textPlaces.get(name)!);
  typed.clear();
  return texts;
}

/**
 * The system sends a text only if it has changed and is seen: what it was handed and did not keep is gone.
 */
export function settle(): void {
  for (const [name, place] of handedOver) if (!place.box.hidden) showText(name, place);
  handedOver.clear();
}

/** Brings a text box up to date, unless the user has typed on. */
function showText(name: string, { box, told }: TextPlace): void {
  if (typed.has(name) || box.value === told) return;
  const place = box.selectionStart;
  box.value = told;
  if (document.activeElement === box && place !== null) box.setSelectionRange(place, place);
}

function textView(name: string, box: HTMLInputElement | HTMLTextAreaElement): View {
  const place = { box, told: "" };
  textPlaces.set(name, place);
  return new View(name, box, (told) => {
    place.told = plainLines(String(told["Text"]));
    showText(name, place);
  });
}

function keepKnown(box: HTMLInputElement | HTMLTextAreaElement): void {
  const known = knownText(box.value);
  if (known === box.value) return;
  const place = box.selectionStart;
  box.value = known;
  box.setSelectionRange(place, place);
}

export function textBox(name: string, events: Events, hasChange: boolean): View {
  const box = element("input", { type: "text", autocomplete: "off", spellcheck: false });
  box.setAttribute("autocapitalize", "off");
  box.addEventListener("input", () => {
    keepKnown(box);
    typed.set(name, () => box.value);
    if (hasChange) events.deliver("Change", name);
  });
  return textView(name, box);
}

export function editor(name: string): View {
  const box = element("textarea", { spellcheck: false, wrap: "off" });
  box.setAttribute("autocapitalize", "off");
  box.addEventListener("input", () => {
    keepKnown(box);
    typed.set(name, () => box.value.replaceAll("\n", "\r\n"));
  });
  return textView(name, box);
}

export function panel(name: string, ...inside: View[]): View {
  const caption = element("div", { className: "caption" });
  const box = element("div", { className: "panel" }, caption, ...inside.map((view) => view.box));
  return new View(name, box, (told) => {
    caption.textContent = String(told["Caption"] ?? "");
    caption.hidden = caption.textContent === "";
  });
}

export function label(name: string, isQuiet = false): View {
  const box = element("div", { className: "label" });
  // The captions of the start are no headings, and the previews are colours alone.
  if (isQuiet) box.setAttribute("aria-hidden", "true");
  return new View(name, box, (told) => {
    box.textContent = String(told["Caption"] ?? told["Text"]);
    box.classList.toggle("bordered", told["BorderStyle"] === 1);
  });
}

/** A label that is pressed like a button. With Ctrl, a key stands for the right button. */
export function pressLabel(name: string, events: Events): View {
  const box = element("button", { type: "button", className: "press" });
  const press = (right: boolean, shift: boolean) => {
    events.deliver("MouseMove", name, 0, 0);
    events.deliver("MouseDown", name, right ? 1 : 0, shift ? 1 : 0);
    if (!right && !shift) events.deliver("Click", name);
  };
  box.addEventListener("pointermove", () => events.deliver("MouseMove", name, 0, 0));
  box.addEventListener("click", (event) => press(event.ctrlKey, event.shiftKey));
  box.addEventListener("contextmenu", (event) => {
    event.preventDefault();
    press(true, event.shiftKey);
  });
  return new View(name, box, (told) => (box.textContent = String(told["Caption"])));
}

export function button(name: string, events: Events): View {
  const box = element("button", { type: "button" });
  // A click leaves the focus where the learner types.
  box.addEventListener("pointerdown", (event) => event.preventDefault());
  box.addEventListener("click", () => events.deliver("Click", name));
  return new View(name, box, (told) => (box.textContent = String(told["Caption"])));
}

export function check(name: string, events: Events): View {
  const mark = element("input", { type: "checkbox" });
  const words = element("span");
  const box = element("label", { className: "check" }, mark, words);
  mark.addEventListener("click", () => events.deliver("Click", name));
  return new View(name, box, (told) => {
    words.textContent = String(told["Caption"]);
    mark.checked = told["Value"] === 1;
  });
}

export function bar(name: string, events: Events): View {
  const box = element("input", { type: "range", min: "0", max: "255" });
  box.addEventListener("input", () => {
    events.deliver("PutValue", name, Number(box.value));
    events.deliver("Change", name);
  });
  return new View(name, box, (told) => (box.value = String(told["Value"])));
}

/** Lines that follow their end, as the history does, or stay where the reader is. */
export function lines(name: string, followsEnd: boolean): View {
  const box = element("div", { className: "lines", tabIndex: 0 });
  box.setAttribute("role", "log");
  let shown: string[] = [];
  return new View(name, box, (told) => {
    const items = (told["Items"] ?? []) as string[];
    if (told["Items"] === undefined) return;
    const goesOn = shown.length <= items.length && shown.every((line, n) => line === items[n]);
    if (!goesOn) box.replaceChildren();
    const added = goesOn ? items.slice(shown.length) : items;
    box.append(...added.map((line) => element("div", { textContent: line === "" ? "\u00a0" : line })));
    shown = items;
    if (followsEnd) box.scrollTop = box.scrollHeight;
  });
}

/** Marks one of these lines, counted from 1, or none. */
export function mark(list: HTMLElement, number: number): void {
  list.querySelector("[aria-current]")?.removeAttribute("aria-current");
  const line = list.children[number - 1];
  if (!(line instanceof HTMLElement)) return;
  line.setAttribute("aria-current", "true");
  list.scrollTop = line.offsetTop - list.clientHeight / 2;
}

export function pageList(name: string, events: Events): View {
  const box = element("select", { size: 20 });
  const press = () => {
    events.deliver("PutEntry", name, box.value);
    events.deliver("MouseDown", name, 0, 0);
  };
  box.addEventListener("change", press);
  box.addEventListener("keydown", (event) => event.key === " " && press());
  return new View(name, box, (told) => {
    const items = told["Items"] as string[];
    if ([...box.options].map(({ value }) => value).join("\n") !== items.join("\n")) {
      box.replaceChildren(...items.map((item) => element("option", { value: item, textContent: item })));
    }
    box.value = String(told["FileName"]);
  });
}

/** A help page. What it says stands in data attributes, since the policy of the page takes no style from markup. */
export function richPage(name: string): View {
  return new View(name, element("article", { tabIndex: 0 }));
}

export function showPage(view: View, told: Told): void {
  view.box.innerHTML = String(told["markup"]);
  for (const part of view.box.querySelectorAll<HTMLElement>("p, span")) {
    const { align, indent, size, font, colour: letters, ground } = part.dataset;
    if (align !== undefined) part.style.textAlign = align;
    if (indent !== undefined) part.style.marginLeft = `${indent}px`;
    if (size !== undefined) part.style.fontSize = `${size}pt`;
    if (font !== undefined) part.style.fontFamily = `"${font}", "Liberation Sans", Arial, sans-serif`;
    if (letters !== undefined) part.style.color = letters;
    if (ground !== undefined) part.style.backgroundColor = ground;
  }
  view.box.scrollTop = 0;
}

export function frame(name: string): View {
  const box = element("div", { className: "frame" });
  box.setAttribute("aria-hidden", "true");
  return new View(name, box, (told) => {
    box.style.borderColor = colour(told["BorderColor"]);
    box.style.borderWidth = name === "Shape5" ? "3px" : "1px";
  });
}
