#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <map>
#include <memory>
#include <set>

#include "contract/EventLoop.h"
#include "contract/OpenWithContract.h"
#include "contract/OpenWithPortal.h"
#include "contract/PrivateBus.h"
#include "fakes/CapturedLog.h"
#include "platform/freedesktop/DesktopOpenWith.h"
#include "platform/qt/DisplayServer.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const QString nameOnBus = QStringLiteral("org.example.Viewer");

/// Sets a variable of the environment as long as it lives.
class Variable {
public:
    Variable(const char* name, const QByteArray& value) : name_(name), former_(qgetenv(name)) {
        qputenv(name, value);
    }
    ~Variable() {
        if (former_.isNull())
            qunsetenv(name_);
        else
            qputenv(name_, former_);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* const name_;
    const QByteArray former_;
};

/// A home whose only programs are those that a test installs, and a bus of its own.
class DesktopOfPrograms {
public:
    DesktopOfPrograms() {
        for (const auto* folder : {"data/applications", "config", "system", "files"})
            QDir(home_.path()).mkpath(QString::fromLatin1(folder));
        // The types of files are those of this machine.
        QFile::link(QStringLiteral("/usr/share/mime"), path("system/mime"));
        writeProgram("run", "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"" + name("files/.part") +
                                "\" && mv \"" + name("files/.part") + "\" \"" +
                                name("files/.opened") + "\"\n");
    }

    void install(const InstalledProgram& program) {
        installEntry(program, "Exec=" + name("run") + " " + program.identifier + " %F\n");
    }
    /// Installs a program with more lines in its desktop file.
    void installEntry(const InstalledProgram& program, const std::string& lines) {
        write("data/applications/" + program.identifier,
              "[Desktop Entry]\nType=Application\nName=" + program.name + "\n" + lines);
        for (const auto& type : program.types) handlers_[type] += program.identifier + ";";
        for (const auto& type : program.defaultFor) defaults_[type] = program.identifier;
        write("data/applications/mimeinfo.cache", "[MIME Cache]\n" + associations(handlers_));
        writeAssociations();
    }
    /// Adds lines to the user's own associations.
    void associate(const std::string& lines) {
        more_ += lines;
        writeAssociations();
    }

    Url makeFile(const std::string& file) {
        write("files/" + file, file.ends_with(".pdf") ? "%PDF-1.4\n" : "\x89PNG\r\n\x1a\n");
        return Url::file(name("files/" + file));
    }
    OpenedFiles opened(std::size_t) {
        QFile file(path("files/.opened"));
        EXPECT_TRUE(vantle::runUntil([&] { return file.exists(); }));
        if (!file.open(QFile::ReadOnly)) return {};
        const auto lines = file.readAll().trimmed().split('\n');
        std::vector<Url> files;
        for (qsizetype i = 1; i < lines.size(); ++i)
            files.push_back(Url::file(lines[i].toStdString()));
        return {{lines[0].toStdString(), files}};
    }
    void offerChooser() { portal = std::make_unique<OpenWithPortal>(bus.connect()); }
    bool isChooserOpen() { return portal && !portal->handle.isEmpty(); }
    void answerChooser(bool chooses) { portal->respond(chooses ? 0 : 1); }
    static bool runUntil(const std::function<bool()>& condition) {
        return vantle::runUntil(condition);
    }

    std::string name(const std::string& file) const { return path(file).toStdString(); }
    void write(const std::string& file, const std::string& text) {
        QFile written(path(file));
        EXPECT_TRUE(written.open(QFile::WriteOnly));
        written.write(text.c_str(), static_cast<qint64>(text.size()));
    }

    void writeProgram(const std::string& file, const std::string& text) {
        write(file, text);
        QFile(path(file)).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }

private:
    QString path(const std::string& file) const {
        return home_.filePath(QString::fromStdString(file));
    }
    static std::string associations(const std::map<std::string, std::string>& byType) {
        std::string text;
        for (const auto& [type, programs] : byType)
            text += (type == "pdf" ? "application/pdf=" : "image/png=") + programs + "\n";
        return text;
    }
    void writeAssociations() {
        write("config/mimeapps.list", "[Default Applications]\n" + associations(defaults_) + more_);
    }

