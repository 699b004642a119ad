#pragma once

#include <gtest/gtest.h>

#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QUrl>
#include <memory>
#include <string>
#include <vector>

#include "contract/TemporaryFolder.h"
#include "fakes/FakeMediaLoader.h"
#include "platform/qt/QtPasteboard.h"

namespace vantle {

inline QByteArray pictureFile(const char* format, const QSize& size = {40, 30}) {
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(QColor(200, 60, 20, 128));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, format);
    return bytes;
}

inline void saveBytes(const Url& file, const QByteArray& bytes) {
    QFile out(QFile::decodeName(QByteArray::fromStdString(file.path())));
    EXPECT_TRUE(out.open(QFile::WriteOnly) && out.write(bytes) == bytes.size());
}

/// The toolkit's clipboard, and files to put on it.
struct DesktopPasteboard {
    TemporaryFolder folder;
    std::shared_ptr<fakes::FakeMediaLoader> media = std::make_shared<fakes::FakeMediaLoader>();
    QtPasteboard pasteboard{media, nullptr};

    Url saveImage(const std::string& name, const char* format = "PNG") {
        const Url file = folder / name;
        saveBytes(file, pictureFile(format));
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
        const QString plain = QStringLiteral("text/plain");
        if (contents.empty() && offered->hasFormat(plain)) {
            EXPECT_EQ(offered->data(QStringLiteral("text/plain;charset=utf-8")),
                      offered->data(plain));
            contents.push_back(offered->data(plain).toStdString());
        }
        return contents;
    }
};

}  // namespace vantle
