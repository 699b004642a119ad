#include "platform/freedesktop/UpdateProgram.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

#include "platform/RelaunchEnvironment.h"
#include "support/Localization.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

// Longer than any report; the release notes are the longest part of one.
constexpr qsizetype maximumLineLength = 1 << 20;

constexpr int timeout = 10'000;  // milliseconds; includes the start of the program

QString option(const char* name, const std::string& value) {
    return QStringLiteral("--%1=%2").arg(QLatin1String(name), QString::fromStdString(value));
}

/// Returns the value of a variable and removes it from the environment.
QByteArray takeVariable(const char* variable) {
    const QByteArray value = qgetenv(variable);
    qunsetenv(variable);
    return value;
}

/// Checks the descriptor, because the variable may have been set for another process.
bool isSocket(int descriptor) {
    struct stat status {};
    return fstat(descriptor, &status) == 0 && S_ISSOCK(status.st_mode);
}

bool isLast(const UpdateReport& report) {
    return !std::holds_alternative<report::FeedLoaded>(report) &&
           !std::holds_alternative<report::Progress>(report) &&
           !std::holds_alternative<report::Installing>(report);
}

}  // namespace

UpdateProgram::UpdateProgram(QString program) : program_(std::move(program)) {
    bool isNumber = false;
    const int descriptor = takeVariable(relaunch::readyVariable).toInt(&isNumber);
    if (isNumber && isSocket(descriptor) && fcntl(descriptor, F_SETFD, FD_CLOEXEC) == 0)
        readySocket_ = FileDescriptor(descriptor);
    const auto outcome = parseReport(takeVariable(relaunch::outcomeVariable).toStdString());
    if (outcome)
        if (const auto* back = std::get_if<report::RolledBack>(&*outcome)) rolledBack_ = *back;
}

UpdateProgram::~UpdateProgram() {
    cancel();
    // A copy that ends in order has started successfully.
    if (readySocket_) confirmStart();
}

void UpdateProgram::confirmStart() {
    // A failure is ignored: if the updater has ended, it cannot roll this copy back either.
    send(readySocket_.get(), "r", 1, MSG_NOSIGNAL);
    readySocket_.reset();
}

void UpdateProgram::check(const Query& query, OnReport onReport) {
    QStringList arguments{QStringLiteral("check"), option("version", query.version),
                          option("channel", query.channel),
                          option("newest-feed", std::to_string(query.newestFeed))};
    if (query.feed) arguments << option("feed", *query.feed);
    start(arguments, std::move(onReport));
}

void UpdateProgram::prepare(const UpdateItem& item, OnReport onReport) {
    start({QStringLiteral("prepare"), option("version", item.version),
           option("address", item.address), option("length", std::to_string(item.length)),
           option("signature", item.signature), option("page", item.page)},
          std::move(onReport));
}

void UpdateProgram::cancel() {
    onReport_ = nullptr;
    if (!process_) return;
    process_->disconnect(this);
    process_->kill();
    process_->waitForFinished();
    // This may be called from a signal of the process, so it must not be deleted yet.
    process_.release()->deleteLater();
}

Outcome UpdateProgram::relaunch(const UpdateItem& item) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return systemFailure(errno);
    const FileDescriptor answer(ends[0]);
    FileDescriptor tell(ends[1]);
    fcntl(tell.get(), F_SETFD, 0);
    QProcess starter;
    starter.setProgram(program_);
    starter.setArguments({QStringLiteral("relaunch"), option("version", item.version),
                          option("process", std::to_string(getpid())),
                          option("tell", std::to_string(tell.get()))});
    starter.setStandardInputFile(QProcess::nullDevice());
    if (!starter.startDetached())
        return Failure{0, starter.errorString().toStdString(), program_.toStdString()};
    tell.reset();
    // This copy must not end before the updater has confirmed that it will start the new one.
    pollfd waiting{answer.get(), POLLIN, 0};
    char byte = 0;
    if (poll(&waiting, 1, timeout) == 1 && ::read(answer.get(), &byte, 1) == 1) return {};
    return Failure{ETIME, localized("UpdateProgram", "The update program does not respond."),
                   program_.toStdString()};
}

void UpdateProgram::start(const QStringList& arguments, OnReport onReport) {
    cancel();
    onReport_ = std::move(onReport);
    finalReport_.reset();
    process_ = std::make_unique<QProcess>();
    process_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_->setStandardInputFile(QProcess::nullDevice());
    connect(process_.get(), &QProcess::readyReadStandardOutput, this, [this] { readLines(); });
    connect(process_.get(), &QProcess::finished, this, [this] { end(); });
    connect(
        process_.get(), &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            // After any other error the process ends, and finished() is emitted.
            if (error == QProcess::FailedToStart) end();
        },
        Qt::QueuedConnection);
    process_->start(program_, arguments);
}

void UpdateProgram::readLines() {
    while (process_ && process_->canReadLine()) read(process_->readLine(maximumLineLength));
}

void UpdateProgram::read(const QByteArray& line) {
    const auto report = parseReport(line.chopped(1).toStdString());
    if (!report || finalReport_) return;
    if (isLast(*report)) {
        finalReport_ = *report;
        return;
    }
    // The callback may cancel the program or destroy this object, so it is copied first.
    const OnReport onReport = onReport_;
    onReport(*report);
}

void UpdateProgram::end() {
    readLines();
    if (!process_) return;
    const std::string error = process_->errorString().toStdString();
    process_.release()->deleteLater();
    const auto onReport = std::exchange(onReport_, nullptr);
    onReport(finalReport_.value_or(report::Failed{
        filled(localized("UpdateProgram", "The update program failed: %1."), {error}), {}}));
}

}  // namespace vantle
