#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QThread>
#include <QUrl>
#include <map>

#include "contract/DesktopServices.h"
#include "contract/PrivateBus.h"
#include "contract/TemporaryFolder.h"
#include "fakes/FakeFileSystem.h"
#include "fakes/FakeMediaLoader.h"
#include "fakes/FakePasteboard.h"
#include "fakes/VirtualTime.h"
#include "platform/freedesktop/FileTransferPortal.h"
#include "platform/qt/FileMimeData.h"
#include "platform/qt/QtPasteboard.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

QByteArray pictureFile(const char* format, const QSize& size = {40, 30}) {
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(QColor(200, 60, 20, 128));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, format);
    return bytes;
}

void save(const Url& file, const QByteArray& bytes) {
    QFile out(QFile::decodeName(QByteArray::fromStdString(file.path())));
    EXPECT_TRUE(out.open(QFile::WriteOnly) && out.write(bytes) == bytes.size());
}

struct MemoryPasteboard {
    fakes::VirtualTime time;
    fakes::ManualQueue queue{time};
    fakes::FakeFileSystem files{queue};
    fakes::FakePasteboard pasteboard{files};
    const Url folder = Url::file("/folder");

    Url saveImage(const std::string& name) {
        files.write(folder.appending(name), 1, fakes::VirtualClock::epoch);
        return folder.appending(name);
    }
    /// "image" for a picture, the path of a file.
    std::vector<std::string> contents() {
        std::vector<std::string> contents;
        for (const auto& one : pasteboard.contents())
            contents.push_back(one.starts_with("image") ? "image" : one.substr(5));
        return contents;
    }
};

struct DesktopPasteboard {
    TemporaryFolder folder;
    std::shared_ptr<fakes::FakeMediaLoader> media = std::make_shared<fakes::FakeMediaLoader>();
    QtPasteboard pasteboard{media, nullptr};

    Url saveImage(const std::string& name, const char* format = "PNG") {
        const Url file = folder / name;
        save(file, pictureFile(format));
        media->addImage(file, Size{40, 30}, Size{40, 30});
        return file;
    }
    std::vector<std::string> contents() {
        std::vector<std::string> contents;
        const QMimeData* offered = QGuiApplication::clipboard()->mimeData();
        if (!offered) return contents;
        if (offered->hasFormat(QStringLiteral("image/png"))) contents.emplace_back("image");
        for (const QUrl& url : offered->urls())
            contents.push_back(QFile::encodeName(url.toLocalFile()).toStdString());
        return contents;
    }
};

template <typename Kind>
class PasteboardContract : public testing::Test {
protected:
    Kind kind;
    Pasteboard& pasteboard = kind.pasteboard;
};

using Kinds = testing::Types<MemoryPasteboard, DesktopPasteboard>;
TYPED_TEST_SUITE(PasteboardContract, Kinds);

TYPED_TEST(PasteboardContract, OffersAPictureBeforeItsFile) {
    const Url file = this->kind.saveImage("shot.png");
    const auto image = this->pasteboard.loadImage(file);
    ASSERT_TRUE(image);
    this->pasteboard.clearContents();
    this->pasteboard.writeObjects({image, file});
    EXPECT_THAT(this->kind.contents(), ElementsAre("image", file.path()));
}

TYPED_TEST(PasteboardContract, OffersFilesInOrder) {
    const Url a = this->kind.saveImage("b.png");
    const Url b = this->kind.saveImage("a.png");
    this->pasteboard.clearContents();
    this->pasteboard.writeObjects({a, b});
    EXPECT_THAT(this->kind.contents(), ElementsAre(a.path(), b.path()));
}

TYPED_TEST(PasteboardContract, NothingIsLeftOnceItIsCleared) {
    this->pasteboard.writeObjects({this->kind.saveImage("shot.png")});
    this->pasteboard.clearContents();
    EXPECT_THAT(this->kind.contents(), IsEmpty());
}

