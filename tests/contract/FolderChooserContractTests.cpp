#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "contract/EventLoop.h"
#include "contract/FileChooserPortal.h"
#include "contract/PrivateBus.h"
#include "fakes/CapturedLog.h"
#include "fakes/FakeFolderChooser.h"
#include "platform/freedesktop/PortalFolderChooser.h"
#include "platform/qt/DialogFolderChooser.h"
#include "platform/qt/QtScheduler.h"

namespace vantle {
namespace {

const FolderRequest request{Url::file("/home/user/My Shots"), "Use This Folder", "Choose it."};

/// Each desk shows the chooser, knows whether it is open, and answers in the user's place.
struct RecordedChooser {
    bool isOpen() const { return chooser.isOpen(); }
    void answer(const std::optional<Url>& folder) { chooser.close(folder); }

    QtScheduler scheduler;
    fakes::FakeFolderChooser chooser{scheduler};
};

struct PortalDesk {
    bool isOpen() const { return !portal.handle.isEmpty(); }
    void answer(const std::optional<Url>& folder) {
        const QString address = folder ? QString::fromStdString(folder->address()) : QString();
        portal.respond(folder ? 0 : 1, {{QStringLiteral("uris"), QStringList{address}}});
    }

    PrivateBus bus;
    FileChooserPortal portal{bus.connect()};
    PortalFolderChooser chooser{nullptr, bus.connect()};
};

/// A program that writes down its arguments and waits for what it is to say.
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

    ScriptedProgram program;
    DialogFolderChooser chooser{program.path()};
};

/// What came back, once something did.
struct Answer {
    FolderChooser::Chosen taker() {
        return [this](const std::optional<Url>& chosen) {
            ++count;
            folder = chosen;
        };
    }
    int count = 0;
    std::optional<Url> folder;
};

template <typename Desk>
class FolderChooserContract : public testing::Test {
protected:
    void open(Answer& answer) {
        desk.chooser.choose(request, answer.taker());
        EXPECT_EQ(answer.count, 0);
        ASSERT_TRUE(runUntil([&] { return desk.isOpen(); }));
    }

    Desk desk;
};

using Desks = testing::Types<RecordedChooser, PortalDesk, DialogDesk>;
TYPED_TEST_SUITE(FolderChooserContract, Desks);

TYPED_TEST(FolderChooserContract, WhatIsChosenComesBack) {
    Answer answer;
    this->open(answer);
    const Url folder = Url::file("/data/Größe 1\n%20");
    this->desk.answer(folder);
    ASSERT_TRUE(runUntil([&] { return answer.count > 0; }));
    EXPECT_EQ(answer.folder, folder);
}

TYPED_TEST(FolderChooserContract, ACancelledOneGivesNothing) {
    Answer answer;
    this->open(answer);
    this->desk.answer(std::nullopt);
    ASSERT_TRUE(runUntil([&] { return answer.count > 0; }));
    EXPECT_EQ(answer.folder, std::nullopt);
}

TYPED_TEST(FolderChooserContract, WhoAsksMeanwhileGetsNothing) {
    Answer first;
    Answer second;
    this->open(first);
    this->desk.chooser.choose(request, second.taker());
    EXPECT_EQ(second.count, 0);
    ASSERT_TRUE(runUntil([&] { return second.count > 0; }));
    EXPECT_EQ(second.folder, std::nullopt);
    EXPECT_EQ(first.count, 0);
    this->desk.answer(Url::file("/data"));
    ASSERT_TRUE(runUntil([&] { return first.count > 0; }));
    EXPECT_EQ(first.folder, Url::file("/data"));
}

class PortalFolderChooserTest : public testing::Test {
protected:
    void choose() { chooser.choose(request, answer.taker()); }
    bool isAnswered() {
        return runUntil([this] { return answer.count > 0; });
    }

