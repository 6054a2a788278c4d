// The picture, with what is drawn above it and never enters it: the turtle, the axes and the title.
import { element } from "./boxes";
import type { Events } from "./events";
import type { Rows, Told } from "./protocol";
import { colour, unitsPerPixel, View } from "./views";

const svgSpace = "http://www.w3.org/2000/svg";
const lineNames = ["Line5", "Line6", "Line1", "Line2", "Line3"];

export class Surface {
  readonly view: View;
  private readonly canvas = element("canvas");
  private readonly overlay = document.createElementNS(svgSpace, "svg");
  private readonly hint = element("div", { id: "hint", hidden: true });
  private readonly title = element("div", { id: "title", hidden: true }, element("span", { textContent: "Zerimo" }));
  private waiting: Rows[] = [];

  constructor(
    private readonly events: Events,
    private readonly toStage: (event: PointerEvent) => { x: number; y: number },
  ) {
    for (const decoration of [this.overlay, this.hint]) decoration.setAttribute("aria-hidden", "true");
    const box = element("div", { tabIndex: 0 }, this.canvas, this.overlay, this.title, this.hint);
    box.setAttribute("role", "img");
    this.view = new View("Picture1", box, (told) => (this.hint.textContent = String(told["ToolTipText"] ?? "")));
    box.addEventListener("pointermove", (event) => this.point(event));
    box.addEventListener("pointerleave", () => (this.hint.hidden = true));
    box.addEventListener("click", () => events.deliver("Click", this.titleIsShown() ? "Image1" : "Picture1"));
  }

  /** A line or circle above the picture; tells whether it was one. */
  showOverlay(told: Told): boolean {
    const name = String(told.name);
    if (name === "Image1") this.title.hidden = told["Visible"] !== true;
    if (name !== "Shape2" && !lineNames.includes(name)) return name === "Image1";
    const kind = name === "Shape2" ? "circle" : "line";
    let part = this.overlay.querySelector<SVGElement>(`[data-name="${name}"]`);
    if (part === null) {
      part = document.createElementNS(svgSpace, kind);
      part.dataset["name"] = name;
      this.overlay.append(part);
    }
    const set = (attribute: string, value: unknown) => part.setAttribute(attribute, String(value));
    set("visibility", told["Visible"] === true ? "visible" : "hidden");
    set("stroke", colour(told["BorderColor"]));
    const at = (key: string) => Number(told[key]) / unitsPerPixel;
    if (kind === "line") for (const end of ["X1", "Y1", "X2", "Y2"]) set(end.toLowerCase(), at(end));
    else {
      set("r", at("Width") / 2);
      set("cx", at("Left") + at("Width") / 2);
      set("cy", at("Top") + at("Height") / 2);
    }
    set("stroke-width", ["Line1", "Line2", "Line3"].includes(name) ? 2 : 1);
    return true;
  }

  /** Rows that changed. They are drawn with the next frame. */
  showRows(rows: Rows): void {
    if (this.waiting.length === 0) requestAnimationFrame(() => this.draw());
    this.waiting.push(rows);
  }

  private draw(): void {
    const all = this.waiting;
    this.waiting = [];
    const context = this.canvas.getContext("2d", { alpha: false });
    for (const { pixels, columns, first, rows } of all) {
      if (this.canvas.width !== columns) this.canvas.width = columns;
      if (this.canvas.height < first + rows) this.canvas.height = first + rows;
      const image = new ImageData(columns, rows);
      const from = new Uint32Array(pixels.buffer);
      const to = new Uint32Array(image.data.buffer);
      for (let n = 0; n < from.length; ++n) {
        const pixel = from[n]!;
        to[n] = 0xff000000 | ((pixel & 0xff) << 16) | (pixel & 0xff00) | ((pixel >> 16) & 0xff);
      }
      context?.putImageData(image, 0, first);
    }
  }

  private titleIsShown(): boolean {
    return !this.title.hidden;
  }

  private point(event: PointerEvent): void {
    if (this.titleIsShown()) return;
    const { x, y } = this.toStage(event);
    this.events.deliver("MouseMove", "Picture1", x * unitsPerPixel, y * unitsPerPixel);
    this.hint.hidden = this.hint.textContent === "";
    Object.assign(this.hint.style, { left: `${x + 14}px`, top: `${y + 20}px` });
  }
}
