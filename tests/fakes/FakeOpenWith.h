#pragma once

#include <algorithm>
#include <cerrno>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/OpenWith.h"
#include "platform/Scheduler.h"
#include "support/SystemFailure.h"

namespace vantle::fakes {

/// A desktop whose programs a test installs. A file's extension is its type.
class FakeOpenWith final : public OpenWith {
public:
    struct Program {
        std::string identifier;
        std::string name;
        std::set<std::string> types;
        std::set<std::string> defaultFor;
    };

    explicit FakeOpenWith(Scheduler& scheduler) : scheduler_(scheduler) {}

    void find(const std::vector<Url>& files, Found found) override {
        searches.push_back(files);
        scheduler_.async([this, files, found = std::move(found)] { found(programsFor(files)); });
    }

    void open(const std::vector<Url>& files, const std::string& identifier,
              Completion completion) override {
        const bool isInstalled =
            std::ranges::find(programs, identifier, &Program::identifier) != programs.end();
        const Outcome outcome = isInstalled ? failure : systemFailure(ENOENT);
        if (!outcome) opened.emplace_back(identifier, files);
        complete(std::move(completion), outcome);
    }

    void openWithOther(const Url& file, Completion completion) override {
        if (chooser_) return complete(std::move(completion), systemFailure(ECANCELED));
        chosenFor = file;
        chooser_ = std::move(completion);
    }

    bool isChooserOpen() const { return chooser_ != nullptr; }
    /// Chooses a program in the chooser that is open, or closes it.
    void answerChooser(bool chooses) {
        const auto completion = std::exchange(chooser_, nullptr);
        completion(chooses ? Outcome() : systemFailure(ECANCELED));
    }

    std::vector<Program> programs;
    bool hasChooser = false;
    Outcome failure;  ///< The result of the next programs that are opened.
    std::vector<std::vector<Url>> searches;
    std::vector<std::pair<std::string, std::vector<Url>>> opened;
    Url chosenFor;

private:
    static bool includes(const std::set<std::string>& types, const std::vector<Url>& files) {
        return std::ranges::all_of(files, [&types](const Url& file) {
            return types.contains(std::string(file.pathExtension()));
        });
    }

    OpeningPrograms programsFor(const std::vector<Url>& files) const {
        OpeningPrograms found{{}, hasChooser && files.size() == 1};
        for (const auto& program : programs)
            if (includes(program.types, files))
                found.programs.push_back({program.identifier, program.name, nullptr,
                                          includes(program.defaultFor, files)});
        std::stable_partition(found.programs.begin(), found.programs.end(),
                              std::mem_fn(&OpeningProgram::isDefault));
        return found;
    }

    void complete(Completion completion, const Outcome& outcome) {
        scheduler_.async([completion = std::move(completion), outcome] { completion(outcome); });
    }

    Scheduler& scheduler_;
    Completion chooser_;
};

}  // namespace vantle::fakes
