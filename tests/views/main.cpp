#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFont>
#include <QGuiApplication>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    // Sanitizer builds do not compile QML ahead of time. The toolkit would mistake its cache of an
    // earlier build for this one's, because all files in the program have the same date.
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    const QGuiApplication application(argc, argv);
    // The pictures are compared, so every machine must use the same letters.
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    QGuiApplication::setFont(font);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
