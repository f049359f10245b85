#!/usr/bin/python3
"""Does a release say the truth about itself, in the forms that others read? ReleaseTest.py PROJECT FOLDER VERSION [TEST...]

The folder is that of the packages. In structures/ stands what the published descriptions of the forms demand.
"""
import hashlib
import json
import pathlib
import re
import subprocess
import sys
import unittest
import zipfile

import jsonschema
import yaml

project, folder = (pathlib.Path(name) for name in sys.argv[1:3])
version = sys.argv[3]
structures = pathlib.Path(__file__).parent / "structures"
setup = folder / f"Huevox-{version}-setup.exe"
archive = folder / f"Huevox-{version}-windows-x64.zip"
bill_file = folder / f"Huevox-{version}.spdx.json"
winget = folder / f"Huevox-{version}-winget"


def checksum(data, algorithm="sha256"):
    return hashlib.new(algorithm, data).hexdigest()


def faults(document, structure):
    """What a document has that the structure forbids, or lacks that it demands."""
    schema = json.loads((structures / f"{structure}.json").read_text(encoding="utf-8"))
    errors = jsonschema.Draft7Validator(schema).iter_errors(document)
    return [f"{'/'.join(map(str, error.absolute_path))}: {error.message}" for error in errors]


class Texts(yaml.SafeLoader):
    """Leaves dates as they are written."""


Texts.yaml_implicit_resolvers = {
    first: [(tag, form) for tag, form in resolvers if tag != "tag:yaml.org,2002:timestamp"]
    for first, resolvers in yaml.SafeLoader.yaml_implicit_resolvers.items()}


def files_of_zip():
    with zipfile.ZipFile(archive) as opened:
        return {name: opened.read(name) for name in opened.namelist()}


class Checksums(unittest.TestCase):
    def test_are_those_of_every_file_of_the_release(self):
        lines = (folder / "SHA256SUMS").read_text(encoding="ascii").splitlines()
        listed = dict(reversed(line.split("  ", 1)) for line in lines)
        released = [setup, archive, bill_file, *winget.iterdir()]
        self.assertEqual(listed, {str(path.relative_to(folder)): checksum(path.read_bytes()) for path in released})

    def test_can_be_checked_by_the_usual_command(self):
        run = subprocess.run(["sha256sum", "--check", "--strict", "SHA256SUMS"], cwd=folder, check=False,
                             stdout=subprocess.PIPE, text=True)
        self.assertEqual(run.returncode, 0, run.stdout)


