#pragma once

#include <dirent.h>
#include <signal.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "contract/PostedWork.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextReaderContract.h"
#include "contract/Waiting.h"
#include "fakes/FakeEnvironment.h"
#include "platform/linux/ConfinedTextReader.h"
#include "samples/Samples.h"

namespace vantle {

/// The reader of this build, for a desktop in English.
struct ReaderDesk {
    explicit ReaderDesk(const std::string& program = VANTLE_READER, ReadingTimeouts timeouts = {})
        : ReaderDesk(ReadingPrograms{VANTLE_DECODER, program}, timeouts) {}
    explicit ReaderDesk(const ReadingPrograms& programs, ReadingTimeouts timeouts = {})
        : reader(scheduler, environment, programs, timeouts) {}

    static Url file(const std::string& name) { return samples::file(name); }
    /// Hides the data of the languages.
    void makeUnavailable() { environment["TESSDATA_PREFIX"] = empty.url().path(); }
    bool runUntil(const std::function<bool()>& condition) {
        return waitUntil([&] {
            scheduler.run();
            return condition();
        });
    }
    void runOn() {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        scheduler.run();
    }

    TemporaryFolder empty;
    PostedWork scheduler;
    fakes::FakeEnvironment environment{{"LANG", "en_US.UTF-8"}};
    ConfinedTextReader reader;
};

/// Returns the running readers that this process has started.
inline std::vector<pid_t> readers() {
    std::vector<pid_t> found;
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
        std::ifstream children(task.path() / "children");
        for (pid_t child = 0; children >> child;) {
            std::ifstream name("/proc/" + std::to_string(child) + "/comm");
            std::string text;
            if (name >> text && text.ends_with("reader")) found.push_back(child);
        }
    }
    return found;
}

}  // namespace vantle
