"""Each check of scripts/check finds its problems, says where they are, and accepts a repository
without them.

The tests use a repository that has a copy of the checks and one other file.
"""

import pathlib
import shutil
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SETTINGS = (".clang-format", ".clang-tidy")
ENTRY = "[Desktop Entry]\nType=Application\nName=Vantle\nExec=vantle\n"
TRANSLATION = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de"><context><name>A</name>
<message><source>Copy %1</source>
{}
</message></context></TS>
"""
METAINFO = """<?xml version="1.0" encoding="UTF-8"?>
<component type="desktop-application"><id>org.vantle.Vantle</id></component>
"""
PRESETS = """{"version": 6, "configurePresets": [
  {"name": "checks", "generator": "Ninja", "binaryDir": "${sourceDir}/build/checks"}]}
"""
PROJECT = """cmake_minimum_required(VERSION 3.25)
project(sample LANGUAGES CXX)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
"""
CPP_PROJECT = PROJECT + "add_library(sample STATIC src/a.cpp src/b.cpp)\n"
QML_PROJECT = PROJECT + """find_package(Qt6 REQUIRED COMPONENTS Quick)
set(CMAKE_AUTOMOC ON)
add_subdirectory(src/cards)
"""
MODULE = """qt_add_qml_module(sample URI Vantle.Cards VERSION 1.0
  OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/Vantle/Cards SOURCES Model.cpp Model.h QML_FILES A.qml)
