#!/usr/bin/env python3
"""The layer and format checks fail on what they are for, in small planted trees.

    CheckToolsTest.py <source root>
"""

import os
import shutil
import subprocess
import sys
import tempfile
import textwrap
import unittest

ROOT = os.path.abspath(sys.argv.pop(1) if len(sys.argv) > 1 else
                       os.path.join(os.path.dirname(__file__), "..", ".."))


def plant(root, files):
    for path, text in files.items():
        full = os.path.join(root, path)
        os.makedirs(os.path.dirname(full), exist_ok=True)
        with open(full, "w", encoding="utf-8") as f:
            f.write(textwrap.dedent(text))


# A tree that keeps every rule, with one use of each allowed kind of edge.
CLEAN_TREE = {
    "platform/WinTypes.h": "#pragma once\n",
    "platform/CMakeLists.txt": "add_library(platform STATIC WinTypes.cpp)\n",
    "language/LangString.h": '#include "platform/WinTypes.h"\n',
    "streams/engine/Estimate.h": '#include "platform/WinTypes.h"\n',
    "streams/engine/CMakeLists.txt": "add_library(streams_engine STATIC Estimate.cpp)\n",
    "sf/SFButton.h": '#include "language/LangString.h"\n#include "sf/qt/SFQtConvert.h"\n',
    "sf/qt/SFQtConvert.h": "#pragma once\n",
    "sf/CMakeLists.txt": """\
        add_library(sf STATIC SFButton.cpp)
        # target_link_libraries(sf PRIVATE streams_engine)
        target_link_libraries(sf PUBLIC platform
          language)
        """,
    "streams/rows/Binder.h": '#include "streams/engine/Estimate.h"\n#include "sf/SFButton.h"\n',
    "streams/Page.cpp": """\
        #include "calculator/Panel.h"
        #include "preview/Preview.h"
        #include "streams/rows/Binder.h"
        #include "moc_Page.cpp"
        """,
    "calculator/Panel.h": '#include "sf/SFButton.h"\n',
    "preview/Preview.h": '#include "vexplay/vexplay.h"\n',
    "preview/CMakeLists.txt": """\
        add_library(preview STATIC Preview.cpp)
        target_link_libraries(preview PUBLIC sf PRIVATE vexplay_loader)
        """,
    "vexplay/vexplay.h": "#pragma once\n",
    "vexplay/ClipDecoder.h": "#pragma once\n",
    "vexplay/CMakeLists.txt": """\
        add_library(vexplay SHARED ClipDecoder.cpp)
        add_library(vexplay_loader STATIC Loader.cpp)
        target_link_libraries(vexplay_loader PRIVATE platform ${CMAKE_DL_LIBS})
        """,
    "shell/Main.cpp": '#include "streams/Page.h"\n',
    "streams/Page.h": "#pragma once\n",
    "tests/PageTest.cpp": '#include "vexplay/ClipDecoder.h"\n#include "shell/Main.h"\n',
    "tests/support/QtWait.h": "#pragma once\n",
}


