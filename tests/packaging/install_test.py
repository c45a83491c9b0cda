#!/usr/bin/env python3
"""Installs a build below an empty folder and looks at what arrives there."""

import os
import re
import struct
import subprocess
import sys
import tempfile
import unittest

CMAKE, BUILD, HOLIDAYS = sys.argv[1:4]
ICONS = [16, 22, 24, 32, 48, 64, 128, 256, 512]
APP = "org.corvalen.Orbisol"
EXPECTED = {
    "bin/orbisol",
    f"share/applications/{APP}.desktop",
    "share/doc/orbisol/changelog.gz",
    "share/doc/orbisol/copyright",
    f"share/icons/hicolor/scalable/apps/{APP}.svg",
    "share/man/fr/man1/orbisol.1.gz",
    "share/man/man1/orbisol.1.gz",
    f"share/metainfo/{APP}.metainfo.xml",
    "share/orbisol/Calendar.reg",
} | {f"share/icons/hicolor/{side}x{side}/apps/{APP}.png" for side in ICONS}


class InstallTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.prefix = os.path.join(cls.scratch.name, "usr")
        subprocess.run([CMAKE, "--install", BUILD, "--prefix", "/usr"], check=True, stdout=subprocess.DEVNULL,
                       env=os.environ | {"DESTDIR": cls.scratch.name})

    @classmethod
    def tearDownClass(cls):
        cls.scratch.cleanup()

    def read(self, path):
        with open(os.path.join(self.prefix, path), "rb") as file:
            return file.read()

    def test_nothing_but_the_program_and_what_it_needs_is_installed(self):
        found = {os.path.relpath(os.path.join(folder, name), self.scratch.name)
                 for folder, _, names in os.walk(self.scratch.name) for name in names}
        calendars = {path for path in found if path.startswith("usr/share/orbisol/Legals/") and path.endswith(".xml")}
        self.assertEqual({"usr/" + path for path in EXPECTED}, found - calendars)
        sources = [name for name in os.listdir(HOLIDAYS) if name.endswith(".toml")]
        self.assertEqual(len(sources), len(calendars))

    def test_each_icon_is_as_large_as_its_folder_says(self):
        for side in ICONS:
            header = self.read(f"share/icons/hicolor/{side}x{side}/apps/{APP}.png")[16:24]
            self.assertEqual((side, side), struct.unpack(">II", header))

    def test_program_and_description_name_the_same_version(self):
        said = subprocess.run([os.path.join(self.prefix, "bin/orbisol"), "--version"], check=True, capture_output=True)
        newest = re.search(rb'<release version="([^"]+)"', self.read(f"share/metainfo/{APP}.metainfo.xml"))
        self.assertEqual(said.stdout.split()[-1], newest.group(1))


unittest.main(argv=sys.argv[:1])
