#include "platform/freedesktop/ApplicationsProgram.h"

#include <QTimer>
#include <cerrno>
#include <memory>
#include <utility>

#include "support/Localization.h"

namespace vantle {
namespace {

constexpr int notInstalled = 3;  // the exit status

Failure failureOf(const QByteArray& reason) {
    if (reason.isEmpty())
        return {EIO, localized("OpenWith", "The program could not be started."), {}};
    return {EIO, reason.toStdString(), {}};
}

Result<QByteArray> resultOf(QProcess& process) {
    if (process.error() == QProcess::FailedToStart || process.exitStatus() == QProcess::CrashExit)
        return Failure{EIO, process.errorString().toStdString(), {}};
    if (process.exitCode() == notInstalled)
        return Failure{ENOENT, localized("OpenWith", "The program is not installed any more."), {}};
    if (process.exitCode() != 0) return failureOf(process.readAllStandardError().trimmed());
    return process.readAllStandardOutput();
}

Failure timeout() {
    return {ETIME, localized("OpenWith", "The program does not respond."), {}};
}

}  // namespace

ApplicationsProgram::ApplicationsProgram(QString program, const std::vector<std::string>& withheld)
    : program_(std::move(program)) {
    for (const auto& variable : withheld) environment_.remove(QString::fromStdString(variable));
}

ApplicationsProgram::~ApplicationsProgram() {
    constexpr int patience = 500;  // milliseconds
    for (auto* process : findChildren<QProcess*>()) {
        process->disconnect();
        process->kill();
        // A process that reads a file of a dead server cannot be killed. Qt would wait for it for
        // half a minute, so its object is left behind; this program is about to end.
        if (!process->waitForFinished(patience) && process->state() != QProcess::NotRunning)
            process->setParent(nullptr);
    }
}

void ApplicationsProgram::run(const QStringList& arguments, std::chrono::milliseconds limit,
                              Ended ended) {
    auto* process = new QProcess(this);
    const auto answer = [pending = std::make_shared<Ended>(std::move(ended))](const auto& result) {
        if (const auto once = std::exchange(*pending, nullptr)) once(result);
    };
    const auto end = [process, answer] {
        process->deleteLater();
        answer(resultOf(*process));
    };
    connect(process, &QProcess::finished, this, end);
    connect(
        process, &QProcess::errorOccurred, this,
        [end](QProcess::ProcessError error) {
            // After any other error the process ends, and finished() is emitted.
            if (error == QProcess::FailedToStart) end();
        },
        Qt::QueuedConnection);
    QTimer::singleShot(limit, process, [process, answer] {
        process->kill();
        answer(timeout());
    });
    process->setProcessEnvironment(environment_);
    process->setStandardInputFile(QProcess::nullDevice());
    process->start(program_, arguments);
}

}  // namespace vantle
