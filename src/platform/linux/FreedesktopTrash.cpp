#include "platform/linux/FreedesktopTrash.h"

#include <string>
#include <utility>

#include "platform/linux/TrashMove.h"
#include "platform/linux/UserDirectories.h"

namespace vantle {
namespace {

/// Combines failures into one: the error number of the first, the paths and reasons of all.
void add(Outcome& all, const Url& file, const Failure& failure) {
    const std::string reason = file.path() + ": " + failure.message;
    if (all)
        all->message += "; " + reason;
    else
        all = Failure{failure.code, reason, file.path()};
}

}  // namespace

FreedesktopTrash::FreedesktopTrash(Scheduler& main, const Environment& environment)
    : main_(main), environment_(environment) {}

PollQueue& FreedesktopTrash::queue() {
    if (!queue_) queue_.emplace("vantle.trash");
    return *queue_;
}

void FreedesktopTrash::recycle(const std::vector<Url>& urls, Completion completion) {
    const Url dataFolder = UserDirectories(environment_).data();
    queue().async([&main = main_, urls, dataFolder, completion = std::move(completion)] {
        Outcome failures;
        std::vector<Moved> moved;
        for (const Url& file : urls) {
            const auto inTrash = moveToTrash(file, dataFolder);
            if (inTrash)
                moved.push_back({file, inTrash.value()});
            else
                add(failures, file, inTrash.failure());
        }
        main.async([failures, moved, completion] { completion(failures, moved); });
    });
}

void FreedesktopTrash::putBack(const std::vector<Moved>& files, Completion completion) {
    queue().async([&main = main_, files, completion = std::move(completion)] {
        Outcome failures;
        std::vector<Moved> back;
        for (const Moved& file : files) {
            if (const Outcome failure = putBackFromTrash(file.inTrash, file.original))
                add(failures, file.original, *failure);
            else
                back.push_back(file);
        }
        main.async([failures, back, completion] { completion(failures, back); });
    });
}

}  // namespace vantle
