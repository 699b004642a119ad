#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QThread>
#include <memory>
#include <string>
#include <vector>

#include "contract/DesktopPasteboard.h"
#include "contract/DesktopServices.h"
#include "contract/PrivateBus.h"
#include "platform/freedesktop/FileTransferPortal.h"
#include "platform/qt/FileMimeData.h"

namespace vantle {
namespace {

using testing::ElementsAre;

/// Has a document portal on its own thread, because its callers wait for answers.
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
            saveBytes(files.back(), "x");
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
    EXPECT_EQ(portal->maximumMessage, 16);
}

TEST_F(FileTransferPortalTest, OffersNothingWithoutAPortal) {
    const PrivateBus empty;
    EXPECT_FALSE(FileTransferPortal(empty.connect()).isAvailable());
    EXPECT_FALSE(FileTransferPortal(QDBusConnection(QStringLiteral("none"))).isAvailable());
    EXPECT_EQ(FileTransferPortal(empty.connect()).keyFor(save(1)), "");
}

}  // namespace
}  // namespace vantle
