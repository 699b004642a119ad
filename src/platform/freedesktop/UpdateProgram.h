#pragma once

#include <QProcess>
#include <QString>
#include <memory>
#include <optional>

#include "platform/UpdateEngine.h"
#include "support/FileDescriptor.h"

namespace vantle {

/// Runs a separate program that does the work on updates and ends with this process. Does not trust
/// that program's output: lines that are not reports are ignored, and an end without a final report
/// is a failure.
class UpdateProgram final : public QObject, public UpdateEngine {
public:
    /// `program` is the path of vantle-updater or of a program with the same command line. Removes
    /// the variables of a relaunch from the environment, so that no other process inherits them.
    explicit UpdateProgram(QString program);
    ~UpdateProgram() override;

    void check(const Query& query, OnReport onReport) override;
    void prepare(const UpdateItem& item, OnReport onReport) override;
    void cancel() override;
    Outcome relaunch(const UpdateItem& item) override;
    std::optional<report::RolledBack> rolledBack() const override { return rolledBack_; }
    bool isStartConfirmationPending() const override { return static_cast<bool>(readySocket_); }
    void confirmStart() override;

private:
    void start(const QStringList& arguments, OnReport onReport);
    void readLines();
    void read(const QByteArray& line);
    void end();

    const QString program_;
    std::optional<report::RolledBack> rolledBack_;
    FileDescriptor readySocket_;         ///< Open while the updater waits for this process.
    std::unique_ptr<QProcess> process_;  ///< Null while no program runs.
    OnReport onReport_;
    std::optional<UpdateReport> finalReport_;  ///< Passed on when the program has ended.
};

}  // namespace vantle
