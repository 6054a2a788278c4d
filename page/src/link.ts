// A program in the fragment of the address: #program=NAME=..., compressed. No server sees it.
import { deflateSync, inflateSync, strFromU8, strToU8 } from "fflate";

const mark = "#program=";
const largest = 1 << 20;

const toAddress = (bytes: Uint8Array) =>
  btoa(strFromU8(bytes, true)).replaceAll("+", "-").replaceAll("/", "_").replaceAll("=", "");
const fromAddress = (text: string) => strToU8(atob(text.replaceAll("-", "+").replaceAll("_", "/")), true);

export interface LinkedProgram {
  name: string;
  bytes: Uint8Array;
}

export function linkTo(page: string, { name, bytes }: LinkedProgram): string {
  return `${page.split("#")[0]}${mark}${encodeURIComponent(name)}=${toAddress(deflateSync(bytes, { level: 9 }))}`;
}

/** The program of an address, or nothing. */
export function programIn(address: string): LinkedProgram | undefined {
  const [name, packed] = address.includes(mark) ? address.slice(address.indexOf(mark) + mark.length).split("=") : [];
  if (!name || !packed) return undefined;
  try {
    const plain = decodeURIComponent(name);
    const bytes = inflateSync(fromAddress(packed));
    return /^[^\\/]+\.zrm$/iu.test(plain) && bytes.length <= largest ? { name: plain, bytes } : undefined;
  } catch {
    return undefined;
  }
}
