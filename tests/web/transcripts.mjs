// Compares transcripts line by line.

// Sine and cosine differ in the last digit from one C library to another. A single never passes for another by this.
const forgivenDifference = 4e-15;

/** The differences that were let pass, in words. */
export const forgiven = [];

function sameNumber(wanted, found, place) {
  if (wanted === found) return true;
  if (Math.abs(wanted - found) > forgivenDifference * Math.abs(wanted)) return false;
  forgiven.push(`${place}: ${wanted} is ${found}`);
  return true;
}

function same(wanted, found, place) {
  if (typeof wanted === "number" && typeof found === "number") return sameNumber(wanted, found, place);
  if (typeof wanted !== "object" || wanted === null || typeof found !== "object" || found === null) {
    return wanted === found;
  }
  const keys = Object.keys(wanted);
  return (
    keys.join() === Object.keys(found).join() && keys.every((key) => same(wanted[key], found[key], `${place}.${key}`))
  );
}

/** The lines of a transcript. */
export const linesOf = (text) => text.split("\n").filter((line) => line !== "");

/** Where two transcripts first differ, in words, or an empty text. */
export function differenceOf(name, wanted, found) {
  for (let n = 0; n < Math.max(wanted.length, found.length); ++n) {
    if (wanted[n] === found[n]) continue;
    const place = `${name}, line ${n + 1}`;
    const areBoth = wanted[n] !== undefined && found[n] !== undefined;
    if (areBoth && same(JSON.parse(wanted[n]), JSON.parse(found[n]), place)) continue;
    return `${place}:\n  native: ${wanted[n] ?? "(nothing)"}\n  here:   ${found[n] ?? "(nothing)"}`;
  }
  return "";
}
