// vantle-folder-dialog DIRECTORY LABEL MESSAGE [WINDOW]
//
// Asks for a folder with the dialog of the desktop's toolkit if that has one, otherwise with Qt's.
// The dialog starts in DIRECTORY; LABEL is the text of its button and MESSAGE its title. It stays
// above WINDOW, which is named as portals name it: its number in base 16 after a colon. Writes the
// path unchanged, with nothing after it, to the standard output and exits with 0; exits with 1 if
// nothing was chosen. Ends when the program that started it ends.

#include <signal.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <QWindow>
#include <cstdio>

namespace {

constexpr int nothingChosen = 1;
constexpr int wrongCommandLine = 2;

/// Returns the window of another program; null if `name` has no number. The window object is never
/// deleted: it lasts as long as this process.
QWindow* windowOf(const char* name) {
    constexpr int base = 16;
    const QByteArray number = QByteArray(name).split(':').value(1);
    return number.isEmpty() ? nullptr : QWindow::fromWinId(number.toULongLong(nullptr, base));
}

void stayAbove(QWidget& dialog, QWindow& parent) {
    dialog.winId();  // makes its window
    dialog.windowHandle()->setTransientParent(&parent);
    QRect place(QPoint(), dialog.sizeHint());
    place.moveCenter(parent.geometry().center());
    dialog.setGeometry(place);
}

/// Loads the texts of the dialog itself, if the system has them in the user's language.
void translateToolkit(QTranslator& translator) {
    if (translator.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
}

}  // namespace

int main(int argc, char** argv) {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    QApplication application(argc, argv);
    QTranslator translator;
    translateToolkit(translator);
    QGuiApplication::setApplicationDisplayName(QString());
    QGuiApplication::setDesktopFileName(QStringLiteral("org.vantle.Vantle"));
    if (argc < 4) {
        std::fputs("Usage: vantle-folder-dialog DIRECTORY LABEL MESSAGE [WINDOW]\n", stderr);
        return wrongCommandLine;
    }
    QFileDialog dialog(nullptr, QString::fromUtf8(argv[3]), QFile::decodeName(argv[1]));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setLabelText(QFileDialog::Accept, QString::fromUtf8(argv[2]));
    if (QWindow* parent = argc > 4 ? windowOf(argv[4]) : nullptr) stayAbove(dialog, *parent);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return nothingChosen;
    const QByteArray path = QFile::encodeName(dialog.selectedFiles().constFirst());
    const auto length = static_cast<std::size_t>(path.size());
    return std::fwrite(path.constData(), 1, length, stdout) == length ? 0 : nothingChosen;
}
