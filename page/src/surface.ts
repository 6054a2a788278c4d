// The picture, with what is drawn above it and never enters it: the turtle, the axes and the title.
import { element } from "./boxes";
import type { Events } from "./events";
import type { Part, Told } from "./protocol";
import { colour, unitsPerPixel, View } from "./views";

const svgSpace = "http://www.w3.org/2000/svg";
const lineNames = ["Line5", "Line6", "Line1", "Line2", "Line3"];

export class Surface {
  readonly view: View;
  private readonly canvas = element("canvas");
  private readonly overlay = document.createElementNS(svgSpace, "svg");
  private readonly hint = element("div", { id: "hint", hidden: true });
  private readonly title = element("div", { id: "title", hidden: true }, element("span", { textContent: "Zerimo" }));
  private readonly waiting: Part[] = [];
  private isFrameDrawn = false;

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

  /** A line or circle above the picture; returns whether it was one. */
  showOverlay(told: Told): boolean {
    const name = String(told.name);
    if (name === "Image1") this.title.hidden = told["Visible"] !== true;
    if (name !== "Shape2" && !lineNames.includes(name)) return name === "Image1";
    const isVisible = told["Visible"] === true;
    const kind = name === "Shape2" ? "circle" : "line";
    let part = this.overlay.querySelector<SVGElement>(`[data-name="${name}"]`);
    if (part === null) {
      part = document.createElementNS(svgSpace, kind);
      part.dataset["name"] = name;
      this.overlay.append(part);
    }
    const set = (attribute: string, value: unknown) => part.setAttribute(attribute, String(value));
    set("visibility", isVisible ? "visible" : "hidden");
    if (!isVisible) return true;
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

  /** What changed of the picture. It is drawn at once, but never twice in a frame. */
  showPart(part: Part): void {
    this.waiting.push(part);
    if (this.isFrameDrawn) return;
    this.draw();
    this.isFrameDrawn = true;
    requestAnimationFrame(() => {
      this.isFrameDrawn = false;
      this.draw();
    });
  }

  private draw(): void {
    const context = this.canvas.getContext("2d", { alpha: false });
    for (const { pixels, left, top, columns, width, height } of this.waiting.splice(0)) {
      if (this.canvas.width !== width) this.canvas.width = width;
      if (this.canvas.height !== height) this.canvas.height = height;
      context?.putImageData(new ImageData(pixels, columns), left, top);
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