    QTemporaryDir home_;
    std::map<std::string, std::string> handlers_;
    std::map<std::string, std::string> defaults_;
    std::string more_;

public:
    PrivateBus bus;
    std::unique_ptr<OpenWithPortal> portal;

private:
    const Variable data_{"XDG_DATA_HOME", path("data").toLocal8Bit()};
    const Variable systemData_{"XDG_DATA_DIRS", path("system").toLocal8Bit()};
    const Variable configuration_{"XDG_CONFIG_HOME", path("config").toLocal8Bit()};
    const Variable systemConfiguration_{"XDG_CONFIG_DIRS", path("system").toLocal8Bit()};
    const Variable desktop_{"XDG_CURRENT_DESKTOP", "Example"};
    const Variable busAddress_{"DBUS_SESSION_BUS_ADDRESS", bus.address().toLocal8Bit()};
    const Variable ours_{"ONLY_FOR_US", "secret"};

public:
    DesktopOpenWith::Options options{.program = QStringLiteral(VANTLE_APPLICATIONS),
                                     .withheld = {"ONLY_FOR_US"},
                                     .ownIdentifier = "own.desktop",
                                     .pixelsPerPoint = [] { return 2.0; }};
    DesktopOpenWith openWith{options, bus.connect()};
};

INSTANTIATE_TYPED_TEST_SUITE_P(DesktopOpenWith, OpenWithContract, DesktopOfPrograms);

/// A display server that gives a token.
class TokenServer final : public DisplayServer {
public:
    void requestActivationToken(QObject&, TokenReceiver receiver) override {
        receiver(QStringLiteral("token of the click"));
    }
};

class DesktopOpenWithTest : public OpenWithContract<DesktopOfPrograms> {
protected:
    /// Installs a program that writes a text into the file of opened ones.
    void installWriterOf(const std::string& text) {
        desktop.installEntry({"a.desktop", "A", {"png"}, {}},
                             "Exec=/bin/sh -c \"" + desktop.name("run") + " " + text + "\"\n");
    }
    std::string written() { return desktop.opened(1).front().first; }

