#pragma once

#include <cerrno>
#include <utility>
#include <vector>

#include "fakes/FakeFileSystem.h"
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
            std::string failures;
            for (const Url& url : urls)
                if (!move(url)) failures += (failures.empty() ? "" : "; ") + missing(url);
            completion(failures.empty() ? Outcome() : Failure{ENOENT, failures, {}});
        });
    }

    std::vector<std::vector<Url>> requests;
    std::vector<Url> trashed;

private:
    static std::string missing(const Url& url) {
        return url.path() + ": No such file or directory";
    }

    bool move(const Url& url) {
        if (files_.existence(url) == FileManager::Existence::none) return false;
        files_.remove(url);
        trashed.push_back(url);
        return true;
    }

    Scheduler& scheduler_;
    FakeFileSystem& files_;
};

}  // namespace vantle::fakes
