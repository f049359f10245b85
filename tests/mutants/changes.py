"""Which changes are listed, and can they still be made?"""
import dataclasses
import fnmatch
import pathlib
import re

kinds = ("pure", "program", "ui")  # of tests, the fastest first


@dataclasses.dataclass
class Change:
    name: str
    file: str = ""
    old: list = dataclasses.field(default_factory=list)
    new: list = dataclasses.field(default_factory=list)
    tests: dict = dataclasses.field(default_factory=dict)  # the pattern of each kind
    equal: str = ""  # why it makes no visible difference

    def take(self, line):
        """One line of the entry."""
        word, _, rest = line.partition(" ")
        if line[0] in " -":
            self.old.append(line[1:])
        if line[0] in " +":
            self.new.append(line[1:])
        elif word == "file":
            self.file = rest
        elif word == "equal":
            self.equal = rest
        elif word in kinds:
            self.tests[word] = rest
        elif line[0] != "-":
            raise SystemExit(f"{self.name}: what is \"{line}\"?")

    def made_in(self, text):
        """The text of the file with the change made, or None where its lines do not occur exactly once."""
        old, new = ("".join("\n" + line for line in lines) + "\n" for lines in (self.old, self.new))
        whole = "\n" + text
        return whole.replace(old, new)[1:] if whole.count(old) == 1 and old != new else None


def read(folder):
    changes = []
    for path in sorted(pathlib.Path(folder).glob("*.txt")):
        for line in path.read_text(encoding="ascii").splitlines():
            if line.startswith("== "):
                changes.append(Change(line[3:]))
            elif line and not line.startswith("#"):
                changes[-1].take(line)
    return changes


def chosen(changes, words):
    if not words:
        return changes
    unknown = [word for word in words if not any(word in change.name + change.file for change in changes)]
    if unknown:
        raise SystemExit(f"No change is called \"{unknown[0]}\".")
    return [change for change in changes if any(word in change.name + change.file for word in words)]


def tests_of(project):
    """The names of all tests."""
    names = set()
    for source in (project / "tests").rglob("*.cpp"):
        found = re.findall(r"^TEST(_F)?\((\w+),\s*(\w+)\)", source.read_text(encoding="utf-8"), re.MULTILINE)
        names.update(f"{suite}.{test}" for _, suite, test in found)
    return names


def faults(project, changes):
    """What is wrong with the lists, one sentence each."""
    tests = tests_of(project)
    names = [change.name for change in changes]
    for change in changes:
        path = project / change.file
        if names.count(change.name) > 1:
            yield f"{change.name}: more than one has this name"
        if not path.is_file() or change.made_in(path.read_text(encoding="utf-8")) is None:
            yield f"{change.name}: its lines do not occur exactly once in {change.file}"
        if not change.tests:
            yield f"{change.name}: no test could tell"
        for pattern in ":".join(change.tests.values()).split(":"):
            if not fnmatch.filter(tests, pattern):
                yield f"{change.name}: there is no test {pattern}"
