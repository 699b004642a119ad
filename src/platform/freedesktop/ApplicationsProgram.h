#pragma once

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "support/Result.h"

namespace vantle {

/// Runs vantle-applications, which knows the desktop's programs. Main thread only.
class ApplicationsProgram final : public QObject {
public:
    /// Gets the standard output or, if it has failed, the reason. The failure's code is ENOENT if
    /// the program that it was to start is not installed, and ETIME if it did not end in time.
    using Ended = std::function<void(const Result<QByteArray>& output)>;

    /// `program` is the path of vantle-applications or of a program with the same command line. It
    /// gets this process's environment without the variables named in `withheld`.
    ApplicationsProgram(QString program, const std::vector<std::string>& withheld);
    ~ApplicationsProgram() override;

    /// Calls `ended` once, never inside this call. Kills the program if it runs longer than
    /// `limit`. Does not call `ended` after this object was destroyed.
    void run(const QStringList& arguments, std::chrono::milliseconds limit, Ended ended);

private:
    const QString program_;
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
};

}  // namespace vantle
