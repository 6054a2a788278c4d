// The characters that the system has: those of Latin-1. Typographic ones become their plain twins.
const twins = new Map([
  ["\u2018", "'"], ["\u2019", "'"], ["\u201c", '"'], ["\u201d", '"'], ["\u201e", '"'],
  ["\u2010", "-"], ["\u2013", "-"], ["\u2212", "-"], ["\u202f", " "],
]);

export const knownText = (text: string) =>
  [...text].map((letter) => (letter <= "\u00ff" ? letter : (twins.get(letter) ?? "?"))).join("");

/** With line feeds alone, as elements have them. */
export const plainLines = (text: string) => text.replace(/\r\n?/gu, "\n");