    PrivateBus bus;
    std::optional<FileChooserPortal> portal{bus.connect()};
    QtScheduler scheduler;
    fakes::FakeFolderChooser* next = new fakes::FakeFolderChooser(scheduler);
    PortalFolderChooser chooser{std::unique_ptr<FolderChooser>(next), bus.connect()};
    Answer answer;
};

TEST_F(PortalFolderChooserTest, ItIsToldWhatToAskFor) {
    choose();
    ASSERT_TRUE(runUntil([&] { return !portal->handle.isEmpty(); }));
    EXPECT_EQ(portal->title, QStringLiteral("Choose it."));
    EXPECT_EQ(portal->options[QStringLiteral("accept_label")], QStringLiteral("Use This Folder"));
    EXPECT_EQ(portal->options[QStringLiteral("directory")], true);
    EXPECT_EQ(portal->options[QStringLiteral("current_folder")].toByteArray(),
              QByteArray("/home/user/My Shots\0", 20));
}

TEST_F(PortalFolderChooserTest, OneThatCannotStartInAFolderIsNotAsked) {
    portal->version = 3;
    choose();
    ASSERT_TRUE(runUntil([&] { return next->isOpen(); }));
    EXPECT_EQ(next->requests.front().directory, request.directory);
    next->close(Url::file("/data"));
    EXPECT_EQ(answer.folder, Url::file("/data"));
    EXPECT_TRUE(portal->handle.isEmpty());
}

TEST_F(PortalFolderChooserTest, WithoutAPortalTheNextChooserIsAsked) {
    portal.reset();
    choose();
    EXPECT_TRUE(runUntil([&] { return next->isOpen(); }));
}

TEST_F(PortalFolderChooserTest, APortalThatRefusesIsLoggedAndGivesNothing) {
    fakes::CapturedLog log;
    portal->refuses = true;
    choose();
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer.folder, std::nullopt);
    EXPECT_THAT(log.lines(), testing::ElementsAre(testing::HasSubstr("not today")));
}

TEST_F(PortalFolderChooserTest, APortalThatEndsGivesNothing) {
    choose();
    ASSERT_TRUE(runUntil([&] { return !portal->handle.isEmpty(); }));
    portal.reset();
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer.folder, std::nullopt);
}

TEST_F(PortalFolderChooserTest, AnAddressThatIsNoFileGivesNothing) {
    fakes::CapturedLog log;
    choose();
    ASSERT_TRUE(runUntil([&] { return !portal->handle.isEmpty(); }));
    portal->respond(0, {{QStringLiteral("uris"), QStringList{QStringLiteral("sftp://host/x")}}});
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer.folder, std::nullopt);
}

TEST_F(PortalFolderChooserTest, ItCanBeOpenedAgain) {
    for (const auto* path : {"/first", "/second"}) {
        portal->handle.clear();
        answer = {};
        choose();
        ASSERT_TRUE(runUntil([&] { return !portal->handle.isEmpty(); }));
        const QString address = QStringLiteral("file://") + QLatin1String(path);
        portal->respond(0, {{QStringLiteral("uris"), QStringList{address}}});
        ASSERT_TRUE(isAnswered());
        EXPECT_EQ(answer.folder, Url::file(path));
    }
}

TEST(DialogFolderChooserTest, TheDialogIsToldWhatToAskFor) {
    const ScriptedProgram program;
    DialogFolderChooser chooser(program.path());
    chooser.choose(request, [](const auto&) {});
    ASSERT_TRUE(runUntil([&] { return program.isOpen(); }));
    EXPECT_EQ(program.asked(),
              QStringLiteral("/home/user/My Shots\nUse This Folder\nChoose it.\n"));
}

TEST(DialogFolderChooserTest, ADialogThatCannotBeShownIsLoggedAndGivesNothing) {
    fakes::CapturedLog log;
    DialogFolderChooser chooser(QStringLiteral("/nowhere/dialog"));
    Answer answer;
    chooser.choose(request, answer.taker());
    EXPECT_EQ(answer.count, 0);
    ASSERT_TRUE(runUntil([&] { return answer.count > 0; }));
    EXPECT_EQ(answer.folder, std::nullopt);
    EXPECT_THAT(log.lines(), testing::ElementsAre(testing::HasSubstr("folder chooser")));
}

}  // namespace
}  // namespace vantle