TYPED_TEST(PasteboardContract, ALaterContentReplacesTheEarlier) {
    this->pasteboard.writeObjects({this->kind.saveImage("a.png")});
    const Url file = this->kind.saveImage("b.png");
    this->pasteboard.clearContents();
    this->pasteboard.writeObjects({file});
    EXPECT_THAT(this->kind.contents(), ElementsAre(file.path()));
}

TYPED_TEST(PasteboardContract, AFileThatIsNotThereHoldsNoPicture) {
    EXPECT_EQ(this->pasteboard.loadImage(Url::file("/folder/gone.png")), nullptr);
}

class FileMimeDataTest : public testing::Test {
protected:
    std::shared_ptr<const PictureContents> open(const Url& file) {
        return PictureContents::open(file, desktop.media);
    }
    static QByteArray get(const FileMimeData& data, const char* type) {
        return data.data(QString::fromLatin1(type));
    }

    DesktopPasteboard desktop;
    const Url odd = Url::file("/folder/50% \xff of\nit.png");
    const Url other = Url::file("/folder/other.mov");
};

TEST_F(FileMimeDataTest, APictureThatBreaksOffIsNone) {
    const Url file = desktop.folder / "cut";
    desktop.media->addImage(file, Size{40, 30}, Size{40, 30});
    for (const char* format : {"PNG", "JPG"}) {
        SCOPED_TRACE(format);
        const QByteArray whole = pictureFile(format);
        save(file, whole);
        EXPECT_NE(open(file), nullptr);
        save(file, whole + "what a tool has added");
        EXPECT_NE(open(file), nullptr);
        for (const qsizetype missing : {qsizetype(1), whole.size() / 2}) {
            save(file, whole.chopped(missing));
            EXPECT_EQ(open(file), nullptr) << missing << " bytes are missing";
        }
    }
}

TEST_F(FileMimeDataTest, FilesAreOfferedAsEachFileManagerTakesThem) {
    const FileMimeData data({odd, other}, nullptr, FileMimeData::Use::clipboard);
    EXPECT_THAT(data.formats(), ElementsAre("text/uri-list", "x-special/gnome-copied-files",
                                            "x-special/mate-copied-files",
                                            "application/x-kde-cutselection", "text/plain"));
    EXPECT_EQ(get(data, "text/uri-list"),
              "file:///folder/50%25%20%FF%20of%0Ait.png\r\nfile:///folder/other.mov\r\n");
    for (const auto* type : {"x-special/gnome-copied-files", "x-special/mate-copied-files"})
        EXPECT_EQ(get(data, type),
                  "copy\nfile:///folder/50%25%20%FF%20of%0Ait.png\nfile:///folder/other.mov");
    EXPECT_EQ(get(data, "application/x-kde-cutselection"), "0");
    EXPECT_EQ(get(data, "text/plain"), "/folder/50% \xff of\nit.png\n/folder/other.mov");
}

TEST_F(FileMimeDataTest, TheToolkitFindsTheSameFilesInIt) {
    for (const auto use : {FileMimeData::Use::clipboard, FileMimeData::Use::drag}) {
        const FileMimeData data({odd, other}, nullptr, use);
        std::vector<std::string> addresses;
        for (const QUrl& url : data.urls()) addresses.push_back(url.toEncoded().toStdString());
        EXPECT_THAT(addresses, ElementsAre(odd.address(), other.address()));
    }
}

TEST_F(FileMimeDataTest, TheToolkitFindsThePathsAsTextInIt) {
    const FileMimeData data({other}, nullptr, FileMimeData::Use::clipboard);
    EXPECT_EQ(data.text(), QStringLiteral("/folder/other.mov"));
}

TEST_F(FileMimeDataTest, NobodyHasReadItBeforeHeGotSomething) {
    const FileMimeData data({other}, nullptr, FileMimeData::Use::drag);
    const auto wasRead = data.marks().wasRead;
    (void)data.formats();
    EXPECT_FALSE(data.hasImage());
    EXPECT_EQ(get(data, "image/png"), "");
    EXPECT_FALSE(*wasRead);
    (void)get(data, "text/uri-list");
    EXPECT_TRUE(*wasRead);
}

