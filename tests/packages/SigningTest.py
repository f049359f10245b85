#!/usr/bin/python3
"""Is a signed release signed through and through, and else what it is unsigned? SigningTest.py PROJECT CPACK BUILD VERSION
[TEST...]

The certificate is made here. The uninstaller exists only once the signed installer has run, under Wine.
"""
import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile

project, cpack, build = (pathlib.Path(name) for name in sys.argv[1:4])
version = sys.argv[4]
signed = build / "packages-signed"
setup = signed / f"Huevox-{version}-setup.exe"
password = "a \"pass\" $word's"


def run(*command, **options):
    return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          check=False, **options)


def make_certificate(folder):
    """A certificate for signing programs that vouches for itself, and a file of it and its key with a password."""
    key, certificate, both = (folder / name for name in ("key.pem", "certificate.pem", "both.p12"))
    subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=A test",
                    "-addext", "keyUsage=digitalSignature", "-addext", "extendedKeyUsage=codeSigning",
                    "-keyout", key, "-out", certificate], check=True, stderr=subprocess.DEVNULL)
    subprocess.run(["openssl", "pkcs12", "-export", "-inkey", key, "-in", certificate, "-out", both,
                    "-passout", "env:PASSWORD"], check=True, env=os.environ | {"PASSWORD": password})
    return certificate, both


class Signing(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.certificate, both = make_certificate(cls.folder)
        cls.environment = os.environ | {
            "HUEVOX_CERTIFICATE": str(both), "HUEVOX_CERTIFICATE_PASSWORD": password,
            "SOURCE_DATE_EPOCH": "1000000000", "PATH": f"{cls.folder / 'bin'}:{os.environ['PATH']}"}
        cls.environment.pop("HUEVOX_TIMESTAMP", None)
        (cls.folder / "bin").mkdir()
        cls.note_calls(f'exec {shutil.which("osslsigncode")} "$@"')
        shutil.rmtree(signed, ignore_errors=True)
        made = cls.make_packages(signed)
        assert made.returncode == 0, made.stdout
        cls.calls = (cls.folder / "calls").read_text(encoding="utf-8")

    @classmethod
    def note_calls(cls, then):
        """Puts a program in the place of the signing one that notes how it is called."""
        program = cls.folder / "bin/osslsigncode"
        program.write_text(f'#!/bin/bash\necho "$*" >>{shlex.quote(str(cls.folder / "calls"))}\n{then}\n')
        program.chmod(0o755)

    @classmethod
    def make_packages(cls, folder, **changes):
        return run(cpack, "--config", build / "CPackConfig.cmake", "-B", folder, env=cls.environment | changes)

    def expect_signed(self, program):
        verified = run("osslsigncode", "verify", "-CAfile", self.certificate, "-in", program)
        self.assertEqual(verified.returncode, 0, verified.stdout)

    def program_of_zip(self):
        with zipfile.ZipFile(signed / f"Huevox-{version}-windows-x64.zip") as opened:
            return pathlib.Path(opened.extract("Huevox.exe", self.folder / "zip"))

    def test_covers_the_program_of_the_zip(self):
        self.expect_signed(self.program_of_zip())

    def test_covers_the_installer_and_all_programs_that_it_installs(self):
        self.expect_signed(setup)
        script = 'scripts=$1 setup=$2 to=$3\n"$scripts/wine" "$setup" /S "/D=C:\\Signed"\ncp -r "$WINEPREFIX/drive_c/Signed" "$to"'
        installed = run(project / "scripts/desktop", "bash", "-ec", script, "-", project / "scripts", setup,
                        self.folder / "installed")
        self.assertEqual(installed.returncode, 0, installed.stdout)
        programs = sorted((self.folder / "installed").glob("*.exe"))
        self.assertEqual([program.name for program in programs], ["Huevox.exe", "uninstall.exe"])
        for program in programs:
            self.expect_signed(program)

    def test_is_not_there_without_a_certificate(self):
        for program in (build / "Huevox.exe", build / f"packages-tested/Huevox-{version}-setup.exe"):
            verified = run("osslsigncode", "verify", "-CAfile", self.certificate, "-in", program)
            self.assertNotEqual(verified.returncode, 0, program)

    def test_leaves_the_programs_bytes_as_they_were(self):
        bare = self.folder / "bare.exe"
        run("osslsigncode", "remove-signature", "-in", self.program_of_zip(), "-out", bare)
        self.assertTrue(bare.read_bytes() == (build / "Huevox.exe").read_bytes())

    def test_comes_before_checksums_manifest_and_bill(self):
        checked = run(pathlib.Path(__file__).parent / "ReleaseTest.py", project, signed, version)
        self.assertEqual(checked.returncode, 0, checked.stdout)

    def test_shows_the_password_to_nobody(self):
        self.assertEqual(self.calls.count(" -pkcs12 "), 3)
        self.assertNotIn(password, self.calls)
        for path in signed.rglob("*"):
            if path.is_file():
                self.assertNotIn(password.encode(), path.read_bytes(), path)

    def test_fails_with_another_password(self):
        made = self.make_packages(self.folder / "refused", HUEVOX_CERTIFICATE_PASSWORD="another")
        self.assertNotEqual(made.returncode, 0)
        self.assertIn("password", made.stdout)
        self.assertEqual(list((self.folder / "refused").glob("Huevox-*")), [])

    def test_asks_for_a_time_stamp_where_it_is_told(self):
        program = self.folder / "program.exe"
        program.write_bytes(b"unsigned")
        (self.folder / "calls").unlink()
        self.note_calls('cp "${@: -3:1}" "${@: -1}"')
        self.addCleanup(self.note_calls, f'exec {shutil.which("osslsigncode")} "$@"')
        run(project / "installer/sign", program, env=self.environment | {"HUEVOX_TIMESTAMP": "http://stamp.example"})
        self.assertIn(" -ts http://stamp.example ", (self.folder / "calls").read_text(encoding="utf-8"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[5:])
