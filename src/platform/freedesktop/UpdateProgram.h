#pragma once

#include <QProcess>
#include <QString>
#include <memory>
#include <optional>

#include "platform/UpdateEngine.h"
#include "support/FileDescriptor.h"

namespace vantle {

/// Has the work on updates done by a program of its own, which ends with this process. What that
/// program writes is not trusted to be what it should: anything else is a failure.
class UpdateProgram final : public QObject, public UpdateEngine {
public:
    /// `program` is the path of vantle-updater, or of one that is called alike. Takes what a
    /// relaunch left for this process out of its environment, so that nobody inherits it.
    explicit UpdateProgram(QString program);
    ~UpdateProgram() override;

    void check(const Query& query, OnReport onReport) override;
    void prepare(const UpdateItem& item, OnReport onReport) override;
    void cancel() override;
    Outcome relaunch(const UpdateItem& item) override;
    std::optional<report::RolledBack> rolledBack() const override { return rolledBack_; }
    bool isOnTrial() const override { return static_cast<bool>(ready_); }
    void confirmStart() override;

private:
    void start(const QStringList& arguments, OnReport onReport);
    void readLines();
    void read(const QByteArray& line);
    void end();

    const QString program_;
    std::optional<report::RolledBack> rolledBack_;
    FileDescriptor ready_;               ///< While somebody waits for this process.
    std::unique_ptr<QProcess> process_;  ///< While something is under way.
    OnReport onReport_;
    std::optional<UpdateReport> last_;  ///< Told once the program has ended.
};

}  // namespace vantle
