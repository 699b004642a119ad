#pragma once

#include <algorithm>
#include <cerrno>
#include <string>
#include <utility>
#include <vector>

#include "fakes/FakeFileSystem.h"
#include "fakes/VirtualTime.h"
#include "platform/Scheduler.h"
#include "platform/Trash.h"

namespace vantle::fakes {

/// A Trash of files in memory.
class FakeTrash final : public Trash {
public:
    FakeTrash(Scheduler& scheduler, FakeFileSystem& files) : scheduler_(scheduler), files_(files) {}

    void recycle(const std::vector<Url>& urls, Completion completion) override {
        requests.push_back(urls);
        scheduler_.async([this, urls, completion = std::move(completion)] {
            Outcome failures;
            std::vector<Moved> moved;
            for (const Url& url : urls) {
                if (files_.existence(url) == FileManager::Existence::none) {
                    add(failures, ENOENT, url.path() + ": No such file or directory");
                    continue;
                }
                files_.remove(url);
                trashed.push_back(url);
                moved.push_back({url, Url::file("/trash/" + std::to_string(++number_))});
                places_.push_back(moved.back());
            }
            completion(failures, moved);
        });
    }

    void putBack(const std::vector<Moved>& files, Completion completion) override {
        scheduler_.async([this, files, completion = std::move(completion)] {
            Outcome failures;
            std::vector<Moved> back;
            for (const Moved& file : files) {
                const auto isSame = [&](const Moved& other) {
                    return other.inTrash == file.inTrash;
                };
                if (std::ranges::none_of(places_, isSame)) {
                    add(failures, ENOENT, file.original.path() + ": No such file or directory");
                } else if (files_.existence(file.original) != FileManager::Existence::none) {
                    add(failures, EEXIST, file.original.path() + ": File exists");
                } else {
                    std::erase_if(places_, isSame);
                    trashed.erase(std::ranges::find(trashed, file.original));
                    files_.write(file.original, 4, VirtualClock::epoch);
                    back.push_back(file);
                }
            }
            completion(failures, back);
        });
    }

    /// Empties the Trash, as the user may do at any time.
    void empty() {
        trashed.clear();
        places_.clear();
    }

    std::vector<std::vector<Url>> requests;
    std::vector<Url> trashed;

private:
    static void add(Outcome& failures, int code, const std::string& reason) {
        if (failures)
            failures->message += "; " + reason;
        else
            failures = Failure{code, reason, {}};
    }

    Scheduler& scheduler_;
    FakeFileSystem& files_;
    std::vector<Moved> places_;
    int number_ = 0;
};

}  // namespace vantle::fakes
