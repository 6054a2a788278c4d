// A program in the fragment of the address: #program=NAME=..., compressed. No server sees it.
import { deflateSync, inflateSync, strFromU8, strToU8 } from "fflate";

const mark = "#program=";
/** The largest program in an address, in bytes. */
export const largestLinked = 1 << 20;

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

/** The program of a fragment, "broken" if it can't be read, or nothing if there is none. */
export function programIn(fragment: string): LinkedProgram | "broken" | undefined {
  if (!fragment.startsWith(mark)) return undefined;
  try {
    // All of it is decoded, not the name alone: on its way, an address may have got more characters written with %.
    const [, name, packed] = /^(.+)=([\w-]+)$/su.exec(decodeURIComponent(fragment.slice(mark.length))) ?? [];
    if (name === undefined || packed === undefined || !/^[^\\/]+\.zrm$/iu.test(name)) return "broken";
    // So much room that a larger one shows.
    const bytes = inflateSync(fromAddress(packed), { out: new Uint8Array(largestLinked + 1) });
    return bytes.length <= largestLinked ? { name, bytes } : "broken";
  } catch {
    return "broken";
  }
}
