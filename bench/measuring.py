"""What the measuring scripts of this folder share."""
import os
import resource
import shutil
import subprocess

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
