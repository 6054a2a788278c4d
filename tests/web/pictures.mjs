// Reads PNG pictures of eight bits a colour and compares them pixel for pixel.
import { existsSync, readFileSync } from "node:fs";
import { inflateSync } from "node:zlib";

const channelsOf = new Map([[2, 3], [6, 4]]);

function chunksOf(bytes) {
  const chunks = [];
  for (let at = 8; at < bytes.length; ) {
    const length = bytes.readUInt32BE(at);
    chunks.push({ type: bytes.toString("latin1", at + 4, at + 8), data: bytes.subarray(at + 8, at + 8 + length) });
    at += length + 12;
  }
  return chunks;
}

function nearest(left, above, corner) {
  const guess = left + above - corner;
  const [a, b, c] = [Math.abs(guess - left), Math.abs(guess - above), Math.abs(guess - corner)];
  if (a <= b && a <= c) return left;
  return b <= c ? above : corner;
}

function predicted(filter, left, above, corner) {
  return [0, left, above, (left + above) >> 1, nearest(left, above, corner)][filter];
}

export function readPicture(file) {
  const chunks = chunksOf(readFileSync(file));
  const header = chunks[0].data;
  const [columns, rows, channels] = [header.readUInt32BE(0), header.readUInt32BE(4), channelsOf.get(header[9])];
  if (header[8] !== 8 || channels === undefined || header[12] !== 0) throw new Error(`${file}: another kind of PNG`);
  const raw = inflateSync(Buffer.concat(chunks.filter(({ type }) => type === "IDAT").map(({ data }) => data)));
  const size = columns * channels;
  const pixels = Buffer.alloc(size * rows);
  const at = (row, place) => (row < 0 || place < 0 ? 0 : pixels[row * size + place]);
  for (let row = 0; row < rows; ++row) {
    const filter = raw[row * (size + 1)];
    for (let place = 0; place < size; ++place) {
      const before = place - channels;
      const guess = predicted(filter, at(row, before), at(row - 1, place), before < 0 ? 0 : at(row - 1, before));
      pixels[row * size + place] = raw[row * (size + 1) + 1 + place] + guess;
    }
  }
  return { columns, rows, channels, pixels };
}

function isOther(wanted, found, pixel, tolerance) {
  for (let channel = 0; channel < 3; ++channel) {
    const a = wanted.pixels[pixel * wanted.channels + channel];
    const b = found.pixels[pixel * found.channels + channel];
    if (Math.abs(a - b) > tolerance) return true;
  }
  return false;
}

/** What differs in words, or an empty text; `allowed` is the share of pixels that may differ, each then by a shade. */
export function comparePictures(name, wantedFile, foundFile, allowed) {
  if (!existsSync(foundFile)) return `${name}: no picture was written`;
  const wanted = readPicture(wantedFile);
  const found = readPicture(foundFile);
  if (wanted.columns !== found.columns || wanted.rows !== found.rows) return `${name}: the picture has another size`;
  let other = 0;
  for (let pixel = 0; pixel < wanted.columns * wanted.rows; ++pixel) {
    if (isOther(wanted, found, pixel, allowed > 0 ? 16 : 0)) ++other;
  }
  return other <= allowed * wanted.columns * wanted.rows ? "" : `${name}: ${other} pixels of the picture differ`;
}
