#!/usr/bin/env python3
"""The check of the layers finds every kind of fault."""

import os
import sys
import unittest

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
sys.path.insert(0, os.path.join(ROOT, "tools"))
import check_layers  # noqa: E402

# Includes that are added to one file, and the words by which each must be refused.
WRONG = [
    ("core/date.h", '#include "content/month_model.h"', "core does not see content"),
    ("core/date.h", '#include "core/civil_year.h"', "upward among the headers"),
    ("core/date.cpp", "#include <QString>", "standard library alone"),
    ("content/month_model.h", '#  include "settings/settings_store.h"', "content does not see settings"),
    ("files/file_system.h", '#include "platform/desktop_files.cpp"', "files does not see platform"),
    ("resources/strings.h", '#include "core/date.h"', "texts does not see core"),
    ("platform/desktop_files.cpp", '#include "resources/pictures/pictures.h"', "platform does not see pictures"),
    ("ui/painting/month_layout.h", "#include <QRect>", "standard library alone"),
    ("ui/painting/month_layout.h", '#include "ui/toolkit/keys.h"', "brings Qt in"),
    ("ui/month/month_window.h", "#include <QtWidgets/QtWidgets>", "whole Qt module"),
    ("ui/editors/import_holidays_dlg.cpp", '#include "ui/month/month_window.h"', "ui/editors does not see ui/month"),
    ("ui/month/month_window.h", '#include "ui/header/header_layout.h"', "ui/month does not see ui/header"),
    ("ui/painting/month_layout.cpp", '#include "ui/window/help.h"', "ui/painting does not see ui/window"),
    ("ui/shell/main.cpp", '#include "tests/support/fakes.h"', "does not include its tests"),
    ("ui/shell/main.cpp", '#include "main_dlg.h"', "no path from the root"),
    ("tests/core/date_test.cpp", '#include "files/file_system.h"', "core does not see files"),
]


def faults_with(path, include):
    """Returns the faults of the tree with one more include at the end of a file, and its line."""
    def read(name):
        return check_layers.text_of(ROOT, name) + (include + "\n" if name == path else "")

    return list(check_layers.faults(ROOT, read)), read(path).count("\n")


class LayersTest(unittest.TestCase):
    def test_each_planted_include_is_found_alone_and_in_its_line(self):
        for path, include, words in WRONG:
            with self.subTest(path=path, include=include):
                found, line = faults_with(path, include)
                self.assertEqual(len(found), 1, found)
                self.assertIn(words, found[0])
                self.assertTrue(found[0].startswith(f"{path}:{line}:"), found[0])


if __name__ == "__main__":
    unittest.main()
