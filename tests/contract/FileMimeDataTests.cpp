#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <map>
#include <memory>
#include <string>

#include "contract/DesktopPasteboard.h"
#include "platform/qt/FileMimeData.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_F(FileMimeDataTest, AnIncompletePictureIsNotOffered) {
    const Url file = desktop.folder / "cut";
    desktop.media->addImage(file, Size{40, 30}, Size{40, 30});
    for (const char* format : {"PNG", "JPG"}) {
        SCOPED_TRACE(format);
        const QByteArray whole = pictureFile(format);
        saveBytes(file, whole);
        EXPECT_NE(open(file), nullptr);
        saveBytes(file, whole + "what a tool has added");
        EXPECT_NE(open(file), nullptr);
        for (const qsizetype missing : {qsizetype(1), whole.size() / 2}) {
            saveBytes(file, whole.chopped(missing));
            EXPECT_EQ(open(file), nullptr) << missing << " bytes are missing";
        }
    }
}

TEST_F(FileMimeDataTest, FilesAreOfferedInTheTypesOfEachFileManager) {
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

TEST_F(FileMimeDataTest, TheToolkitReadsTheSameFiles) {
    for (const auto use : {FileMimeData::Use::clipboard, FileMimeData::Use::drag}) {
        const FileMimeData data({odd, other}, nullptr, use);
        std::vector<std::string> addresses;
        for (const QUrl& url : data.urls()) addresses.push_back(url.toEncoded().toStdString());
        EXPECT_THAT(addresses, ElementsAre(odd.address(), other.address()));
    }
}

TEST_F(FileMimeDataTest, TheToolkitReadsThePathsAsText) {
    const FileMimeData data({other}, nullptr, FileMimeData::Use::clipboard);
    EXPECT_EQ(data.text(), QStringLiteral("/folder/other.mov"));
}

TEST_F(FileMimeDataTest, OnlyReadingContentsCountsAsRead) {
    const FileMimeData data({other}, nullptr, FileMimeData::Use::drag);
    const auto wasRead = data.dropState().wasRead;
    (void)data.formats();
    EXPECT_FALSE(data.hasImage());
    EXPECT_EQ(get(data, "image/png"), "");
    EXPECT_FALSE(*wasRead);
    (void)get(data, "text/uri-list");
    EXPECT_TRUE(*wasRead);
}

TEST_F(FileMimeDataTest, ReadingTheListOfAddressesCountsAsRead) {
    const FileMimeData data({other}, nullptr, FileMimeData::Use::drag);
    const auto wasRead = data.dropState().wasRead;
    (void)data.urls();
    EXPECT_TRUE(*wasRead);
}

TEST_F(FileMimeDataTest, ADragCarriesAddressesOnly) {
    const FileMimeData data({other}, nullptr, FileMimeData::Use::drag);
    // The second format has no contents.
    EXPECT_THAT(data.formats(), ElementsAre("text/uri-list", "application/x-kio-metadata"));
}

TEST_F(FileMimeDataTest, KdesFileManagersDecideLater) {
    const FileMimeData data({other}, nullptr, FileMimeData::Use::drag);
    const auto wasRead = data.dropState().wasRead;
    const auto decidesLater = data.dropState().decidesLater;
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

TEST_F(FileMimeDataTest, OtherTypesAreMadeOnRequest) {
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

TEST_F(FileMimeDataTest, TransparencyBecomesWhiteInTypesWithoutIt) {
    const Url file = desktop.saveImage("shot.png");
    const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
    for (const auto* type : {"image/jpeg", "image/bmp"})
        EXPECT_EQ(QImage::fromData(get(data, type)).pixelColor(5, 5), QColor(Qt::white)) << type;
}

TEST_F(FileMimeDataTest, ThePictureRemainsWhenItsFileIsMoved) {
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
        saveBytes(file, QByteArray::fromStdString(bytes));
        desktop.media->addImage(file, Size{40, 30}, Size{40, 30});
        const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
        EXPECT_EQ(get(data, type), QByteArray::fromStdString(bytes)) << type;
    }
}

TEST_F(FileMimeDataTest, APictureWithoutPixelsIsDrawnForADenseScreen) {
    const Url file = desktop.folder / "page.pdf";
    saveBytes(file, "%PDF-1.4");
    desktop.media->addImage(file, Size{0, 0}, Size{50, 70});
    const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
    EXPECT_EQ(get(data, "application/pdf"), "%PDF-1.4");
    EXPECT_EQ(QImage::fromData(get(data, "image/png")).size(), QSize(100, 140));
}

TEST_F(FileMimeDataTest, ADamagedPictureHasNoContents) {
    const Url file = desktop.folder / "shot.tiff";
    saveBytes(file, "II*");
    desktop.media->addDamagedImage(file, Size{40, 30}, Size{40, 30});
    const FileMimeData data({file}, open(file), FileMimeData::Use::clipboard);
    const auto wasRead = data.dropState().wasRead;
    EXPECT_EQ(get(data, "image/png"), "");
    EXPECT_FALSE(*wasRead);
}

TEST_F(FileMimeDataTest, AFileOfAnotherKindHasNoPicture) {
    const Url file = desktop.folder / "notes.png";
    saveBytes(file, "no picture");
    EXPECT_EQ(open(file), nullptr);
}

}  // namespace
}  // namespace vantle
