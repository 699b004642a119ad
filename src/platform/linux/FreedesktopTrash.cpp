#include "platform/linux/FreedesktopTrash.h"

#include <string>
#include <utility>

#include "platform/linux/TrashMove.h"
#include "platform/linux/UserDirectories.h"

namespace vantle {
namespace {

/// Combines all failures into one: the error number of the first, the paths and reasons of all.
Outcome moveAll(const std::vector<Url>& urls, const Url& dataFolder) {
    Outcome all;
    for (const Url& url : urls) {
        const Outcome failure = moveToTrash(url, dataFolder);
        if (!failure) continue;
        const std::string reason = url.path() + ": " + failure->message;
        if (all)
            all->message += "; " + reason;
        else
            all = Failure{failure->code, reason, url.path()};
    }
    return all;
}

}  // namespace

FreedesktopTrash::FreedesktopTrash(Scheduler& main, const Environment& environment)
    : main_(main), environment_(environment) {}

void FreedesktopTrash::recycle(const std::vector<Url>& urls, Completion completion) {
    if (!queue_) queue_.emplace("vantle.trash");
    const Url dataFolder = UserDirectories(environment_).data();
    queue_->async([&main = main_, urls, dataFolder, completion = std::move(completion)] {
        main.async([outcome = moveAll(urls, dataFolder), completion] { completion(outcome); });
    });
}

}  // namespace vantle
