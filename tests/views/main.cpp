#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFont>
#include <QGuiApplication>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    // Sanitized, QML is not compiled ahead, and what the toolkit kept of an earlier build counts as
    // this one's: all files in the program carry one date.
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    const QGuiApplication application(argc, argv);
    // The same letters on every machine, for the pictures that are compared.
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    QGuiApplication::setFont(font);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
