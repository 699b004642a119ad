#include "platform/qt/UpdateProgram.h"

#include <fcntl.h>
#include <unistd.h>

#include <utility>

namespace vantle {
namespace {

// Longer than any report: the notes are the longest part.
constexpr qsizetype longestLine = 1024 * 1024;

QString option(const char* name, const std::string& value) {
    return QStringLiteral("--%1=%2").arg(QLatin1String(name), QString::fromStdString(value));
}

/// The value of a variable, which is then gone.
QByteArray taken(const char* variable) {
    const QByteArray value = qgetenv(variable);
    qunsetenv(variable);
    return value;
}

bool isLast(const UpdateReport& report) {
    return !std::holds_alternative<report::FeedLoaded>(report) &&
           !std::holds_alternative<report::Progress>(report) &&
           !std::holds_alternative<report::Installing>(report);
}

}  // namespace

UpdateProgram::UpdateProgram(QString program) : program_(std::move(program)) {
    bool isNumber = false;
    const int descriptor = taken("VANTLE_UPDATE_READY").toInt(&isNumber);
    if (isNumber && descriptor > STDERR_FILENO && fcntl(descriptor, F_SETFD, FD_CLOEXEC) == 0)
        ready_ = FileDescriptor(descriptor);
    const auto outcome = reportFrom(taken("VANTLE_UPDATE_OUTCOME").toStdString());
    if (outcome)
        if (const auto* back = std::get_if<report::RolledBack>(&*outcome)) rolledBack_ = *back;
}

UpdateProgram::~UpdateProgram() {
    cancel();
}

void UpdateProgram::confirmStart() {
    [[maybe_unused]] const auto written = write(ready_.get(), "r", 1);
    ready_.reset();
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
    // It may be the one that this comes from.
    process_.release()->deleteLater();
}

Outcome UpdateProgram::relaunch(const UpdateItem& item) {
    QProcess starter;
    starter.setProgram(program_);
    starter.setArguments({QStringLiteral("relaunch"), option("version", item.version),
                          option("process", std::to_string(getpid()))});
    starter.setStandardInputFile(QProcess::nullDevice());
    if (starter.startDetached()) return {};
    return Failure{0, starter.errorString().toStdString(), program_.toStdString()};
}

void UpdateProgram::start(const QStringList& arguments, OnReport onReport) {
    cancel();
    onReport_ = std::move(onReport);
    last_.reset();
    process_ = std::make_unique<QProcess>();
    process_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_->setStandardInputFile(QProcess::nullDevice());
    connect(process_.get(), &QProcess::readyReadStandardOutput, this, [this] { readLines(); });
    connect(process_.get(), &QProcess::finished, this, [this] { end(); });
    connect(
        process_.get(), &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            // Every other error ends the process, which is told by itself.
            if (error == QProcess::FailedToStart) end();
        },
        Qt::QueuedConnection);
    process_->start(program_, arguments);
}

void UpdateProgram::readLines() {
    while (process_ && process_->canReadLine()) read(process_->readLine(longestLine));
}

void UpdateProgram::read(const QByteArray& line) {
    const auto report = reportFrom(line.chopped(1).toStdString());
    if (!report || last_) return;
    if (isLast(*report)) {
        last_ = *report;
        return;
    }
    // What is told may end this.
    const OnReport told = onReport_;
    told(*report);
}

void UpdateProgram::end() {
    readLines();
    if (!process_) return;
    const std::string error = process_->errorString().toStdString();
    process_.release()->deleteLater();
    const auto told = std::exchange(onReport_, nullptr);
    told(
        last_.value_or(report::Failed{"The program that does updates failed: " + error + ".", {}}));
}

}  // namespace vantle