TEST_F(FileMimeDataTest, WhoAsksForTheListOfAddressesHasReadIt) {
    const FileMimeData data({other}, nullptr, FileMimeData::Use::drag);
    const auto wasRead = data.marks().wasRead;
    (void)data.urls();
    EXPECT_TRUE(*wasRead);
}

TEST_F(FileMimeDataTest, ADragCarriesAddressesOnly) {
    const FileMimeData data({other}, nullptr, FileMimeData::Use::drag);
    // The second has nothing in it.
    EXPECT_THAT(data.formats(), ElementsAre("text/uri-list", "application/x-kio-metadata"));
}

TEST_F(FileMimeDataTest, KdesFileManagersDecideLater) {
    const FileMimeData data({other}, nullptr, FileMimeData::Use::drag);
    const auto wasRead = data.marks().wasRead;
    const auto decidesLater = data.marks().decidesLater;
    (void)data.urls();
    EXPECT_FALSE(*decidesLater);
    EXPECT_EQ(get(data, "application/x-kio-metadata"), "");
    EXPECT_TRUE(*decidesLater);
    EXPECT_TRUE(*wasRead);
}

TEST_F(FileMimeDataTest, APictureIsOfferedInItsOwnTypeByItsOwnBytes) {
    const Url file = desktop.saveImage("shot.png");
    const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
    EXPECT_THAT(data.formats().mid(0, 4),
                ElementsAre("image/png", "image/jpeg", "image/bmp", "text/uri-list"));
    EXPECT_EQ(get(data, "image/png"), pictureFile("PNG"));
    EXPECT_THAT(desktop.media->drawnSizes, IsEmpty());
}

TEST_F(FileMimeDataTest, OtherTypesAreMadeWhenSomebodyAsks) {
    const Url file = desktop.saveImage("shot.jpg", "JPEG");
    const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
    EXPECT_THAT(data.formats().mid(0, 4),
                ElementsAre("image/jpeg", "image/png", "image/bmp", "text/uri-list"));
    EXPECT_EQ(get(data, "image/jpeg"), pictureFile("JPEG"));
    EXPECT_THAT(desktop.media->drawnSizes, IsEmpty());
    for (const auto* type : {"image/png", "image/bmp"})
        EXPECT_EQ(QImage::fromData(get(data, type)).size(), QSize(40, 30)) << type;
    EXPECT_THAT(desktop.media->drawnSizes, ElementsAre(Size{40, 30}, Size{40, 30}));
}

TEST_F(FileMimeDataTest, WhatLetsThroughStandsOnWhiteWhereATypeCannotSayIt) {
    const Url file = desktop.saveImage("shot.png");
    const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
    for (const auto* type : {"image/jpeg", "image/bmp"})
        EXPECT_EQ(QImage::fromData(get(data, type)).pixelColor(5, 5), QColor(Qt::white)) << type;
}

TEST_F(FileMimeDataTest, ThePictureLastsWhenItsFileIsMoved) {
    const Url file = desktop.saveImage("shot.png");
    const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
    QFile::remove(QString::fromStdString(file.path()));
    EXPECT_EQ(get(data, "image/png"), pictureFile("PNG"));
}

TEST_F(FileMimeDataTest, APictureIsOfferedInTheTypeThatItsFirstBytesShow) {
    using namespace std::string_literals;
    const std::map<std::string, const char*> types{{"RIFF\x10\0\0\0WEBPVP8 "s, "image/webp"},
                                                   {"\0\0\0\x1c"
                                                    "ftypavif\0\0\0\0"s,
                                                    "image/avif"},
                                                   {"\0\0\0\x1c"
                                                    "ftypheic\0\0\0\0"s,
                                                    "image/heic"}};
    for (const auto& [bytes, type] : types) {
        const Url file = desktop.folder / "shot.png";
        save(file, QByteArray::fromStdString(bytes));
        desktop.media->addImage(file, Size{40, 30}, Size{40, 30});
        const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
        EXPECT_EQ(get(data, type), QByteArray::fromStdString(bytes)) << type;
    }
}

