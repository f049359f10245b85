"""Where are changes made and built? In a copy of the project's files; the originals are not touched."""
import os
import pathlib
import re
import shutil
import subprocess

presets = {"pure": "host", "program": "windows-x64", "ui": "windows-x64"}
test_targets = {"pure": "pure_tests", "program": "program_tests", "ui": "ui_tests"}
changing_targets = {"pure": "pure_tests", "program": "program_tests", "ui": "Huevox"}
# What the tests use besides their own programs.
beside = ("huevox.chm", "tests/StandIn.exe", "tests/hhctrl.ocx", "tests/Planted.dll", "tests/ui_tests.exe",
          "tests/Dropper.exe", "tests/Dropped.dll", "tests/TwoColors.exe")
built = {"pure": "tests/pure_tests", "program": "tests/program_tests.exe", "ui": "Huevox.exe"}


class DoesNotBuild(Exception):
    pass


def without_patience(text):
    """Tests that wait in vain give up sooner, yet not before the processors have had time for what they wait for."""
    return re.sub(rb"(enough = )8'000", rb"\g<1>2'000", text)


class Checkout:
    def __init__(self, project):
        self.project = project
        self.folder = project / "build/mutants/checkout"
        self.changed = None
        self.folder.mkdir(parents=True, exist_ok=True)
        self.update()

    def update(self):
        """Makes the copy equal to the project; files that are the same already keep their time."""
        listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=self.project, check=True,
                                capture_output=True, text=True).stdout.splitlines()
        files = {name for name in listed if (self.project / name).is_file()}
        for name in files:
            self.write(name, (self.project / name).read_bytes())
            shutil.copymode(self.project / name, self.folder / name)
        for path in self.folder.rglob("*"):
            name = path.relative_to(self.folder).as_posix()
            if path.is_file() and not name.startswith("build/") and name not in files:
                path.unlink()

    def write(self, name, content):
        path = self.folder / name
        if name == "tests/driver/Wait.h":
            content = without_patience(content)
        if path.is_file() and path.read_bytes() == content:
            return
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)

    def configure(self, used):
        for preset in sorted({presets[kind] for kind in used}):
            # A change may leave a variable or a parameter unused.
            self.run(["cmake", "--preset", preset, "--log-level=WARNING", "-DCMAKE_CXX_FLAGS=-w"])
            self.build(preset, {test_targets[kind] for kind in used if presets[kind] == preset})

    def build(self, preset, targets):
        self.run(["cmake", "--build", "--preset", preset, "--target", *sorted(targets)])

    def run(self, command):
        done = subprocess.run(["nice", *command], cwd=self.folder, stdin=subprocess.DEVNULL, text=True, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if done.returncode != 0:
            raise DoesNotBuild(done.stdout)

    def make(self, change):
        """Makes a change, or none, in place of the one before."""
        if self.changed:
            self.write(self.changed, (self.project / self.changed).read_bytes())
        self.changed = change.file if change else None
        if change:
            text = (self.project / change.file).read_text(encoding="utf-8")
            self.write(change.file, change.made_in(text).encode("utf-8"))

    def build_for(self, used):
        for preset in sorted({presets[kind] for kind in used}):
            self.build(preset, {changing_targets[kind] for kind in used if presets[kind] == preset})

    def programs(self, used, name):
        """A folder with the current programs, in which tests can run while the next change is built."""
        folder = self.project / "build/mutants" / name
        shutil.rmtree(folder, ignore_errors=True)
        (folder / "tests").mkdir(parents=True)
        for kind in used:
            tree = self.folder / "build" / presets[kind]
            shutil.copy2(tree / built[kind], folder / built[kind])
            for file in beside if presets[kind] == "windows-x64" else ():
                source, target = tree / file, pathlib.Path(folder / file)
                if source.is_file() and not target.exists():
                    os.link(source, target)
        return folder
