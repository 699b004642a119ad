#include "platform/linux/IniFile.h"

#include <cerrno>
#include <utility>

#include "platform/linux/WholeFile.h"
#include "support/SystemLog.h"

namespace vantle {
namespace {

constexpr std::size_t largestFile = std::size_t{1024} * 1024;

}  // namespace

IniDocument IniFile::load() const {
    auto document = read();
    return document ? std::move(document.value()) : IniDocument();
}

Outcome IniFile::store(const std::map<std::string, PreferenceValue>& values) {
    auto document = read();
    if (!document) return document.failure();
    for (const auto& [key, value] : values) document.value().set(key, value);
    auto failure = replaceWholeFile(file_, document.value().text());
    if (failure) complain("cannot write " + file_.path() + ": " + failure->message);
    return failure;
}

Result<IniDocument> IniFile::read() const {
    const auto text = readWholeFile(file_, largestFile);
    if (text) {
        if (auto document = IniDocument::parse(text.value())) return *std::move(document);
        return keepDamagedAside();
    }
    if (text.failure().code == ENOENT) return IniDocument();
    if (text.failure().code == EFBIG || text.failure().code == EISDIR) return keepDamagedAside();
    complain("cannot read " + file_.path() + ": " + text.failure().message);
    return text.failure();
}

Result<IniDocument> IniFile::keepDamagedAside() const {
    const auto aside = keepAside(file_);
    if (!aside) {
        complain("cannot keep aside what is damaged, " + file_.path() + ": " +
                 aside.failure().message);
        return aside.failure();
    }
    systemLog("Vantle: a damaged file is kept aside, and the defaults are used: " + file_.path() +
              " is now " + aside.value().path());
    return IniDocument();
}

void IniFile::complain(const std::string& message) const {
    if (!std::exchange(complained_, true)) systemLog("Vantle: " + message);
}

}  // namespace vantle
