// What the learner does with the folder: bring files in, take them out, make an address of a program.
import { confirmed, dialogOf, element, open, tell } from "./boxes";
import { archive, imported, isArchive } from "./folder";
import { largestLinked, linkTo } from "./link";
import type { File as FolderFile } from "./protocol";

interface Actions {
  takeIn(files: FolderFile[]): Promise<void>;
  save(name: string, bytes: Uint8Array): void;
  remove(name: string): Promise<void>;
}

/** Reads what was chosen or dropped; what can't be read is shown. */
export async function takeFiles(files: Iterable<File>): Promise<FolderFile[]> {
  const found: FolderFile[] = [];
  const unread: string[] = [];
  // All are asked for at once: what was dropped can't be read later.
  await Promise.all([...files].map(async (file) => {
    const advice = isArchive(file) ? "It is no .zip." : "If it is a folder, bring the files in it, or a .zip of them.";
    const inside = await imported(file).catch(() => void unread.push(`${file.name} can't be read. ${advice}`));
    found.push(...(inside ?? []));
  }));
  if (unread.length > 0) await tell(unread.join("\n"));
  else if (found.length === 0) await tell("There is no program, picture or page among these files.");
  return found;
}

async function copyLink(name: string, bytes: Uint8Array): Promise<void> {
  if (bytes.length > largestLinked) return tell(`${name} is larger than 1 MB, too large for an address. "Save a copy" makes a file of it.`);
  const link = linkTo(location.href, { name, bytes });
  const shown = element("textarea", { value: link, readOnly: true, rows: 4, label: "Address" });
  if ((await open(dialogOf(`An address with ${name}`, [shown], ["Copy", "Close"]))) === "Copy") {
    await navigator.clipboard.writeText(link).catch(() => confirmed("The browser did not allow to copy.", "OK"));
  }
}

export async function filesDialog(own: FolderFile[], { takeIn, save, remove }: Actions): Promise<void> {
  const files = own.sort(([one], [other]) => one.localeCompare(other));
  const chooser = element("input", { type: "file", multiple: true, accept: ".zrm,.ZRM,.zip,image/*,.rtf", label: "Bring files in" });
  const row = ([name, bytes]: FolderFile) => {
    const action = (word: string, label: string, work: () => void) => {
      const made = element("button", { type: "button", textContent: word, label: `${label} ${name}` });
      made.addEventListener("click", work);
      return made;
    };
    const copy = action("Save a copy", "Save a copy of", () => save(name, bytes));
    const link = action("Address", "Address with", () => void copyLink(name, bytes));
    const away = action("Delete", "Delete", () => {
      dialog.close();
      void remove(name);
    });
    const shown = element("span", { textContent: name });
    return element("li", {}, shown, copy, ...(/\.zrm$/iu.test(name) ? [link] : []), away);
  };
  const empty = element("p", { textContent: "What you save with F10 is kept here, in this browser." });
  const list = files.length > 0 ? element("ul", { className: "files", tabIndex: 0, label: "Your files" }, ...files.map(row)) : empty;
  const dialog = dialogOf("Your files", [list, element("label", {}, "Bring in: ", chooser)], ["Close"]);
  const all = element("button", { type: "button", textContent: "Save all as .zip", disabled: files.length === 0 });
  all.addEventListener("click", () => save("Zerimo.zip", archive(files)));
  dialog.querySelector(".buttons")!.prepend(all);
  chooser.addEventListener("change", () => {
    dialog.close();
    void takeFiles(chooser.files ?? []).then(takeIn);
  });
  await open(dialog);
}
