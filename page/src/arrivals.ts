// What comes into the learner's folder from outside the system: dropped and chosen files, a program in the address, and
// what another tab has saved.
import { confirmed, tell } from "./boxes";
import { filesDialog, takeFiles } from "./files";
import { type Changes, download, type Folder } from "./folder";
import { programIn } from "./link";
import type { File, ToWorker } from "./protocol";

/** What SHOW OPEN shows; help pages, for one, are read by HELP. */
const canBeOpened = /\.(zrm|jpg|bmp|gif)$/iu;

export class Arrivals {
  constructor(
    private readonly folder: Folder,
    private readonly post: (message: ToWorker) => void,
    private readonly open: (name: string) => void,
  ) {
    addEventListener("dragover", (event) => bringsFiles(event) && event.preventDefault());
    addEventListener("drop", (event) => this.drop(event));
    addEventListener("hashchange", () => void this.offerLinked());
    addEventListener("focus", () => void this.lookAgain());
    document.addEventListener("visibilitychange", () => document.hidden || void this.lookAgain());
  }

  /** Keeps what the system has written. The names of what is kept; a refusal is shown. */
  async keep(files: File[]): Promise<string[]> {
    const names = files.map(([name]) => name);
    try {
      await this.folder.keep(files);
      return names;
    } catch (error) {
      await tell(`The browser does not keep ${names.join(", ")}: ${reasonOf(error)}\n\nUntil this page is closed, "Files" can save a copy.`);
      return [];
    }
  }

  async showFiles(): Promise<void> {
    await this.lookAgain();
    await filesDialog(this.folder.own(), {
      takeIn: async (files) => void (await this.takeIn(files)),
      save: download,
      remove: (name) => this.remove(name),
    });
  }

  /** Asks for the program in the address, if there is one. */
  async offerLinked(): Promise<void> {
    const program = programIn(location.hash);
    if (program === undefined) return;
    history.replaceState(null, "", location.pathname);
    if (program === "broken") {
      return tell("The program in this address can't be read. The address may have been cut off or changed on its way: ask for it again.");
    }
    if (!(await confirmed(`This address brings the program ${program.name}. Put it into your folder and load it?`, "Load"))) return;
    const [name] = await this.takeIn([[program.name, program.bytes]]);
    if (name !== undefined) this.open(name);
  }

  private async lookAgain(): Promise<void> {
    this.hand(await this.folder.look());
  }

  /** To the system, which has a copy of the folder. */
  private hand({ come, gone }: Changes): void {
    if (gone.length > 0) this.post({ kind: "remove", names: gone });
    if (come.length > 0) this.post({ kind: "put", files: come });
  }

  private async remove(name: string): Promise<void> {
    if (await confirmed(`Delete ${name} from your folder? There is no way back.`, "Delete")) {
      await this.folder.remove(name).then(
        (changes) => this.hand(changes),
        (error) => tell(`The browser does not delete ${name}: ${reasonOf(error)}`),
      );
    }
    await this.showFiles();
  }

  /** After a question where a file would replace another. The names under which the files are in the folder now. */
  private async takeIn(files: File[]): Promise<string[]> {
    await this.lookAgain();
    const taken: string[] = [];
    for (const [given, bytes] of files) {
      const name = this.folder.nameFor(given);
      if (this.folder.has(name) && !(await confirmed(`Replace ${name} in your folder?`, "Replace"))) continue;
      this.post({ kind: "put", files: [[name, bytes]] });
      await this.keep([[name, bytes]]);
      taken.push(name);
    }
    return taken;
  }

  private drop(event: DragEvent): void {
    if (!bringsFiles(event)) return;
    event.preventDefault();
    void takeFiles(event.dataTransfer?.files ?? [])
      .then((files) => this.takeIn(files))
      .then((names) => this.offer(names));
  }

  private async offer(names: string[]): Promise<void> {
    const [name] = names.length === 1 ? names : [];
    if (name !== undefined && canBeOpened.test(name) && (await confirmed(`Open ${name} now?`, "Open"))) this.open(name);
  }
}

const reasonOf = (error: unknown) => (error instanceof Error ? error.message : String(error));

/** Text that is dragged within the editor brings none. */
const bringsFiles = ({ dataTransfer }: DragEvent) => dataTransfer?.types.includes("Files") === true;
