"""What the measuring scripts of this folder share."""
import os
import resource
import shutil
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
BATCH = os.path.join(ROOT, "build/release/zerimo/zerimo-batch")


def build(preset, *targets):
    """Builds targets of a preset; a target that is up to date takes no time."""
    subprocess.run(["cmake", "--preset", preset], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", "--preset", preset, "--target", *targets], cwd=ROOT, check=True,
                   stdout=subprocess.DEVNULL)


def batch_command(folder):
    """The batch runner without limits, with its programs in a folder."""
    return [BATCH, "--steps", "0", "--seconds", "0", "--app-folder", folder]


def cpu_seconds(command, folder, **options):
    """User and system time of a program that runs in a folder."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(command, cwd=folder, stdin=subprocess.DEVNULL, check=True,
                   **{"stdout": subprocess.DEVNULL, **options})
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def most_megabytes(command, folder):
    """The most memory that a program has occupied."""
    code = ("import resource, subprocess, sys; subprocess.run(sys.argv[1:], stdout=subprocess.DEVNULL, check=True); "
            "print(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss / 1024)")
    told = subprocess.check_output([sys.executable, "-c", code, *command], cwd=folder, text=True)
    return float(told)


LOOP = "REPEAT {rounds} [REPEAT 1000 [MAKE \"N :N+1]]"


def letters(number):
    """A name for a number: digits would end it."""
    return "".join(chr(ord("A") + int(digit)) for digit in str(number))


def long_program(lines):
    return "TO REST\n" + "FD 1\n" * (lines - 2) + "END\n", LOOP


def many_variables(slots):
    return "", "\n".join(f'MAKE "V{letters(slot)} {slot}' for slot in range(slots)) + "\n" + LOOP


def line_times(folder, cases, rounds):
    """The nanoseconds of a round, for each pair of a maker of program and session, and a size. Measured over thousands
    of rounds, less a single thousand; quickest of three, all in turn."""
    def seconds(make, size, count):
        program, session = make(size)
        with open(os.path.join(folder, "WORK.ZRM"), "w", newline="") as file:
            file.write(program.replace("\n", "\r\n"))
        with open(os.path.join(folder, "session"), "w") as file:
            file.write(("LOAD WORK\n" if program else "") + session.replace("{rounds}", str(count)) + "\n")
        return cpu_seconds(batch_command(folder) + ["session"], folder)

    best = {}
    for _ in range(3):
        for make, size in cases:
            for count in (1, rounds):
                key = make, size, count
                took = seconds(*key)
                best[key] = min(best.get(key, took), took)
    return [(best[make, size, rounds] - best[make, size, 1]) / ((rounds - 1) * 1000) * 1e9 for make, size in cases]


class Display:
    """A display of its own for programs that need one; false if there is no Xvfb."""

    def __init__(self, size):
        self.size, self.server = size, None

    def __enter__(self):
        if not shutil.which("Xvfb"):
            return False
        read, write = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-noreset", "-screen", "0", self.size],
                                       pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        number = os.read(read, 16).decode().strip()
        os.environ["DISPLAY"] = ":" + number
        return bool(number)

    def __exit__(self, *_):
        if self.server:
            self.server.terminate()
            self.server.wait()