class LayerCheck(unittest.TestCase):
    def run_check(self, planted):
        with tempfile.TemporaryDirectory() as root:
            plant(root, CLEAN_TREE)
            for path in ("tools/check-layers.py", "cmake/layers.txt"):
                os.makedirs(os.path.join(root, os.path.dirname(path)), exist_ok=True)
                shutil.copy(os.path.join(ROOT, path), os.path.join(root, path))
            plant(root, planted)
            run = subprocess.run([sys.executable, os.path.join(root, "tools/check-layers.py")],
                                 capture_output=True, text=True)
            return run.returncode, run.stdout

    def test_clean_tree_passes(self):
        status, out = self.run_check({})
        self.assertEqual((status, out), (0, ""))

    def test_planted_violations_fail(self):
        cases = [
            ("framework includes the engine",
             {"sf/qt/SFQTList.cpp": '#include "streams/engine/Estimate.h"\n'},
             1, "sf/qt/SFQTList.cpp:1: sf includes streams/engine/Estimate.h (engine): sideways"),
            ("calculator includes the channel page that hosts it",
             {"calculator/Panel.cpp": '\n#include "streams/Page.h"\n'},
             1, "calculator/Panel.cpp:2: calculator includes streams/Page.h (streams): upward"),
            ("preview includes the calculator",
             {"preview/Preview.cpp": '#include "calculator/Panel.h"\n'},
             1, "preview includes calculator/Panel.h (calculator): sideways"),
            ("preview reaches past the playback header",
             {"preview/Preview.cpp": '#include "vexplay/ClipDecoder.h"\n'},
             1, "vexplay is used only through vexplay/vexplay.h, vexplay_loader"),
            ("program includes test support",
             {"platform/WinRect.cpp": '#  include "tests/support/QtWait.h"\n'},
             1, "the program must not use tests"),
            ("framework links the engine",
             {"sf/qt/ListCtrl.cmake": "target_link_libraries(sf PRIVATE streams_engine)\n"},
             1, "sf/qt/ListCtrl.cmake:1: target sf (sf) links streams_engine (engine): sideways"),
            ("preview links the playback library itself",
             {"preview/Extra.cmake": "target_link_libraries(preview PRIVATE vexplay)\n"},
             1, "target preview (preview) links vexplay (vexplay): vexplay is used only"),
            ("a folder without a layer",
             {"newstuff/Thing.cpp": "int x;\n"},
             2, "newstuff: source files in a folder that cmake/layers.txt does not place"),
        ]
        for name, planted, status, message in cases:
            with self.subTest(name):
                got_status, out = self.run_check(planted)
                self.assertEqual(got_status, status, out)
                self.assertIn(message, out)


class FormatCheck(unittest.TestCase):
    TIDY = "int f()\n{\n    return 1;\n}\n"
    UNTIDY = "int  g( ) { return 2; }\n"

    def setUp(self):
        self.dir = tempfile.TemporaryDirectory()
        self.root = self.dir.name
        for path in ("tools/format.sh", ".clang-format"):
            os.makedirs(os.path.join(self.root, os.path.dirname(path)), exist_ok=True)
            shutil.copy(os.path.join(ROOT, path), os.path.join(self.root, path))
        self.git("init", "-q")

    def tearDown(self):
        self.dir.cleanup()

    def git(self, *args):
        subprocess.run(["git", "-C", self.root, *args], check=True, capture_output=True)

    def add(self, files, track=True):
        plant(self.root, files)
        if track:
            self.git("add", *files)

    def format(self, *args):
        run = subprocess.run([os.path.join(self.root, "tools/format.sh"), *args],
                             capture_output=True, text=True)
        return run.returncode, run.stdout.split()

    def test_check_lists_only_tracked_sources_that_differ(self):
        self.add({"sf/Tidy.cpp": self.TIDY, "sf/Untidy.h": self.UNTIDY,
                  "fuzz/corpus/layout/seed.cpp": self.UNTIDY, "docs/notes.txt": self.UNTIDY})
        self.add({"sf/Untracked.cpp": self.UNTIDY}, track=False)
        self.assertEqual(self.format("--check"), (1, ["sf/Untidy.h"]))

    def test_apply_makes_the_check_pass(self):
        self.add({"sf/Untidy.cpp": self.UNTIDY})
        self.assertEqual(self.format(), (0, []))
        self.assertEqual(self.format("--check"), (0, []))
        with open(os.path.join(self.root, "sf/Untidy.cpp"), encoding="utf-8") as f:
            self.assertEqual(f.read(), "int g()\n{\n    return 2;\n}\n")

    def test_includes_fall_into_the_house_order(self):
        self.add({"calculator/PanelModes.cpp": textwrap.dedent("""\
            #include <vector>
            #include <QWidget>
            #include "sf/SFButton.h"
            #include <gtest/gtest.h>
            #include "calculator/Panel.h"
            #include "Config/Setting.h"
            #include <QColor>
            #include "calculator/engine/Raid.h"
            """)})
        self.format()
        with open(os.path.join(self.root, "calculator/PanelModes.cpp"), encoding="utf-8") as f:
            self.assertEqual(f.read(), textwrap.dedent("""\
                #include "calculator/Panel.h"

                #include "Config/Setting.h"
                #include "calculator/engine/Raid.h"
                #include "sf/SFButton.h"

                #include <QColor>
                #include <QWidget>
                #include <gtest/gtest.h>
                #include <vector>
                """))


if __name__ == "__main__":
    unittest.main(verbosity=2)
