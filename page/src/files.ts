// What the learner does with the folder: bring files in, take them out, make an address of a program.
import { confirmed, dialogOf, element, open, tell } from "./boxes";
import { archive, type Folder, imported } from "./folder";
import { linkTo } from "./link";
import type { File as FolderFile } from "./protocol";

type Save = (name: string, bytes: Uint8Array) => void;

/** Reads what was chosen or dropped; a broken archive is told. */
export async function takeFiles(files: Iterable<File>): Promise<FolderFile[]> {
  try {
    const found = await imported(files);
    if (found.length === 0) await tell("There is no program, picture or page among these files.");
    return found;
  } catch {
    await tell("The archive can not be read.");
    return [];
  }
}

async function copyLink(name: string, bytes: Uint8Array): Promise<void> {
  const link = linkTo(location.href, { name, bytes });
  const shown = element("textarea", { value: link, readOnly: true, rows: 4, label: "Address" });
  if ((await open(dialogOf(`An address with ${name}`, [shown], ["Copy", "Close"]))) === "Copy") {
    await navigator.clipboard.writeText(link).catch(() => confirmed("The browser did not allow to copy.", "OK"));
  }
}

export async function filesDialog(folder: Folder, takeIn: (files: FolderFile[]) => Promise<void>, save: Save): Promise<void> {
  const files = folder.all().sort(([one], [other]) => one.localeCompare(other));
  const chooser = element("input", { type: "file", multiple: true, accept: ".zrm,.ZRM,.zip,image/*,.rtf", label: "Bring files in" });
  const rows = files.map(([name, bytes]) => {
    const copy = element("button", { type: "button", textContent: "Save a copy", label: `Save a copy of ${name}` });
    copy.addEventListener("click", () => save(name, bytes));
    const row = element("li", {}, element("span", { textContent: name }), copy);
    if (!/\.zrm$/iu.test(name)) return row;
    const link = element("button", { type: "button", textContent: "Address", label: `Address with ${name}` });
    link.addEventListener("click", () => void copyLink(name, bytes));
    row.append(link);
    return row;
  });
  const empty = element("p", { textContent: "What you save with F10 is kept here, in this browser." });
  const list = files.length > 0 ? element("ul", { className: "files", tabIndex: 0, label: "Your files" }, ...rows) : empty;
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
