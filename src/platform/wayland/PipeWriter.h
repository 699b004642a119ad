#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include "support/FileDescriptor.h"

namespace vantle::wayland {

/// Writes bytes into a pipe as fast as the other end reads them, without blocking. Gives up when
/// nothing is read for 30 seconds. Deletes itself at the end. Main thread only; SIGPIPE must be
/// ignored.
class PipeWriter final : public QObject {
public:
    static void start(FileDescriptor pipe, QByteArray bytes);

private:
    PipeWriter(FileDescriptor pipe, QByteArray bytes);
    void write();

    const FileDescriptor pipe_;
    const QByteArray bytes_;
    qsizetype written_ = 0;
    QSocketNotifier readiness_;
    QTimer timeout_;
};

}  // namespace vantle::wayland
