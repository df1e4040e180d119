#!/usr/bin/env python3
"""programs_test.py <source folder> <build folder> <cmake> <version>

The program in processes of its own, what `cmake --install` makes of it, and the launcher of an installation for all users.
"""

import os
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

SOURCE, BUILD, CMAKE, VERSION = Path(sys.argv[1]), Path(sys.argv[2]), sys.argv[3], sys.argv[4]
ASSEMBLED = BUILD / "alembra"
USERS = {"options_uk.ini", "Data/Database_uk.mdb", "Backup/Database_uk_origin.rbk"}


def files(folder):
    """Files and links below a folder."""
    return {str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_symlink() or not path.is_dir()}


def assembled_files():
    return files(ASSEMBLED) - {"Tempo.net"}


def put(path, content="mine"):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(content)


def answer(path):
    """The byte that a running instance gives; one that is starting takes its time, one that ends hangs up."""
    try:
        with socket.socket(socket.AF_UNIX) as caller:
            caller.connect(str(path))
            return caller.recv(1)
    except OSError:
        return b""


class InFolder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.session = self.folder / "session"
        self.session.mkdir(0o700)

    def start(self, program):
        """The program in a session of this test, from which another desktop is not reached."""
        environment = dict(os.environ, HOME=str(self.folder / "home"), XDG_RUNTIME_DIR=str(self.session))
        environment.pop("XDG_DATA_HOME", None)
        process = subprocess.Popen([program], env=environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        return process

    def assert_answers(self, process, sockets=1):
        """It comes into its event loop: there are so many sockets, and all answer."""
        patience = time.monotonic() + 100
        while process.poll() is None and time.monotonic() < patience:
            answers = [answer(path) for path in self.session.iterdir()]
            if len(answers) == sockets and all(answers):
                return
            time.sleep(0.01)
        process.kill()
        self.fail(f"no answer, status {process.wait()}: {process.stderr.read()}")


class Processes(InFolder):
    def copy(self, name):
        shutil.copytree(ASSEMBLED, self.folder / name, symlinks=True)
        return self.folder / name / "Alembra_uk"

    def test_one_instance_for_each_folder(self):
        program = self.copy("one folder")
        first = self.start(program)
        self.assert_answers(first)

        second = self.start(program)
        self.assertEqual(second.communicate(), (b"", b""))
        self.assertEqual(second.returncode, 0)
        self.assertIsNone(first.poll())

        # A killed instance leaves its socket and does not block the next.
        first.kill()
        first.wait()
        third = self.start(program)
        self.assert_answers(third)

        other = self.start(self.copy("other folder"))
        self.assert_answers(other, 2)
        self.assertIsNone(third.poll())

    def test_a_failed_start_is_reported_on_standard_error(self):
        program = self.copy("folder")
        options = program.with_name("options_uk.ini")
        options.unlink()
        report = self.start(program).stderr.read1().decode()
        self.assertTrue(report.startswith("Run-time error '53':\n\nFile not found"), report)
        self.assertIn(str(options), report)


class Installation(InFolder):
    def install(self, below, component=None, check=True):
        chosen = ["--component", component] if component else []
        return subprocess.run([CMAKE, "--install", BUILD, "--prefix", self.folder / below, *chosen], check=check,
                              stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)

    def test_the_portable_folder_is_the_assembled_one_and_runs_elsewhere(self):
        self.install("there")
        self.assertEqual([path.name for path in (self.folder / "there").iterdir()], ["alembra"])
        moved = (self.folder / "there/alembra").rename(self.folder / "a moved folder")
        carried = {name for name in files(moved) if name.split("/")[0] in ("lib", "licences", "plugins")}
        self.assertEqual(files(moved) - carried,
                         assembled_files() | {"LICENSE", "LICENSES.md", "README.txt", "SOURCES.md", "qt.conf"})
        self.assertIn("licences/libqt6core6.txt", carried)
        program = self.start(moved / "Alembra_uk")
        self.assert_answers(program)
        used = re.findall("/.*libQt6.*", Path(f"/proc/{program.pid}/maps").read_text())
        self.assertEqual([path for path in used if not path.startswith(str(moved))], [])
        self.assertIn(str(moved / "lib/libQt6Core.so"), str(used))
        program.kill()
        self.assertEqual(program.communicate()[1], b"")

    def test_installing_again_keeps_options_and_changed_database(self):
        self.install(".")
        options, database, original = (self.folder / "alembra" / name for name in sorted(USERS, reverse=True))
        delivered = original.read_bytes()
        for mine in (options, database):
            put(mine)
        self.install(".")
        self.assertEqual((options.read_text(), database.read_text()), ("mine", "mine"))
        put(original)  # as it came with an older version
        self.install(".")
        self.assertEqual((database.read_bytes(), original.read_bytes()), (delivered, delivered))

    def test_the_system_tree_fits_together_and_runs(self):
        self.install("usr", "system")
        tree = self.folder / "usr"
        program = self.start(tree / "bin/alembra")
        self.assert_answers(program)
        mine = self.folder / "home/.local/share/alembra"
        self.assertEqual(files(mine), USERS)
        self.assertEqual(assembled_files() - files(tree / "lib/alembra") - USERS, set())
        # Menu entry, icons and manual page name one another and the launcher.
        desktop = (tree / "share/applications/alembra.desktop").read_text()
        self.assertTrue("\nExec=alembra\n" in desktop and "\nIcon=alembra\n" in desktop, desktop)
        self.assertGreater((tree / "share/man/man1/alembra.1.gz").stat().st_size, 500)
        self.assertTrue((tree / "share/icons/hicolor/scalable/apps/alembra.svg").exists())
        for size in (16, 48, 256):
            icon = (tree / f"share/icons/hicolor/{size}x{size}/apps/alembra.png").read_bytes()
            self.assertEqual((icon[1:4], icon[16:20]), (b"PNG", size.to_bytes(4, "big")))
        [metainfo] = (tree / "share/metainfo").iterdir()
        text = metainfo.read_text()
        self.assertIn(f"<id>{metainfo.name.removesuffix('.metainfo.xml')}</id>", text)
        self.assertIn(">alembra.desktop<", text)

    def test_an_incomplete_build_leaves_nothing(self):
        stamp = BUILD / "data/pictures.stamp"  # no other test looks at it
        away = stamp.rename(stamp.with_suffix(".away"))
        self.addCleanup(away.rename, stamp)
        for component in ("portable", "system"):
            done = self.install("nothing", component, check=False)
            self.assertNotEqual(done.returncode, 0)
            self.assertIn(f"Not built: {stamp}", done.stderr)
        self.assertFalse((self.folder / "nothing").exists())

    def test_all_name_the_same_version(self):
        for file, pattern in (("CHANGELOG.md", r"^## (\S+) \(\d{4}-\d\d-\d\d\)$"),
                              ("packaging/changelog.debian.in", r"^alembra \(([^-)]+)-1\) "),
                              ("packaging/alembra.metainfo.xml.in", r'<release version="([^"]+)"')):
            found = re.search(pattern, (SOURCE / file).read_text(), re.MULTILINE)
            self.assertEqual(found and found[1], VERSION, file)


class Launcher(InFolder):
    """Before a program that prints its arguments."""

    def setUp(self):
        super().setUp()
        self.launcher = self.folder / "usr/bin/alembra"
        put(self.launcher, (SOURCE / "packaging/alembra.sh").read_text())
        program = self.folder / "usr/lib/alembra/Alembra_uk"
        put(program, "#!/bin/sh\nprintf '%s|' \"$@\"\n")
        for script in (self.launcher, program):
            script.chmod(0o700)

    def output(self, home, data_home):
        environment = {"PATH": os.environ["PATH"], "HOME": str(home), "XDG_DATA_HOME": str(data_home)}
        return subprocess.run([self.launcher, "-style", "two words"], env=environment, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True).stdout

    def test_the_program_gets_the_folder_of_the_user(self):
        for home, data_home, folder in (("/my home", "", "/my home/.local/share/alembra"),
                                        ("/my home", "/big disk", "/big disk/alembra"),
                                        ("/my home", ".", "/my home/.local/share/alembra")):
            self.assertEqual(self.output(home, data_home), folder + "|-style|two words|")
        self.assertIn("HOME: names no home folder", self.output("", ""))

    def test_a_folder_of_an_earlier_release_keeps_what_is_the_users(self):
        folder = self.folder / "data/alembra"
        kept = USERS | {"Data/ir/1.gif", "solvents.htm"}
        for name in kept | {"Alembra_uk", "Alembra_network.so", ".lock", ".release"}:
            put(folder / name)
        (folder / "Data/orga").mkdir()
        for name in ("menuc_uk.xcb", "Data/ir/2.gif", "Data/orga/1.gif"):
            (folder / name).symlink_to(self.folder / "usr/share/alembra" / name)
        (folder / "Data/ir/3.gif").symlink_to(self.folder / "elsewhere.gif")

        self.assertEqual(self.output(self.folder / "home", folder.parent), f"{folder}|-style|two words|")

        self.assertEqual(files(folder), kept | {"Data/ir/3.gif"})
        self.assertFalse((folder / "Data/orga").exists())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
