// The palette is dragged by its title, with a mouse or a finger.
import type { Events } from "./events";
import type { Stage } from "./stage";
import { unitsPerPixel } from "./views";

/** A press that moves less than this is none, in pixels. */
const least = 4;

export function letPaletteBeDragged(stage: Stage, events: Events): void {
  const { box } = stage.palette;
  const title = stage.view("Label16")!.box;
  const units = (pixels: number) => pixels * unitsPerPixel;
  let grab: { x: number; y: number; left: number; top: number } | undefined;
  let isDragged = false;

  title.addEventListener("pointerdown", (event) => {
    const { x, y } = stage.placeOf(event);
    grab = { x, y, left: box.offsetLeft, top: box.offsetTop };
    title.setPointerCapture(event.pointerId);
    events.deliver("MouseMove", "Picture2", units(x - grab.left), units(y - grab.top));
  });
  title.addEventListener("pointermove", (event) => {
    if (grab === undefined) return;
    const { x, y } = stage.placeOf(event);
    isDragged ||= Math.hypot(x - grab.x, y - grab.y) >= least;
    if (isDragged) Object.assign(box.style, { left: `${grab.left + x - grab.x}px`, top: `${grab.top + y - grab.y}px` });
  });
  title.addEventListener("pointerup", (event) => {
    const { x, y } = stage.placeOf(event);
    const surface = stage.surface.view.box;
    const isOnSurface = x >= 0 && y >= 0 && x < surface.offsetWidth && y < surface.offsetHeight;
    if (isDragged && isOnSurface) events.deliver("Drop", "Picture2", units(x), units(y));
    else if (isDragged && grab !== undefined) Object.assign(box.style, { left: `${grab.left}px`, top: `${grab.top}px` });
    [grab, isDragged] = [undefined, false];
  });
}
