#include <gtest/gtest.h>

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

namespace {

// Qt sorts them by name, and the first one is the primary screen.
constexpr auto displays = R"({"screens": [
    {"name": "1", "x": 0, "y": 0, "width": 1440, "height": 900, "dpr": 1},
    {"name": "2", "x": 1440, "y": 100, "width": 960, "height": 600, "dpr": 2}
]})";

/// Uses private, invisible displays.
void useOwnDisplays(const QTemporaryDir& folder) {
    QFile file(folder.filePath(QStringLiteral("displays.json")));
    if (!file.open(QFile::WriteOnly) || file.write(displays) < 0)
        qFatal("cannot describe the displays");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toLocal8Bit());
}

}  // namespace

int main(int argc, char** argv) {
    const QTemporaryDir folder;
    useOwnDisplays(folder);
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
