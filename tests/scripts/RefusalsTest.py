#!/usr/bin/python3
"""Do the scripts say in one sentence why they cannot? RefusalsTest.py PROJECT_FOLDER [TEST...]

They run on a machine that is made up: nothing but programs of a folder can be found, and those that would change
something only note how they were called.
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

project = pathlib.Path(sys.argv[1])


def release():
    with open("/etc/os-release", encoding="utf-8") as file:
        return next(line.split("=", 1)[1].strip().strip('"') for line in file if line.startswith("PRETTY_NAME="))


class Script(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        (self.folder / "bin").mkdir()
        (self.folder / "scripts").mkdir()
        for name in ("scripts/dependencies", "scripts/room", "scripts/platforms", "package"):
            shutil.copy(project / name, self.folder / "scripts")
        for name in ("bash", "cut", "dirname", "du", "env", "grep", "mkdir", "sed", "tail"):
            (self.folder / "bin" / name).symlink_to(shutil.which(name))

    def tearDown(self):
        shutil.rmtree(self.folder)

    def program(self, name, text):
        """A program that notes its arguments and then does what the text says."""
        path = self.folder / "bin" / name
        path.unlink(missing_ok=True)
        path.write_text(f'#!/bin/bash\necho "{name} $*" >>"{self.folder}/calls"\n{text}\n')
        path.chmod(0o755)

    def run_script(self, *command):
        script = [self.folder / "scripts" / command[0], *command[1:]]
        return subprocess.run(script, env={"PATH": self.folder / "bin"}, text=True, capture_output=True, check=False,
                              stdin=subprocess.DEVNULL)

    def calls(self, beginning):
        path = self.folder / "calls"
        lines = path.read_text().splitlines() if path.exists() else []
        return [line for line in lines if line.startswith(beginning)]

    def expect_sentence(self, run, *parts):
        self.assertNotEqual(run.returncode, 0)
        self.assertEqual(len(run.stderr.splitlines()), 1, run.stderr)
        for part in parts:
            self.assertIn(part, run.stderr)


class Dependencies(Script):
    def setUp(self):
        super().setUp()
        self.program("dpkg-query", 'case "$4" in xclip | wine32:i386) echo not-installed ;; *) echo installed ;; esac')
        self.program("id", "echo 0")
        self.program("dpkg", "")
        self.program("apt-get", "")
        self.program("apt-cache", 'echo "  Candidate: 1.0"')

    def installs(self):
        return [call for call in self.calls("apt-get -qq install") if "--download-only" not in call]

    def test_nothing_is_done_where_nothing_is_missing(self):
        self.program("dpkg-query", "echo installed")
        run = self.run_script("dependencies")
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, "", ""))
        self.assertEqual(self.calls("apt-get"), [])

    def test_what_is_missing_is_fetched_first_and_then_installed(self):
        run = self.run_script("dependencies")
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, "Installing xclip\n", ""))
        _, fetch, install = self.calls("apt-get")
        self.assertIn("xclip --download-only", fetch)
        self.assertEqual(install, "apt-get -qq install -y --no-install-recommends xclip")

    def test_the_32_bit_half_is_installed_only_when_it_is_asked_for(self):
        self.run_script("dependencies")
        self.assertEqual(self.calls("dpkg "), [])
        run = self.run_script("dependencies", "--with-32-bit")
        self.assertEqual(run.returncode, 0)
        self.assertIn("dpkg --add-architecture i386", self.calls("dpkg "))
        self.assertNotIn("dpkg --remove-architecture i386", self.calls("dpkg "))
        self.assertTrue(self.installs()[-1].endswith("xclip wine32:i386"))

    def test_a_release_without_the_package(self):
        self.program("apt-cache", '[ "$2" = xclip ] || echo "  Candidate: 1.0"')
        run = self.run_script("dependencies", "--with-32-bit")
        self.expect_sentence(run, release(), "xclip")
        self.assertNotIn("wine32", run.stderr)
        self.assertEqual(self.installs(), [])
        self.assertIn("dpkg --remove-architecture i386", self.calls("dpkg "))

    def test_no_network_and_no_lists(self):
        self.program("apt-cache", "")
        self.program("apt-get", 'echo "E: Temporary failure resolving" >&2; exit 100')
        run = self.run_script("dependencies")
        self.expect_sentence(run, release(), "network", "Temporary failure resolving")
        self.assertEqual(self.installs(), [])

    def test_no_network_and_lists_of_yesterday(self):
        self.program("apt-get", 'echo "E: Failed to fetch" >&2; echo "E: Unable to fetch" >&2; exit 100')
        run = self.run_script("dependencies")
        self.expect_sentence(run, release(), "network", "Failed to fetch")
        self.assertEqual(self.installs(), [])

    def test_a_list_that_cannot_be_fetched_is_no_obstacle(self):
        self.program("apt-get", '[ "$2" != update ]')
        self.assertEqual(self.run_script("dependencies").returncode, 0)
        self.assertEqual(len(self.installs()), 1)

    def test_a_package_that_cannot_be_installed(self):
        self.program("apt-get", 'case "$*" in *download-only* | *update*) ;; *) echo "E: Sub-process" >&2; exit 100 ;; esac')
        self.expect_sentence(self.run_script("dependencies"), release(), "Sub-process")

    def test_a_user_without_sudo(self):
        self.program("id", "echo 1000")
        self.expect_sentence(self.run_script("dependencies"), "as root")
        self.assertEqual(self.calls("apt-get"), [])

    def test_a_user_with_sudo(self):
        self.program("id", "echo 1000")
        self.program("sudo", '"$@"')
        self.assertEqual(self.run_script("dependencies").returncode, 0)
        self.assertEqual(len(self.calls("sudo")), 3)
        self.assertEqual(len(self.installs()), 1)

    def test_a_system_without_apt(self):
        (self.folder / "bin/apt-get").unlink()
        self.expect_sentence(self.run_script("dependencies"), release(), "xclip")


class Room(Script):
    def free(self, megabytes):
        self.program("df", f"echo Avail; echo {megabytes}")

    def test_as_much_as_is_needed_and_less(self):
        self.free(1500)
        self.assertEqual(self.run_script("room", "1500").returncode, 0)
        self.free(1400)
        self.expect_sentence(self.run_script("room", "1500"), f"{self.folder}/build", "1400 MB", "1500 MB")

    def test_what_is_there_already_counts_while_there_is_some_room_left(self):
        self.program("du", "printf '1400\\tbuild\\n'")
        self.free(100)
        self.assertEqual(self.run_script("room", "1500").returncode, 0)
        self.free(99)
        self.expect_sentence(self.run_script("room", "1500"), "99 MB")

    def test_a_folder_that_cannot_be_made(self):
        (self.folder / "build").write_text("a file\n")
        self.free(1500)
        self.expect_sentence(self.run_script("room", "1500"), f"{self.folder}/build", "cannot be written")


class Platforms(Script):
    def setUp(self):
        super().setUp()
        self.program("id", "echo 0")
        self.program("debootstrap", "")
        self.program("unshare", "")

    def test_a_release_that_is_not_known(self):
        self.expect_sentence(self.run_script("platforms", "12", "11"), "Debian 11", "12 and 13")
        self.assertEqual(self.calls("debootstrap"), [])

    def test_a_user(self):
        self.program("id", "echo 1000")
        self.expect_sentence(self.run_script("platforms"), "as root")

    def test_no_debootstrap(self):
        (self.folder / "bin/debootstrap").unlink()
        self.expect_sentence(self.run_script("platforms"), "apt-get install debootstrap")

    def test_nothing_can_be_mounted(self):
        self.program("unshare", "exit 1")
        self.expect_sentence(self.run_script("platforms"), "mounted")

    def test_no_network(self):
        self.program("unshare", '[ "$3" = --fork ] || { echo "E: Failed getting release file"; exit 1; }')
        self.program("df", "echo Avail; echo 20000")
        for name in ("apt-get", "git"):
            self.program(name, "")
        for name in ("chmod", "mktemp", "rm"):
            (self.folder / "bin" / name).symlink_to(shutil.which(name))
        self.expect_sentence(self.run_script("platforms", "13"), "Debian 13", "network", "Failed getting release file")
        self.assertEqual(list((self.folder / "build/platforms").glob("tree-*")), [])


class HelpCompiler(Script):
    def test_that_is_missing_is_named_with_where_it_comes_from(self):
        run = subprocess.run([shutil.which("cmake"), "-P", project / "cmake/Help.cmake"],
                             env={"PATH": self.folder / "bin"}, text=True, capture_output=True, check=False)
        self.assertNotEqual(run.returncode, 0)
        self.assertIn("There is no chmcmd on the path, which compiles the help: it comes with Free Pascal.",
                      " ".join(run.stderr.split()))


class Package(Script):
    def setUp(self):
        super().setUp()
        for name in ("cmake", "cpack", "realpath"):
            self.program(name, "")

    def test_a_certificate_that_is_not_there(self):
        self.expect_sentence(self.run_script("package", "--sign", "none.p12"), "none.p12", "cannot be read")
        self.assertEqual(self.calls("cmake"), [])

    def test_a_password_that_nobody_can_be_asked_for(self):
        certificate = self.folder / "mine.p12"
        certificate.write_text("")
        self.expect_sentence(self.run_script("package", "--sign", certificate), "HUEVOX_CERTIFICATE_PASSWORD")
        self.assertEqual(self.calls("cmake"), [])

    def test_what_it_does_not_know(self):
        self.expect_sentence(self.run_script("package", "--seal"), "usage: package [--sign")


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[2:]])
