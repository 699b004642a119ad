#pragma once

#include <sys/types.h>

#include <chrono>
#include <memory>
#include <string>
#include <variant>

#include "decoder/protocol/MessageSocket.h"
#include "reader/protocol/Messages.h"
#include "support/FileDescriptor.h"
#include "support/Image.h"
#include "support/Result.h"

namespace vantle {

/// A running text reader, which reads one picture. The destructor ends it at once. One thread.
class ReaderProcess {
public:
    enum class NoReport {
        ended,     ///< The reader has ended.
        timedOut,  ///< The reader sends nothing.
        stopped,   ///< The event to stop at has come.
    };
    using Report = decoder::Received<reader::Report>;

    /// Starts a reader. `folder` and `languages` are what it loads.
    static Result<std::unique_ptr<ReaderProcess>> start(const std::string& program,
                                                        const std::string& folder,
                                                        const std::string& languages);
    ~ReaderProcess();
    ReaderProcess(const ReaderProcess&) = delete;
    ReaderProcess& operator=(const ReaderProcess&) = delete;

    /// Hands the picture over in sealed memory. Returns false if there is not enough memory or the
    /// reader has ended.
    bool send(const Image& picture);

    /// Waits for the next report, at most `timeout`, or until `stopEvent` becomes readable.
    std::variant<Report, NoReport> nextReport(int stopEvent, std::chrono::milliseconds timeout);

private:
    ReaderProcess(FileDescriptor socket, pid_t process);

    const FileDescriptor socket_;
    const pid_t process_;
};

}  // namespace vantle
