#include "screens/FolderAccessRow.h"

#include "support/Localization.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

std::string permissionExplanation() {
    return localized(
        "FolderAccessRow",
        "macOS asks once for Desktop, Documents and Downloads. Pictures needs no permission.");
}

}  // namespace

std::shared_ptr<FolderAccessRow> FolderAccessRow::create(const Context& context) {
    const std::shared_ptr<FolderAccessRow> row(new FolderAccessRow(context));
    row->subscription_ = context.settings.screenshotFolder.observeChanges(
        [&row = *row](const Url& folder) { row.check(folder); });
    return row;
}

FolderAccessRow::Contents FolderAccessRow::contents(AccessState state) {
    const Button grant{localized("FolderAccessRow", "Grant access"), &FolderAccessRow::check};
    switch (state) {
        case AccessState::unknown:
            return {"lock.circle",
                    localized("FolderAccessRow", "Folder access"),
                    permissionExplanation(),
                    {grant}};
        case AccessState::granted:
            return {"checkmark.circle.fill",
                    localized("FolderAccessRow", "Vantle can read this folder"),
                    permissionExplanation(),
                    {{localized("FolderAccessRow", "Check again"), &FolderAccessRow::check}}};
        case AccessState::denied:
            return {
                "exclamationmark.triangle.fill",
                localized("FolderAccessRow", "macOS is blocking access to this folder"),
                localized(
                    "FolderAccessRow",
                    "Allow Vantle under Privacy & Security → Files and Folders, then check again."),
                {{localized("FolderAccessRow", "Open Privacy Settings"),
                  &FolderAccessRow::openPrivacySettings},
                 grant}};
    }
    return {};
}

void FolderAccessRow::check() {
    check(context_.settings.screenshotFolder.value());
}

void FolderAccessRow::check(const Url& folder) {
    const auto setState =
        weakly(shared_from_this(), [](auto& self, AccessState result) { self.state.set(result); });
    context_.queue.async(
        [&files = context_.files, &scheduler = context_.scheduler, folder, setState] {
            const bool isReadable{files.contentsOfDirectory(folder)};
            scheduler.async([setState, isReadable] {
                setState(isReadable ? AccessState::granted : AccessState::denied);
            });
        });
}

void FolderAccessRow::openPrivacySettings() {
    context_.privacySettings.open(context_.settings.screenshotFolder.value());
}

}  // namespace vantle
