#include "platform/linux/IniFile.h"

#include <fcntl.h>

#include <cerrno>
#include <utility>

#include "platform/linux/WholeFile.h"
#include "support/FileDescriptor.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

constexpr std::size_t maximumFileSize = std::size_t{1024} * 1024;

}  // namespace

IniDocument IniFile::load() const {
    auto document = read();
    return document ? std::move(document.value()) : IniDocument();
}

Outcome IniFile::store(const std::map<std::string, PreferenceValue>& values,
                       const IniDocument& memory) {
    auto document = read();
    if (!document) return document.failure();
    const bool isTrusted = document.value().isIntact() && !document.value().isEmpty();
    IniDocument& next = document.value();
    if (!isTrusted && !memory.isEmpty()) next = memory;
    for (const auto& [key, value] : values) next.set(key, value);
    auto failure = replaceWholeFile(file_, next.text());
    if (failure) logOnce("cannot write " + file_.path(), failure->message);
    return failure;
}

bool IniFile::canBeRead() const {
    return bool(FileDescriptor(open(file_.path().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)));
}

Result<IniDocument> IniFile::read() const {
    const auto text = readWholeFile(file_, maximumFileSize);
    const int failure = text ? 0 : text.failure().code;
    if (failure == ENOENT) return IniDocument();
    const bool isNoSettingsFile = failure == EFBIG || failure == EISDIR;
    if (!text && !isNoSettingsFile) {
        logOnce("cannot read " + file_.path(), text.failure().message);
        return text.failure();
    }
    IniDocument document = text ? IniDocument::parse(text.value()) : IniDocument();
    if (text && document.isIntact()) return document;
    if (const Outcome notKept = renameDamaged()) return *notKept;
    // The readable part is written back, so that the same damage is not reported again.
    if (!document.isEmpty()) (void)replaceWholeFile(file_, document.text());
    return document;
}

Outcome IniFile::renameDamaged() const {
    const auto aside = renameDamagedFile(file_);
    if (!aside) {
        logOnce("cannot rename the damaged file " + file_.path(), aside.failure().message);
        return aside.failure();
    }
    systemLog(
        "Vantle: a settings file is damaged; its readable lines are used, and it was renamed: " +
        file_.path() + " is now " + aside.value().path());
    return {};
}

void IniFile::logOnce(const std::string& message, const std::string& reason) const {
    if (!std::exchange(hasLogged_, true)) systemLog("Vantle: " + message, reason);
}

}  // namespace vantle
