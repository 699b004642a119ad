#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <functional>
#include <optional>

#include "contract/EventLoop.h"
#include "contract/FolderChooserContract.h"
#include "fakes/CapturedLog.h"
#include "platform/qt/DialogFolderChooser.h"

namespace vantle {
namespace {

const FolderRequest request = someFolderRequest();

/// A program that writes down its arguments and waits for the answer that it must print.
class ScriptedProgram {
public:
    ScriptedProgram() {
        QFile file(path());
        if (!file.open(QFile::WriteOnly)) qFatal("cannot write a script");
        file.write(
            "#!/bin/sh\ncd \"${0%/*}\"\nprintf '%s\\n' \"$@\" > asked\nmv asked open\n"
            "read -r status < answer\ncat path\nexit \"$status\"\n");
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        if (QProcess::execute(QStringLiteral("mkfifo"),
                              {folder_.filePath(QStringLiteral("answer"))}))
            qFatal("cannot make a pipe");
    }

    QString path() const { return folder_.filePath(QStringLiteral("dialog")); }
    bool isOpen() const { return QFile::exists(folder_.filePath(QStringLiteral("open"))); }
    QString asked() const { return read(QStringLiteral("open")); }
    void answer(int status, const QByteArray& path) {
        write(QStringLiteral("path"), path);
        write(QStringLiteral("answer"), QByteArray::number(status) + '\n');
    }

private:
    QString read(const QString& name) const {
        QFile file(folder_.filePath(name));
        return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    void write(const QString& name, const QByteArray& text) {
        QFile file(folder_.filePath(name));
        if (!file.open(QFile::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", qUtf8Printable(name));
    }

    QTemporaryDir folder_;
};

struct DialogDesk {
    bool isOpen() const { return program.isOpen(); }
    void answer(const std::optional<Url>& folder) {
        program.answer(folder ? 0 : 1, folder ? QByteArray::fromStdString(folder->path()) : "");
    }
    static bool runUntil(const std::function<bool()>& condition) {
        return vantle::runUntil(condition);
    }

    ScriptedProgram program;
    DialogFolderChooser chooser{program.path()};
};

INSTANTIATE_TYPED_TEST_SUITE_P(DialogFolderChooser, FolderChooserContract, DialogDesk);

TEST(DialogFolderChooserTest, TheDialogGetsTheRequest) {
    const ScriptedProgram program;
    DialogFolderChooser chooser(program.path());
    chooser.choose(request, [](const auto&) {});
    ASSERT_TRUE(runUntil([&] { return program.isOpen(); }));
    EXPECT_EQ(program.asked(),
              QStringLiteral("/home/user/My Shots\nUse This Folder\nChoose it.\n"));
}

TEST(DialogFolderChooserTest, ADialogThatCannotBeShownIsLoggedAndReturnsNothing) {
    fakes::CapturedLog log;
    DialogFolderChooser chooser(QStringLiteral("/nowhere/dialog"));
    FolderAnswer answer;
    chooser.choose(request, answer.taker());
    EXPECT_EQ(answer.count, 0);
    ASSERT_TRUE(runUntil([&] { return answer.count > 0; }));
    EXPECT_EQ(answer.folder, std::nullopt);
    EXPECT_THAT(log.lines(), testing::ElementsAre(testing::HasSubstr("folder dialog")));
}

}  // namespace
}  // namespace vantle