TEST_F(FileMimeDataTest, APictureWithoutPixelsIsDrawnForADenseScreen) {
    const Url file = desktop.folder / "page.pdf";
    save(file, "%PDF-1.4");
    desktop.media->addImage(file, Size{0, 0}, Size{50, 70});
    const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
    EXPECT_EQ(get(data, "application/pdf"), "%PDF-1.4");
    EXPECT_EQ(QImage::fromData(get(data, "image/png")).size(), QSize(100, 140));
}

TEST_F(FileMimeDataTest, ADamagedPictureGivesNothing) {
    const Url file = desktop.folder / "shot.tiff";
    save(file, "II*");
    desktop.media->addDamagedImage(file, Size{40, 30}, Size{40, 30});
    const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
    const auto wasRead = data.marks().wasRead;
    EXPECT_EQ(get(data, "image/png"), "");
    EXPECT_FALSE(*wasRead);
}

TEST_F(FileMimeDataTest, AFileOfAnotherKindHoldsNoPicture) {
    const Url file = desktop.folder / "notes.png";
    save(file, "no picture");
    EXPECT_EQ(open(file), nullptr);
}

/// With a document portal, on a thread of its own: whoever asks it waits.
class FileTransferPortalTest : public testing::Test {
protected:
    FileTransferPortalTest() {
        thread.start();
        owner.moveToThread(&thread);
        QMetaObject::invokeMethod(
            &owner, [this] { portal = std::make_unique<DocumentPortal>(bus.connect()); },
            Qt::BlockingQueuedConnection);
    }
    ~FileTransferPortalTest() override {
        QMetaObject::invokeMethod(
            &owner, [this] { portal.reset(); }, Qt::BlockingQueuedConnection);
        thread.quit();
        thread.wait();
    }

    std::vector<Url> save(int count) {
        std::vector<Url> files;
        for (int i = 0; i < count; ++i) {
            files.push_back(folder / (std::to_string(i) + ".png"));
            vantle::save(files.back(), "x");
        }
        return files;
    }

    TemporaryFolder folder;
    PrivateBus bus;
    QThread thread;
    QObject owner;
    std::unique_ptr<DocumentPortal> portal;
};

TEST_F(FileTransferPortalTest, ProgramsInASandboxGetAKeyForTheFiles) {
    const FileMimeData data(save(2), nullptr, FileMimeData::Use::drag,
                            std::make_shared<FileTransferPortal>(bus.connect()));
    EXPECT_THAT(data.formats().mid(0, 2),
                ElementsAre("application/vnd.portal.filetransfer", "text/uri-list"));
    const QByteArray key = data.data(QStringLiteral("application/vnd.portal.filetransfer"));
    EXPECT_EQ(key, "key 1");
    EXPECT_THAT(portal->transfers[QString::fromUtf8(key)],
                ElementsAre(QString::fromStdString((folder / "0.png").path()),
                            QString::fromStdString((folder / "1.png").path())));
}

TEST_F(FileTransferPortalTest, ManyFilesArePassedInSeveralMessages) {
    EXPECT_EQ(FileTransferPortal(bus.connect()).keyFor(save(40)), "key 1");
    EXPECT_EQ(portal->transfers[QStringLiteral("key 1")].size(), 40);
    EXPECT_EQ(portal->largestMessage, 16);
}

TEST_F(FileTransferPortalTest, WhereThereIsNoneNothingIsOffered) {
    const PrivateBus empty;
    EXPECT_FALSE(FileTransferPortal(empty.connect()).isThere());
    EXPECT_FALSE(FileTransferPortal(QDBusConnection(QStringLiteral("none"))).isThere());
    EXPECT_EQ(FileTransferPortal(empty.connect()).keyFor(save(1)), "");
}

}  // namespace
}  // namespace vantle
