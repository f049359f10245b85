"""Do the tests catch a change? Runs them until the first that fails."""
import os
import pathlib
import re
import shutil
import signal
import subprocess
import threading
import time

programs = {"pure": "tests/pure_tests", "program": "tests/program_tests.exe", "ui": "tests/ui_tests.exe"}
# Program tests look for files beside them.
folders = {"pure": ".", "program": "tests", "ui": "."}
longest = 120  # seconds; a changed program that takes longer hangs
soon = 10  # so do tests that take longer than this to end after a failure


class Tests:
    def __init__(self, project):
        self.wine = project / "scripts/wine"
        self.prefix = os.environ["WINEPREFIX"]

    def tell(self, tests, folder, limit=longest):
        """What catches the change: a failing test, or the sudden or missing end of the run; None if nothing does."""
        for kind in ("pure", "program", "ui"):
            if kind in tests:
                told = self.run(kind, tests[kind], folder, limit)
                if told:
                    self.tidy()
                    return told
        return None

    def run(self, kind, pattern, folder, limit):
        # A failure throws, so a test releases what it holds on its way out, whichever line failed.
        command = [folder / programs[kind], f"--gtest_filter={pattern}", "--gtest_throw_on_failure"]
        if kind != "pure":
            command.insert(0, self.wine)
        process = subprocess.Popen(command, cwd=folder / folders[kind], stdin=subprocess.DEVNULL, text=True,
                                   stdout=subprocess.PIPE, stderr=subprocess.STDOUT, start_new_session=True,
                                   errors="replace", env={**os.environ, "HUEVOX_TIMEOUT": str(limit)})
        hanging = self.end_after(limit, process)
        begin = time.monotonic()
        running, failed, lines = "the start", False, []
        for line in process.stdout:
            lines.append(line)
            started = re.match(r"\[ RUN +\] (\S+)", line)
            running = started.group(1) if started and not failed else running
            if not failed and (": Failure" in line or "runtime error" in line):
                failed = True
                hanging.cancel()
                hanging = self.end_after(soon, process)
        hanging.cancel()
        self.last = "".join(lines)
        if failed:
            self.end(process)
            return running
        if process.wait() == 0:
            return None if "[  PASSED  ] 0 tests" not in self.last else f"no test at all ({pattern})"
        how = "hangs" if time.monotonic() - begin > limit - 1 else "ends suddenly"
        self.end(process)
        return f"{running}, which {how}"

    def end_after(self, seconds, process):
        timer = threading.Timer(seconds, self.end, [process])
        timer.start()
        return timer

    def end(self, process):
        """Ends the tests and what they started."""
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        while left := [number for number in self.processes() if self.kill(number)]:
            time.sleep(0.02)
        process.wait()

    def tidy(self):
        """Removes what the killed tests would have removed."""
        for path in pathlib.Path(self.prefix, "drive_c").glob("Huevox Palettes*"):
            subprocess.run(["chmod", "-R", "u+rwX", path], check=False)
            shutil.rmtree(path, ignore_errors=True)
        subprocess.run([self.wine, "reg", "delete", r"HKCU\Software\Quorvane", "/f"], check=False,
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    @staticmethod
    def kill(number):
        try:
            os.kill(number, signal.SIGKILL)
        except ProcessLookupError:
            return False
        return True

    def processes(self):
        """The ids of this desktop's processes that run a test or were started by one."""
        own = f"WINEPREFIX={self.prefix}".encode()
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                started = (folder / "cmdline").read_bytes().lower().split(b"\0")[0]
                state = (folder / "stat").read_text().rpartition(")")[2].split()[0]
                is_own = own in (folder / "environ").read_bytes().split(b"\0")
            except (OSError, IndexError):
                continue
            names = (b"huevox.exe", b"ui_tests.exe", b"program_tests.exe", b"notepad.exe", b"standin.exe")
            if is_own and state != "Z" and started.endswith(names):
                yield int(folder.name)
