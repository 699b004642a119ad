#include "platform/qt/DialogFolderChooser.h"

#include <QFile>
#include <QGuiApplication>
#include <QTimer>
#include <QWindow>
#include <utility>

#include "platform/qt/DisplayServer.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

constexpr int nothingChosen = 1;  // the exit status

QStringList arguments(const FolderRequest& request) {
    QStringList all{QFile::decodeName(request.directory.path().c_str()),
                    QString::fromStdString(request.acceptLabel),
                    QString::fromStdString(request.message)};
    const QWindow* window = QGuiApplication::focusWindow();
    if (window) all << DisplayServer::current().exportedWindowName(*window);
    return all;
}

}  // namespace

DialogFolderChooser::DialogFolderChooser(QString program) : program_(std::move(program)) {}

DialogFolderChooser::~DialogFolderChooser() {
    if (!process_) return;
    process_->disconnect(this);
    process_->kill();
    process_->waitForFinished();
}

void DialogFolderChooser::choose(const FolderRequest& request, Chosen chosen) {
    // `chosen` must not be called inside this call, even if the program cannot be started.
    QTimer::singleShot(0, this, [this, request, chosen = std::move(chosen)]() mutable {
        if (chosen_) return chosen(std::nullopt);
        chosen_ = std::move(chosen);
        start(request);
    });
}

void DialogFolderChooser::start(const FolderRequest& request) {
    process_ = std::make_unique<QProcess>();
    process_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_->setStandardInputFile(QProcess::nullDevice());
    connect(process_.get(), &QProcess::finished, this,
            [this](int status, QProcess::ExitStatus how) {
                end(how == QProcess::NormalExit && status <= nothingChosen);
            });
    connect(process_.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        // Every other error ends the process, which emits finished().
        if (error == QProcess::FailedToStart) end(false);
    });
    process_->start(program_, arguments(request));
}

void DialogFolderChooser::end(bool wasAsked) {
    if (!wasAsked)
        systemLog("Vantle: the folder dialog failed: " + process_->errorString().toStdString());
    // The output is empty if the user chose nothing.
    const QByteArray path = wasAsked ? process_->readAllStandardOutput() : QByteArray();
    // The process emitted the signal that is being handled, so it cannot be deleted here.
    process_.release()->deleteLater();
    if (const auto chosen = std::exchange(chosen_, nullptr))
        chosen(path.startsWith('/') ? std::optional(Url::file(path.toStdString())) : std::nullopt);
}

}  // namespace vantle
