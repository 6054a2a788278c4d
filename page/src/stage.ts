// All controls in their places, scaled as a whole to the viewport.
import { element } from "./boxes";
import type { Events } from "./events";
import { Surface } from "./surface";
import * as views from "./views";

const each = (name: string, count: number, make: (name: string) => views.View) =>
  Array.from({ length: count }, (_, index) => make(`${name}(${index})`));

/** A screen of the system in pixels: at least that of an old laptop, at most that of a large one. */
export function screenFor(width: number, height: number): { width: number; height: number } {
  const across = Math.min(1920, Math.max(1024, Math.round(width)));
  return { width: across, height: Math.max(640, Math.round((across * height) / width)) };
}

export class Stage {
  readonly box = element("main", { id: "stage" });
  readonly surface: Surface;
  readonly page = views.richPage("RichTextBox1");
  readonly palette: views.View;
  private readonly all = new Map<string, views.View>();
  private scale = 1;

  constructor(
    events: Events,
    readonly width: number,
    readonly height: number,
  ) {
    this.surface = new Surface(events, (event) => this.placeOf(event));
    const text = (name: string) => views.textBox(name, events, false);
    const field = (name: string) => views.textBox(name, events, true);
    const label = (name: string) => views.label(name);
    const press = (name: string) => views.pressLabel(name, events);
    const button = (name: string) => views.button(name, events);
    const bar = (name: string) => views.bar(name, events);
    const list = (name: string) => views.lines(name, false);

    // In the order of the Tab key; what lies above what is in the style sheet.
    const rows = [views.label("Prompt", true), ...each("Text1", 5, text)];
    const diagnosis = [
      ...each("Label12", 5, label), ...["List1", "List2", "List3"].map(list),
      ...["Label19", "Label17", "Label18", "Label10", "Label11"].map(label),
      ...["Label9", "Label8"].map((name) => views.label(name, true)),
      ...["Text3", "Text4"].map(field), views.check("Check1", events), button("Command2"),
      ...each("HScroll1", 3, bar), ...each("HScroll2", 3, bar), button("Command1"),
    ];
    const colours = [
      label("Label16"), ...each("Label13", 16, press), label("Label15"), press("Label14"),
      ...["Command4", "Command5", "Command3"].map(button), ...["Shape5", "Shape7"].map(views.frame),
    ];
    this.palette = views.panel("Picture2", ...colours);
    const outer = [
      views.panel("Picture3", ...rows), views.editor("Text2"), views.panel("Frame1", ...diagnosis), this.palette,
      views.lines("List4", true), views.pageList("File1", events), this.page,
      ...each("Label20", 4, label), this.surface.view,
    ];
    for (const view of [...outer, ...rows, ...diagnosis, ...colours]) this.all.set(view.name, view);
    this.box.append(...outer.map((view) => view.box));
    Object.assign(this.box.style, { width: `${width}px`, height: `${height}px` });
  }

  view(name: string): views.View | undefined {
    return this.all.get(name);
  }

  /** Marks a line of the program in the diagnosis panel, counted from 1; others than the listed ones take the mark away. */
  markLine(number: number): void {
    views.mark(this.view("List1")!.box, number);
  }

  /** The control that an element belongs to, or an empty name. */
  controlOf(part: Element | null): string {
    const id = part?.closest("[id]")?.id ?? "";
    return this.all.has(id) ? id : part instanceof HTMLInputElement ? this.controlOf(part.parentElement) : "";
  }

  fit(width: number, height: number): void {
    this.scale = Math.min(width / this.width, height / this.height);
    this.box.style.transform = `scale(${this.scale})`;
    this.box.style.left = `${Math.max(0, (width - this.width * this.scale) / 2)}px`;
  }

  /** In pixels of the system's screen. */
  placeOf(event: PointerEvent): { x: number; y: number } {
    const { left, top } = this.box.getBoundingClientRect();
    return { x: (event.clientX - left) / this.scale, y: (event.clientY - top) / this.scale };
  }
}