target_link_libraries(sample PRIVATE Qt6::Quick)
"""
MODEL = """#pragma once
#include <QObject>
#include <QtQml/qqmlregistration.h>
class Model : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int count READ count CONSTANT)
public:
    int count() const { return 1; }
};
"""
# A check, a file, a faulty text for it, a right one, and the start of the message.
SAMPLES = (
    ("text", "a.md", "good\nbad \n", "good\nbad\n", "a.md:2: ends with white space"),
    ("text", "a.md", "good", "good\n", "a.md:1: the last line has no end"),
    ("text", "a.md", "good\n\n", "good\n", "a.md:2: an empty line at the end"),
    ("text", "a.md", "in /home/" "anna\n", "in ~/a\n", "a.md:1: names somebody's home"),
    ("documents", "a.md", "# A\n[b](b.md)\n", "# A\n[b](#a)\n",
     "a.md:2: links to b.md, which does not exist"),
    ("documents", "a.md", "[b](#b-c)\n", "# B, `c`\n[b](#b-c)\n",
     "a.md:1: links to the heading #b-c"),
    ("documents", "a.md", "`desktop.tray.it_shines`\n", "none\n",
     "a.md:1: names the test it_shines"),
    ("formatting", "src/a.cpp", "int a;\nint  b;\n", "int a;\nint b;\n", "src/a.cpp:2: "),
    ("formatting", "a.sh", "if true; then\n    true\nfi\n", "true\n", "a.sh:1: "),
    ("shell", "a.sh", "#!/bin/bash\nls $1\n", "#!/bin/bash\nls \"$1\"\n", "a.sh:2: "),
    ("python", "a.py", "import os\n", "import os  # noqa: F401\n",
     "a.py:1: 'os' imported but unused"),
    ("python", "a.py", "a = 1\nb=2\n", "a = 1\n", "a.py:2: E225"),
    ("spelling", "a.md", "One\nscrenshot\n", "One\nscreenshot\n", "a.md:2: unknown word: scr"),
    ("spelling", "a.md", "```\nscrenshot\n```\nscrenshot\n", "`screnshot`\n", "a.md:4: "),
    ("spelling", "src/A.qml", "Text {\n text: qsTr(\"Cptured\")\n}\n", "Text {}\n",
     "src/A.qml:2: unknown word: Cptured"),
    ("spelling", "src/a.cpp", "auto a = localized(\"A\", \"Take a \"\n\"scren\");\n", "int a;\n",
     "src/a.cpp:1: unknown word: scren"),
    ("spelling", "src/a.cpp", "// has rec" "ieved it\n", "// got it\n", "src/a.cpp:1: "),
    ("desktop-entries", "a.desktop", ENTRY + "Wrong=1\n", ENTRY, "a.desktop: "),
    ("metainfo", "a.metainfo.xml", METAINFO, None, "a.metainfo.xml: "),
)


@pytest.fixture
def repository(tmp_path):
    """Returns a repository that has only the checks."""
    shutil.copytree(ROOT / "scripts/checks", tmp_path / "scripts/checks",
                    ignore=shutil.ignore_patterns("__pycache__"))
    shutil.copy(ROOT / "scripts/check", tmp_path / "scripts/check")
    for path in SETTINGS:
        shutil.copy(ROOT / path, tmp_path / path)
    git(tmp_path, "init", "--quiet")
    return tmp_path


def git(repository, *arguments):
    subprocess.run(["git", "-C", repository, "-c", "user.name=Test", "-c",
                    "user.email=test@example.org", *arguments], check=True)


def commit(repository):
    git(repository, "add", "--all")
    git(repository, "commit", "--quiet", "--message", "Sample")


def write(repository, path, text):
    (repository / path).parent.mkdir(parents=True, exist_ok=True)
    (repository / path).write_text(text)


def check(repository, *arguments):
    done = subprocess.run([repository / "scripts/check", *arguments], text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    return done.returncode, done.stdout


def expect_failure(repository, name, text):
    status, output = check(repository, name)
    assert status == 1, output
    assert f"\n{text}" in output
    assert "To repair: " in output


def expect_success(repository, name):
    status, output = check(repository, name)
    assert status == 0, output
    return output


@pytest.mark.parametrize("name, path, wrong, right, told", SAMPLES)
def test_a_fault_fails_with_an_explanation(repository, name, path, wrong, right, told):
    write(repository, path, wrong)
    expect_failure(repository, name, told)
    if right is not None:
        write(repository, path, right)
        expect_success(repository, name)


LAYERS = """```layers
views: logic
logic:
```
"""


def write_layers(repository, picture=LAYERS):
    write(repository, "docs/architecture.md", picture)
    for room in ("views", "logic"):
        write(repository, f"src/{room}/CMakeLists.txt", "URI Vantle.Views\n" * (room == "views"))
    write(repository, "src/views/dragging/A.cpp", '#include "views/A.h"\n#include "logic/B.h"\n')


def test_drawn_arrows_pass(repository):
    write_layers(repository)
    expect_success(repository, "layers")


@pytest.mark.parametrize("path, line", (
    ("src/logic/B.cpp", '#include "views/A.h"\n'),
    ("src/logic/B.qml", "import Vantle.Views\n"),
))
def test_an_arrow_that_is_not_drawn_fails(repository, path, line):
    write_layers(repository)
    write(repository, path, "\n" + line)
    told = f"{path}:2: docs/architecture.md draws no arrow from logic to views"
    expect_failure(repository, "layers", told)


def test_only_the_folders_of_display_servers_name_one(repository):
    write_layers(repository)
    write(repository, "src/views/dragging/A.cpp",
          '#include "views/A.h"\n#include "logic/B.h"\n// not on Wayland\n')
    expect_failure(repository, "layers", "src/views/dragging/A.cpp:3: names a display server")


@pytest.mark.parametrize("picture, told", (
    ("```layers\nviews: logic\n```\n", "src/logic: is not in the picture"),
    ("```layers\nviews: logic\nlogic: views\n```\n",
     "docs/architecture.md:3: nothing in logic uses views"),
))
def test_a_wrong_picture_fails(repository, picture, told):
    write_layers(repository, picture)
    expect_failure(repository, "layers", told)


def test_arrows_in_a_circle_fail(repository):
    write_layers(repository, "```layers\nviews: logic\nlogic: views\n```\n")
    write(repository, "src/logic/B.cpp", '#include "views/A.h"\n')
    expect_failure(repository, "layers", "docs/architecture.md: a circle in logic, views")


@pytest.mark.parametrize("translation, fault", (
    ('<translation type="unfinished"></translation>', "is not translated"),
    ("<translation></translation>", "has an empty translation"),
    ("<translation>Kopie</translation>", "has other placeholders"),
    ("<translation>Kopie %2</translation>", "has other placeholders"),
))
def test_translations_are_complete(repository, translation, fault):
    write(repository, "scripts/update_translations", "#!/bin/sh\n")
    (repository / "scripts/update_translations").chmod(0o755)
    write(repository, "translations/a_de.ts", TRANSLATION.format(translation))
    expect_failure(repository, "translations", f'translations/a_de.ts:4: "Copy %1" {fault}')
    right = TRANSLATION.format("<translation>%1 kopieren</translation>")
    write(repository, "translations/a_de.ts", right)
    expect_success(repository, "translations")


@pytest.mark.parametrize("name", ["a_de.ts", "vantle_en.ts"])
def test_texts_mention_nothing_that_only_another_system_has(repository, name):
    write(repository, "scripts/update_translations", "#!/bin/sh\n")
    (repository / "scripts/update_translations").chmod(0o755)
    path = f"translations/{name}"
    write(repository, path, TRANSLATION.format("<translation>%1 im Finder</translation>"))
    expect_failure(repository, "translations", f'{path}:4: "Copy %1" mentions "Finder"')


def test_english_may_be_unfinished_but_mentions_no_other_system(repository):
    write(repository, "scripts/update_translations", "#!/bin/sh\n")
    (repository / "scripts/update_translations").chmod(0o755)
    path = "translations/vantle_en.ts"
    unfinished = TRANSLATION.format('<translation type="unfinished"></translation>')
    write(repository, path, unfinished)
    expect_success(repository, "translations")
    write(repository, path, unfinished.replace("Copy %1", "Copy %1 to the Dock"))
    expect_failure(repository, "translations", f'{path}:4: "Copy %1 to the Dock" mentions "Dock"')


def test_launchers_mention_nothing_that_only_another_system_has(repository):
    write(repository, "packaging/a.desktop.in", "[Desktop Entry]\nComment=For your menu bar\n")
    expect_failure(repository, "translations", 'packaging/a.desktop.in:2: mentions "menu bar"')


def test_translations_that_lack_a_text_fail(repository):
    write(repository, "scripts/update_translations", "#!/bin/sh\necho lacks texts; exit 1\n")
    (repository / "scripts/update_translations").chmod(0o755)
    right = TRANSLATION.format("<translation>%1 kopieren</translation>")
    write(repository, "translations/a_de.ts", right)
    expect_failure(repository, "translations", "translations: lacks texts")


def test_clang_tidy_checks_the_files_that_changed_last(repository):
    write(repository, "CMakePresets.json", PRESETS)
    write(repository, "CMakeLists.txt", CPP_PROJECT)
    write(repository, ".gitignore", "/build/\n")
    write(repository, "src/a.cpp", '#include "b.h"\nint a() { return b(1); }\n')
    write(repository, "src/b.h", "#pragma once\nint b(int number);\n")
    write(repository, "src/b.cpp", '#include "b.h"\nint b(int number) { return number; }\n')
    commit(repository)
    expect_success(repository, "clang-tidy")
    write(repository, "src/b.h", "#pragma once\nint b(const int number);\n")
    status, output = check(repository, "clang-tidy")
    assert status == 1
    assert "src/b.h:2: " in output and "readability-avoid-const-params-in-decls" in output
    assert output.index("  src/b.cpp") < output.index("  src/a.cpp")


def test_qmllint_knows_the_types_of_cpp(repository):
    write(repository, "CMakePresets.json", PRESETS)
    write(repository, "CMakeLists.txt", QML_PROJECT)
    write(repository, ".gitignore", "/build/\n")
    write(repository, "src/cards/CMakeLists.txt", MODULE)
    write(repository, "src/cards/Model.h", MODEL)
    write(repository, "src/cards/Model.cpp", '#include "Model.h"\n')
    right = "import QtQuick\nItem {\n    required property Model model\n    width: model.count\n}\n"
    write(repository, "src/cards/A.qml", right.replace("model.count", "model.cuont"))
    expect_failure(repository, "qml", "src/cards/A.qml:4: ")
    write(repository, "src/cards/A.qml", right)
    expect_success(repository, "qml")
    write(repository, "src/cards/A.qml", "import QtQuick\nimport QtQuick.Templates\nItem {}\n")
    expect_failure(repository, "qml", "src/cards/A.qml:2: Unused import")


def test_untracked_files_count_and_ignored_files_do_not(repository):
    write(repository, ".gitignore", "/ignored.md\n")
    write(repository, "ignored.md", "bad \n")
    expect_success(repository, "text")
    write(repository, "new.md", "bad \n")
    expect_failure(repository, "text", "new.md:1: ")


def test_all_files_count_without_git(repository):
    shutil.rmtree(repository / ".git")
    write(repository, "build/made.md", "bad \n")
    expect_success(repository, "text")
    write(repository, "a.md", "bad \n")
    expect_failure(repository, "text", "a.md:1: ")


def test_an_unknown_check_is_refused(repository):
    status, output = check(repository, "spellling")
    assert status == 2 and "there is no check spellling" in output


def test_a_missing_tool_is_a_failure_that_names_its_package(repository):
    write(repository, "a.sh", "#!/bin/bash\ntrue\n")
    done = subprocess.run(["/usr/bin/python3", repository / "scripts/check", "shell"],
                          env={"PATH": "/nowhere"}, text=True, capture_output=True, check=False)
    assert done.returncode == 1
    assert "shellcheck is missing" in done.stdout and "apt-get install shellcheck" in done.stdout
