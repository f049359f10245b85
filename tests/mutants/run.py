"""Makes the listed changes and reports whether the tests catch them: see scripts/mutants."""
import concurrent.futures
import pathlib
import shutil
import signal
import sys
import time

import changes as written
import checkout as copied
import tell

project = pathlib.Path(__file__).resolve().parents[2]


def check():
    faults = list(written.faults(project, written.read(project / "tests/mutants")))
    for fault in faults:
        print(fault)
    return 1 if faults else 0


def together(changes):
    """The tests that should catch the changes, in as few runs as possible: tests in one process can affect each other."""
    patterns = {(kind, change.tests[kind]) for change in changes for kind in change.tests}
    ui = ":".join(sorted(pattern for kind, pattern in patterns if kind == "ui"))
    others = [{kind: pattern} for kind, pattern in sorted(patterns) if kind != "ui"]
    return others + ([{"ui": ui}] if ui else [])


def baseline(checkout, tests, changes):
    """A test that fails without any change would make a change look caught."""
    checkout.make(None)
    used = sorted({kind for change in changes for kind in change.tests})
    checkout.configure(used)
    checkout.build_for(used)
    folder = checkout.programs(used, "unchanged")
    begin = time.monotonic()
    for patterns in together(changes):
        told = tests.tell(patterns, folder, limit=3600)
        if told:
            sys.exit(f"Without any change fails {told}:\n" + "\n".join(tests.last.splitlines()[-20:]))
    print(f"unchanged: all tests that could tell pass, in {time.monotonic() - begin:.0f} s", flush=True)


def built(checkout, change, number):
    """The folder of the changed programs, or None."""
    checkout.make(change)
    try:
        checkout.build_for(change.tests)
    except copied.DoesNotBuild as error:
        print(error)
        return None
    return checkout.programs(change.tests, f"changed-{number % 2}")


def verdict(tests, change, folder):
    begin = time.monotonic()
    told = tests.tell(change.tests, folder) if folder else ""
    seconds = f"{time.monotonic() - begin:.1f} s"
    shutil.rmtree(folder or "", ignore_errors=True)
    if told == "":
        return "broken", f"{change.name} (it does not build)"
    if told:
        wrongly = ", THOUGH CALLED EQUAL" if change.equal else ""
        return "caught", f"{change.name} (by {told}, {seconds}){wrongly}"
    if change.equal:
        return "equal", f"{change.name}: {change.equal}"
    return "survived", f"{change.name} ({change.file}, {seconds})"


def main(words):
    begin = time.monotonic()
    signal.signal(signal.SIGTERM, stop)
    changes = written.chosen(written.read(project / "tests/mutants"), words)
    broken = list(written.faults(project, changes))
    if broken:
        sys.exit("\n".join(broken))
    checkout, tests = copied.Checkout(project), tell.Tests(project)
    baseline(checkout, tests, changes)
    results = {"caught": 0, "survived": 0, "equal": 0, "broken": 0}
    failures = []

    def report(future):
        kind, text = future.result()
        results[kind] += 1
        if kind in ("survived", "broken") or text.endswith("EQUAL"):
            failures.append(f"{kind}: {text}")
        print(f"{kind:9}{text}", flush=True)

    # While one is tested, the next is built.
    with concurrent.futures.ThreadPoolExecutor(1) as tester:
        running = None
        for number, change in enumerate(changes):
            folder = built(checkout, change, number)
            if running:
                report(running)
            running = tester.submit(verdict, tests, change, folder)
        report(running)
    checkout.make(None)
    counts = ", ".join(f"{count} {kind}" for kind, count in results.items())
    minutes, seconds = divmod(int(time.monotonic() - begin), 60)
    print(*failures, f"{len(changes)} changes: {counts}, in {minutes}:{seconds:02}", sep="\n")
    return 1 if failures else 0


def stop(*_):
    sys.exit("stopped")


if __name__ == "__main__":
    sys.exit(check() if sys.argv[1:] == ["--check"] else main(sys.argv[1:]))