    fakes::CapturedLog log;
};

TEST_F(DesktopOpenWithTest, FollowsTheUsersOwnAssociations) {
    desktop.install({"a.desktop", "A", {"png"}, {}});
    desktop.install({"b.desktop", "B", {"png"}, {}});
    desktop.install({"c.desktop", "C", {}, {}});
    desktop.associate(
        "[Added Associations]\nimage/png=c.desktop;\n"
        "[Removed Associations]\nimage/png=a.desktop;\n");
    EXPECT_THAT(identifiers({picture}), ElementsAre("c.desktop", "b.desktop"));
}

TEST_F(DesktopOpenWithTest, AProgramHiddenFromMenusStillOpensFiles) {
    desktop.installEntry({"a.desktop", "A", {"png"}, {}}, "Exec=/bin/true %f\nNoDisplay=true\n");
    EXPECT_THAT(identifiers({picture}), ElementsAre("a.desktop"));
}

TEST_F(DesktopOpenWithTest, LeavesOutWhatIsNotForThisDesktop) {
    desktop.installEntry({"a.desktop", "A", {"png"}, {}}, "Exec=/bin/true %f\nHidden=true\n");
    desktop.installEntry({"b.desktop", "B", {"png"}, {}}, "Exec=/bin/true %f\nOnlyShowIn=KDE;\n");
    desktop.installEntry({"c.desktop", "C", {"png"}, {}},
                         "Exec=/bin/true %f\nNotShowIn=Example;\n");
    desktop.installEntry({"d.desktop", "D", {"png"}, {}},
                         "Exec=/bin/true %f\nTryExec=/nowhere/to/be/found\n");
    desktop.installEntry({"e.desktop", "E", {"png"}, {}},
                         "Exec=/bin/true %f\nOnlyShowIn=KDE;Example;\n");
    EXPECT_THAT(identifiers({picture}), ElementsAre("e.desktop"));
}

TEST_F(DesktopOpenWithTest, AnotherDesktopsProgramThatTheUserMadeTheDefaultIsOffered) {
    desktop.installEntry({"b.desktop", "B", {"png"}, {"png"}},
                         "Exec=/bin/true %f\nOnlyShowIn=KDE;\n");
    EXPECT_THAT(identifiers({picture}), ElementsAre("b.desktop"));
}

TEST_F(DesktopOpenWithTest, LeavesItselfOut) {
    desktop.install({"own.desktop", "Ours", {"png"}, {"png"}});
    desktop.install({"a.desktop", "A", {"png"}, {}});
    EXPECT_THAT(identifiers({picture}), ElementsAre("a.desktop"));
}

TEST_F(DesktopOpenWithTest, DrawsTheIconsOfPrograms) {
    QImage red(64, 64, QImage::Format_ARGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(QString::fromStdString(desktop.name("red.png"))));
    desktop.installEntry({"a.desktop", "A", {"png"}, {}},
                         "Exec=/bin/true %f\nIcon=" + desktop.name("red.png") + "\n");
    desktop.installEntry({"b.desktop", "B", {"png"}, {}},
                         "Exec=/bin/true %f\nIcon=" + desktop.name("missing.png") + "\n");
    desktop.installEntry({"c.desktop", "C", {"png"}, {}},
                         "Exec=/bin/true %f\nIcon=no-icon-has-this-name\n");
    const auto found = find({picture}).programs;
    ASSERT_EQ(found.size(), 3u);
    ASSERT_TRUE(found[0].icon);
    EXPECT_EQ(found[0].icon->pixelsWide, 40);
    EXPECT_EQ(found[0].icon->size, (Size{20, 20}));
    EXPECT_THAT(std::vector(found[0].icon->rgba.begin(), found[0].icon->rgba.begin() + 4),
                ElementsAre(255, 0, 0, 255));
    EXPECT_FALSE(found[1].icon);
    EXPECT_FALSE(found[2].icon);
}

TEST_F(DesktopOpenWithTest, AnIconThatIsAPipeDoesNotBlock) {
    ASSERT_EQ(mkfifo(desktop.name("pipe.png").c_str(), 0600), 0);
    desktop.installEntry({"a.desktop", "A", {"png"}, {}},
                         "Exec=/bin/true %f\nIcon=" + desktop.name("pipe.png") + "\n");
    const auto found = find({picture}).programs;
    ASSERT_EQ(found.size(), 1u);
    EXPECT_FALSE(found[0].icon);
}

TEST_F(DesktopOpenWithTest, AFileThatIsGoneHasNoPrograms) {
    desktop.install({"a.desktop", "A", {"png"}, {}});
    EXPECT_THAT(identifiers({Url::file("/nowhere/a.png")}), IsEmpty());
}

TEST_F(DesktopOpenWithTest, AProgramThatCannotBeStartedIsAFailureAndLogged) {
    desktop.writeProgram("broken", "#!/nowhere/to/be/found\n");
    desktop.installEntry({"a.desktop", "A", {"png"}, {}},
                         "Exec=" + desktop.name("broken") + " %f\n");
    const Outcome outcome = open({picture}, "a.desktop");
    ASSERT_TRUE(outcome.has_value());
    EXPECT_NE(outcome->message, "");
    EXPECT_THAT(log.lines(), ElementsAre("Vantle: cannot open files with a.desktop: "
                                         "The program could not be started."));
}

TEST_F(DesktopOpenWithTest, OpensOverTheBusWithTheTokenOfTheClick) {
    ApplicationOnBus viewer(desktop.bus.connect(), nameOnBus,
                            QStringLiteral("/org/example/Viewer"));
    desktop.installEntry({"org.example.Viewer.desktop", "V", {"png"}, {}},
                         "Exec=/bin/false\nDBusActivatable=true\nStartupNotify=true\n");
    const DisplayServer::Choice choice(std::make_unique<TokenServer>());
    EXPECT_EQ(open({picture}, "org.example.Viewer.desktop"), std::nullopt);
    EXPECT_THAT(viewer.opened, ElementsAre(QString::fromStdString(picture.address())));
    EXPECT_EQ(viewer.data[QStringLiteral("desktop-startup-id")],
              QStringLiteral("token of the click"));
}

TEST_F(DesktopOpenWithTest, ASilentProgramOnTheBusIsAFailure) {
    desktop.installEntry({"org.example.Viewer.desktop", "V", {"png"}, {}},
                         "Exec=/bin/false\nDBusActivatable=true\n");
    EXPECT_TRUE(open({picture}, "org.example.Viewer.desktop").has_value());
}

TEST_F(DesktopOpenWithTest, AProgramGetsTheTokenInItsEnvironment) {
    installWriterOf("\\\"$XDG_ACTIVATION_TOKEN/$DESKTOP_STARTUP_ID\\\"");
    const DisplayServer::Choice choice(std::make_unique<TokenServer>());
    EXPECT_EQ(open({picture}, "a.desktop"), std::nullopt);
    EXPECT_EQ(written(), "token of the click/token of the click");
}

TEST_F(DesktopOpenWithTest, AProgramDoesNotGetWhatIsOnlyForUs) {
    installWriterOf("\\\"<$ONLY_FOR_US>\\\"");
    EXPECT_EQ(open({picture}, "a.desktop"), std::nullopt);
    EXPECT_EQ(written(), "<>");
}

TEST_F(DesktopOpenWithTest, ASearchThatTakesTooLongFindsNothing) {
    desktop.writeProgram("slow", "#!/bin/sh\nexec sleep 1000\n");
    auto options = desktop.options;
    options.program = QString::fromStdString(desktop.name("slow"));
    options.searchLimit = std::chrono::milliseconds(1);
    options.startLimit = std::chrono::milliseconds(1);
    DesktopOpenWith slow(options, desktop.bus.connect());
    std::optional<OpeningPrograms> found;
    slow.find({picture}, [&](OpeningPrograms programs) { found = std::move(programs); });
    ASSERT_TRUE(runUntil([&] { return found.has_value(); }));
    EXPECT_THAT(found->programs, IsEmpty());
    std::optional<Outcome> answer;
    slow.open({picture}, "a.desktop", into(answer));
    ASSERT_TRUE(runUntil([&] { return answer.has_value(); }));
    ASSERT_TRUE(answer->has_value());
    EXPECT_EQ((*answer)->code, ETIME);
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("does not respond"), HasSubstr("a.desktop")));
}