class Winget(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.files = {path.name: yaml.load(path.read_text(encoding="utf-8"), Loader=Texts)
                     for path in winget.iterdir()}
        cls.installer = cls.files["HuevoxAuthors.Huevox.installer.yaml"]
        cls.locale = cls.files["HuevoxAuthors.Huevox.locale.en-GB.yaml"]
        cls.version = cls.files["HuevoxAuthors.Huevox.yaml"]

    def test_files_have_their_structure(self):
        self.assertEqual(len(self.files), 3)
        self.assertEqual(faults(self.version, "winget-version"), [])
        self.assertEqual(faults(self.installer, "winget-installer"), [])
        self.assertEqual(faults(self.locale, "winget-locale.en-GB"), [])

    def test_files_belong_together(self):
        for content in self.files.values():
            self.assertEqual(content["PackageIdentifier"], "HuevoxAuthors.Huevox")
            self.assertEqual(content["PackageVersion"], version)
        self.assertEqual(self.version["DefaultLocale"], self.locale["PackageLocale"])

    def test_installer_is_the_one_beside_it(self):
        entry, = self.installer["Installers"]
        self.assertEqual(entry["InstallerSha256"].lower(), checksum(setup.read_bytes()))
        self.assertEqual(entry["InstallerUrl"].rsplit("/", 1)[1], setup.name)

    def test_exit_codes_are_those_that_the_user_is_told(self):
        told = files_of_zip()["README.txt"].decode("ascii")
        codes = {int(code) for code in re.findall(r"^    (\d+)  ", told, re.MULTILINE)} - {0}
        self.assertEqual({code["InstallerReturnCode"] for code in self.installer["ExpectedReturnCodes"]}, codes)

    def test_date_is_that_of_the_files(self):
        with zipfile.ZipFile(archive) as opened:
            dates = {"{}-{:02}-{:02}".format(*entry.date_time) for entry in opened.infolist()}
        self.assertEqual(dates, {self.installer["ReleaseDate"]})


class BillOfMaterials(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.bill = json.loads(bill_file.read_text(encoding="utf-8"))
        cls.packages = {entry["SPDXID"]: entry for entry in cls.bill["packages"]}
        cls.entries = cls.packages | {entry["SPDXID"]: entry for entry in cls.bill["files"]}

    def related(self, kind, one=None):
        return [self.entries[each["relatedSpdxElement"]] for each in self.bill["relationships"]
                if each["relationshipType"] == kind and one in (None, each["spdxElementId"])]

    def linked(self):
        return self.related("STATIC_LINK", "SPDXRef-File-Huevox.exe")

    def test_has_its_structure(self):
        self.assertEqual(faults(self.bill, "spdx"), [])
        self.assertEqual(len(self.entries), len(self.bill["packages"]) + len(self.bill["files"]))
        for each in self.bill["relationships"]:
            self.assertIn(each["spdxElementId"], self.entries.keys() | {"SPDXRef-DOCUMENT"})
            self.assertIn(each["relatedSpdxElement"], self.entries)

    def test_holds_every_file_that_is_delivered(self):
        files = files_of_zip()
        self.assertEqual({entry["fileName"] for entry in self.bill["files"]}, {f"./{name}" for name in files})
        for entry in self.bill["files"]:
            data = files[entry["fileName"][2:]]
            for said in entry["checksums"]:
                self.assertEqual(said["checksumValue"], checksum(data, said["algorithm"].lower()), entry["fileName"])
        codes = "".join(sorted(checksum(data, "sha1") for data in files.values()))
        said = self.packages["SPDXRef-Huevox"]["packageVerificationCode"]["packageVerificationCodeValue"]
        self.assertEqual(said, checksum(codes.encode(), "sha1"))

    def test_knows_both_packages(self):
        for name, path in (("SPDXRef-Setup", setup), ("SPDXRef-Zip", archive)):
            said, = self.packages[name]["checksums"]
            self.assertEqual(said["checksumValue"], checksum(path.read_bytes()))
            self.assertIn(self.packages["SPDXRef-Huevox"], self.related("CONTAINS", name))

    def test_names_what_is_in_the_program(self):
        program = files_of_zip()["Huevox.exe"]
        traces = {"libssp": b"stack smashing detected", "libstdc++": b"basic_string",
                  "mingw-w64 runtime": b"Mingw-w64 runtime failure", "winpthreads": b"/winpthreads/src/"}
        for name, trace in traces.items():
            self.assertIn(trace, program, name)
        # Of libgcc only code is left.
        self.assertEqual({entry["name"] for entry in self.linked()}, traces.keys() | {"libgcc"})

    def test_names_what_the_installer_is_made_of(self):
        self.assertIn("NSIS", {entry["name"] for entry in self.related("CONTAINS", "SPDXRef-Setup")})

    def test_knows_the_packages_of_this_system(self):
        for entry in self.linked() + self.related("CONTAINS", "SPDXRef-Setup"):
            if entry["name"] == "Huevox":
                continue
            name = entry["packageFileName"].split("_")[0]
            installed = subprocess.run(["dpkg-query", "-W", "-f", "${Version}", name], check=True,
                                       stdout=subprocess.PIPE, text=True).stdout
            self.assertEqual(entry["versionInfo"], installed, name)
            brought = subprocess.run(["dpkg-query", "-L", name], check=True, stdout=subprocess.PIPE, text=True).stdout
            names = {path.rsplit("/", 1)[-1] for path in brought.splitlines()}
            self.assertLessEqual(set(re.match("From (.*)[.]$", entry["comment"])[1].split(", ")), names, name)

    def test_has_every_licence_and_notice(self):
        told = files_of_zip()["THIRD-PARTY.txt"].decode("ascii")
        known = {entry["licenseId"] for entry in self.bill["hasExtractedLicensingInfos"]}
        for entry in self.linked() + [self.packages["SPDXRef-Component-NSIS"]]:
            self.assertRegex(told, rf"(?s)-\r?\n[^\r]*{re.escape(entry['name'])}", "its heading")
            for notice in entry["copyrightText"].splitlines():
                self.assertIn(notice, " ".join(told.split()), entry["name"])
            self.assertLessEqual(set(re.findall(r"LicenseRef-[A-Za-z0-9.-]+", entry["licenseDeclared"])), known)

    def test_has_no_time_but_that_of_the_release(self):
        with zipfile.ZipFile(archive) as opened:
            year, month, day, hour, minute, _ = opened.infolist()[0].date_time
        self.assertTrue(self.bill["creationInfo"]["created"].startswith(
            f"{year}-{month:02}-{day:02}T{hour:02}:{minute:02}:"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[4:])
