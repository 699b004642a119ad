#include "support/SystemLog.h"

#include <cstdio>
#include <deque>
#include <mutex>
#include <utility>

namespace vantle {
namespace {

struct Log {
    std::mutex mutex;
    std::function<void(const std::string&)> receive;
    std::deque<LoggedMessage> recent;
};

Log& log() {
    static Log instance;
    return instance;
}

std::string escaped(std::string_view message) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string line;
    line.reserve(message.size());
    for (const char character : message) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= 0x20 && byte != 0x7f) {
            line += character;
        } else if (character == '\n') {
            line += "\\n";
        } else {
            line += "\\x";
            line += digits[byte >> 4];
            line += digits[byte & 0x0f];
        }
    }
    return line;
}

void remember(std::deque<LoggedMessage>& recent, const LoggedMessage& logged) {
    if (logged.message.starts_with("Vantle[")) return;
    recent.push_back(logged);
    if (recent.size() > recentMessages) recent.pop_front();
}

}  // namespace

void systemLog(std::string_view message) {
    systemLog(message, {});
}

void systemLog(std::string_view message, std::string_view reason) {
    const LoggedMessage logged{std::chrono::system_clock::now(), escaped(message), escaped(reason)};
    const std::string line = logged.line();
    const std::lock_guard lock(log().mutex);
    remember(log().recent, logged);
    if (log().receive) {
        log().receive(line);
        return;
    }
    std::fprintf(stderr, "%s\n", line.c_str());
    std::fflush(stderr);
}

std::vector<LoggedMessage> recentSystemLog() {
    const std::lock_guard lock(log().mutex);
    return {log().recent.begin(), log().recent.end()};
}

SystemLogSink::SystemLogSink(std::function<void(const std::string&)> receive) {
    const std::lock_guard lock(log().mutex);
    log().receive = std::move(receive);
}

SystemLogSink::~SystemLogSink() {
    const std::lock_guard lock(log().mutex);
    log().receive = nullptr;
}

}  // namespace vantle
