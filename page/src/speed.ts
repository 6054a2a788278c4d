// How fast lines run: Ctrl+1 to Ctrl+4, or a button for browsers that keep these keys and for touch screens.
import type { Shared, Told } from "./protocol";
import type { Stage } from "./stage";

/** How long a line is shown before it runs, in milliseconds; negative: until the space bar is pressed. */
const paces = [
  { words: "full", pause: 0 },
  { words: "fast", pause: 60 },
  { words: "slow", pause: 500 },
  { words: "step", pause: -1 },
];

export class Speed {
  private chosen = 0;
  private line = "";
  private readonly button = document.getElementById("speed") as HTMLButtonElement;
  private readonly stepButton = document.getElementById("step") as HTMLButtonElement;

  /** To be made before the keys of a run are kept. `say` shows the line that runs next, or none. */
  constructor(
    private readonly shared: Shared,
    private readonly say: (line: string) => void,
  ) {
    addEventListener("keydown", (event) => this.press(event), { capture: true });
    this.button.addEventListener("click", () => this.choose((this.chosen + 1) % paces.length));
    this.stepButton.addEventListener("click", () => shared.goOn());
    this.choose(0);
  }

  /** The line that runs next has changed. */
  show(told: Told, stage: Stage): void {
    this.line = String(told["words"]);
    this.say(this.line);
    stage.markLine(Number(told["number"]));
    this.showStepButton();
  }

  private get isStepping(): boolean {
    return this.line !== "" && paces[this.chosen]!.pause < 0;
  }

  private choose(pace: number): void {
    this.chosen = pace;
    this.button.textContent = `Speed: ${paces[pace]!.words}`;
    this.shared.choosePause(paces[pace]!.pause);
    this.showStepButton();
  }

  private showStepButton(): void {
    this.stepButton.hidden = !this.isStepping;
  }

  private press(event: KeyboardEvent): void {
    if (event.altKey || event.metaKey || event.shiftKey || !this.isMeant(event)) return;
    event.preventDefault();
    event.stopImmediatePropagation();
  }

  /** Follows a key of the speeds. */
  private isMeant({ ctrlKey, key, target }: KeyboardEvent): boolean {
    if (ctrlKey && /^[1-4]$/u.test(key)) this.choose(Number(key) - 1);
    else if (!ctrlKey && key === " " && this.isStepping && !isControl(target)) this.shared.goOn();
    else return false;
    return true;
  }
}

/** Whether the space bar presses a button there, or types into a box. */
const isControl = (target: EventTarget | null) => target instanceof Element && target.closest("dialog[open], #bar") !== null;
