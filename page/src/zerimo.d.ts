// The system as Emscripten makes it, see src/programs/zerimo_page.cpp.
declare module "zerimo" {
  export interface Port {
    tell(message: string): void;
    show(part: import("./protocol").Part): void;
    ask(question: string): string;
    hold(milliseconds: number): void;
    takeFrame(): boolean;
    takeStop(): boolean;
    chosenPause(): number;
    holdLine(pause: number): void;
    timeOfDay(): string;
  }
  export interface System {
    /** To be set before anything is called. */
    port: Port;
    ccall(name: string, result: "number" | null, kinds: ("number" | "string")[], words: (string | number)[]): number;
    FS: {
      mkdir(folder: string): void;
      chdir(folder: string): void;
      readdir(folder: string): string[];
      stat(path: string): { mode: number; mtime: Date; size: number };
      isFile(mode: number): boolean;
      readFile(path: string): Uint8Array;
      unlink(path: string): void;
      writeFile(path: string, bytes: Uint8Array): void;
    };
  }
  export default function start(options: { locateFile(name: string): string }): Promise<System>;
}