TEST_F(DesktopOpenWithTest, AMissingPartOfTheInstallationIsLogged) {
    auto options = desktop.options;
    options.program = QStringLiteral("/nowhere/vantle-applications");
    DesktopOpenWith broken(options, desktop.bus.connect());
    std::optional<OpeningPrograms> found;
    broken.find({picture}, [&](OpeningPrograms programs) { found = std::move(programs); });
    EXPECT_FALSE(found.has_value());
    ASSERT_TRUE(runUntil([&] { return found.has_value(); }));
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("cannot find the programs")));
}

TEST_F(DesktopOpenWithTest, WorksWithoutABus) {
    desktop.install({"a.desktop", "A", {"png"}, {}});
    DesktopOpenWith alone(desktop.options, QDBusConnection(QStringLiteral("none")));
    std::optional<OpeningPrograms> found;
    alone.find({picture}, [&](OpeningPrograms programs) { found = std::move(programs); });
    EXPECT_FALSE(found.has_value());
    ASSERT_TRUE(runUntil([&] { return found.has_value(); }));
    EXPECT_EQ(found->programs.size(), 1u);
    EXPECT_FALSE(found->offersChooser);
    std::optional<Outcome> answer;
    alone.openWithOther(picture, into(answer));
    EXPECT_FALSE(answer.has_value());
    ASSERT_TRUE(runUntil([&] { return answer.has_value(); }));
    EXPECT_TRUE(answer->has_value());
}

TEST_F(DesktopOpenWithTest, ThePortalGetsTheFileAndAsks) {
    desktop.offerChooser();
    const DisplayServer::Choice choice(std::make_unique<TokenServer>());
    std::optional<Outcome> answer;
    desktop.openWith.openWithOther(picture, into(answer));
    ASSERT_TRUE(runUntil([&] { return desktop.isChooserOpen(); }));
    EXPECT_EQ(desktop.portal->file.toStdString(), picture.path());
    EXPECT_EQ(desktop.portal->options[QStringLiteral("ask")], true);
    EXPECT_EQ(desktop.portal->options[QStringLiteral("activation_token")],
              QStringLiteral("token of the click"));
}

TEST_F(DesktopOpenWithTest, ARefusalOfThePortalIsAFailureAndLogged) {
    desktop.offerChooser();
    desktop.portal->refuses = true;
    std::optional<Outcome> answer;
    desktop.openWith.openWithOther(picture, into(answer));
    ASSERT_TRUE(runUntil([&] { return answer.has_value(); }));
    ASSERT_TRUE(answer->has_value());
    EXPECT_THAT((*answer)->message, HasSubstr("not today"));
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("not today")));
}

TEST_F(DesktopOpenWithTest, APortalThatEndsClosesTheChooser) {
    desktop.offerChooser();
    std::optional<Outcome> answer;
    desktop.openWith.openWithOther(picture, into(answer));
    ASSERT_TRUE(runUntil([&] { return desktop.isChooserOpen(); }));
    desktop.portal.reset();
    ASSERT_TRUE(runUntil([&] { return answer.has_value(); }));
    EXPECT_EQ((*answer)->code, ECANCELED);
}

TEST_F(DesktopOpenWithTest, AFileThatIsGoneIsNotShownToThePortal) {
    desktop.offerChooser();
    for (int i = 0; i < 2; ++i) {
        std::optional<Outcome> answer;
        desktop.openWith.openWithOther(Url::file("/nowhere/a.png"), into(answer));
        ASSERT_TRUE(runUntil([&] { return answer.has_value(); }));
        EXPECT_EQ((*answer)->code, ENOENT);
    }
    EXPECT_FALSE(desktop.isChooserOpen());
}

}  // namespace
}  // namespace vantle
