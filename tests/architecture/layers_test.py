#!/usr/bin/env python3
"""The check of the layers finds every kind of fault."""

import os
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
import check_layers  # noqa: E402

# A small tree in which every include is right.
TREE = {
    "resources/strings.h": "",
    "resources/pictures/icons.h": '#include <QIcon>\n#include "core/date.h"\n',
    "core/calendar_config.h": "#include <array>\n",
    "core/date.h": '#include "core/calendar_config.h"\n#include <cstdint>\n',
    "core/civil_year.h": '#include "core/date.h"\n',
    "core/date.cpp": '#include "core/date.h"\n#include "core/civil_year.h"\n#include "resources/strings.h"\n',
    "settings/settings_store.h": '#include "files/file_system.h"\n',
    "content/month_model.h": '#include "core/date.h"\n',
    "files/file_system.h": '#include "content/month_model.h"\n',
    "platform/desktop_files.cpp": '#include "files/file_system.h"\n#include <QString>\n#include <sys/stat.h>\n',
    "ui/painting/month_layout.h": '#include "core/date.h"\n#include <array>\n',
    "ui/painting/month_layout.cpp": "",
    "ui/header/header_layout.h": "",
    "ui/toolkit/keys.h": "#include <QString>\n",
    "ui/window/help.h": "#include <QString>\n",
    "ui/month/month_window.h": '#include "ui/painting/month_layout.h"\n#include <QWidget>\n',
    "ui/print/page_painter.h": '#include "ui/painting/month_layout.h"\n',
    "ui/editors/events.cpp": '#include "ui_events.h"\n#include "resources/pictures/icons.h"\n',
    "ui/shell/main.cpp": '#include "ui/print/page_painter.h"\n#include "platform/desktop_files.cpp"\n',
    "tests/support/fakes.h": '#include "files/file_system.h"\n',
    "tests/core/date_test.cpp": '#include "core/date.h"\n#include "tests/support/fakes.h"\n#include <gtest/gtest.h>\n',
    "bench/bench.cpp": '#include "ui/shell/main.cpp"\n',
}

# Includes that are added to one file, and the words by which each must be refused.
WRONG = [
    ("core/date.h", '#include "content/month_model.h"', "core does not see content"),
    ("core/date.h", '#include "core/civil_year.h"', "upward among the headers"),
    ("core/date.cpp", "#include <QString>", "standard library alone"),
    ("core/date.cpp", "#include <sys/stat.h>", "standard library alone"),
    ("content/month_model.h", '#  include "settings/settings_store.h"', "content does not see settings"),
    ("files/file_system.h", '#include "platform/desktop_files.cpp"', "files does not see platform"),
    ("resources/strings.h", '#include "core/date.h"', "texts does not see core"),
    ("platform/desktop_files.cpp", '#include "resources/pictures/icons.h"', "platform does not see pictures"),
    ("ui/painting/month_layout.h", "#include <QRect>", "standard library alone"),
    ("ui/painting/month_layout.h", '#include "ui/toolkit/keys.h"', "brings Qt in"),
    ("ui/month/month_window.h", "#include <QtWidgets>", "whole Qt module"),
    ("ui/month/month_window.h", "#include <QtWidgets/QtWidgets>", "whole Qt module"),
    ("ui/editors/events.cpp", '#include "ui/print/page_painter.h"', "ui/editors does not see ui/print"),
    ("ui/month/month_window.h", '#include "ui/header/header_layout.h"', "ui/month does not see ui/header"),
    ("ui/painting/month_layout.cpp", '#include "ui/window/help.h"', "ui/painting does not see ui/window"),
    ("ui/shell/main.cpp", '#include "tests/support/fakes.h"', "does not include its tests"),
    ("ui/shell/main.cpp", '#include "main_dlg.h"', "no path from the root"),
    ("tests/core/date_test.cpp", '#include "files/file_system.h"', "core does not see files"),
]


def faults_of(tree):
    with tempfile.TemporaryDirectory() as root:
        for path, text in tree.items():
            os.makedirs(os.path.join(root, os.path.dirname(path)), exist_ok=True)
            with open(os.path.join(root, path), "w", encoding="utf-8") as source:
                source.write(text)
        return list(check_layers.faults(root))


class LayersTest(unittest.TestCase):
    def test_a_right_tree_has_no_fault(self):
        self.assertEqual(faults_of(TREE), [])

    def test_each_planted_include_is_found_alone_and_in_its_line(self):
        for path, include, words in WRONG:
            with self.subTest(path=path, include=include):
                lines = TREE[path].count("\n")
                found = faults_of({**TREE, path: TREE[path] + include + "\n"})
                self.assertEqual(len(found), 1, found)
                self.assertIn(words, found[0])
                self.assertTrue(found[0].startswith(f"{path}:{lines + 1}:"), found[0])


if __name__ == "__main__":
    unittest.main()
