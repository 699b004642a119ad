#include "platform/linux/screenshots/BackgroundGSettings.h"

#include <cerrno>

#include "support/SystemLog.h"
#include "support/Weakly.h"

namespace vantle {
namespace {

bool isSame(const std::optional<Result<std::string>>& one, const Result<std::string>& other) {
    if (!one) return false;
    if (!*one || !other) return !*one && !other;
    return one->value() == other.value();
}

}  // namespace

void BackgroundGSettings::whenReadsFinish(std::function<void()> done) {
    queue_.async([&main = main_, done = std::move(done)] { main.async(done); });
}

Result<std::string> BackgroundGSettings::text(const std::string& schema,
                                              const std::string& key) const {
    const Entry& entry = self().requestRead({schema, key});
    return entry.text ? *entry.text : Failure{EAGAIN, "the value has not been read yet", {}};
}

bool BackgroundGSettings::isWritable(const std::string& schema, const std::string& key) const {
    return self().requestRead({schema, key}).isWritable.value_or(true);
}

Outcome BackgroundGSettings::setText(const std::string& schema, const std::string& key,
                                     const std::string& text) {
    return write({schema, key}, text, [backend = backend_, schema, key, text] {
        return backend->setText(schema, key, text);
    });
}

Outcome BackgroundGSettings::reset(const std::string& schema, const std::string& key) {
    return write({schema, key}, "",
                 [backend = backend_, schema, key] { return backend->reset(schema, key); });
}

const BackgroundGSettings::Entry& BackgroundGSettings::requestRead(const Name& name) {
    Entry& entry = entries_[name];
    if (std::exchange(entry.isPending, true)) return entry;
    queue_.async(
        [backend = backend_, &main = main_, weak = weak_from_this(), name, writes = entry.writes] {
            const auto& [schema, key] = name;
            auto text = backend->text(schema, key);
            const bool isWritable = backend->isWritable(schema, key);
            main.async([weak, name, writes, text = std::move(text), isWritable] {
                if (const auto settings = weak.lock())
                    settings->receive(name, writes, text, isWritable);
            });
        });
    return entry;
}

void BackgroundGSettings::receive(const Name& name, std::uint64_t writes,
                                  const Result<std::string>& text, bool isWritable) {
    Entry& entry = entries_[name];
    entry.isPending = false;
    if (writes != entry.writes) return;
    const bool isKnown = isSame(entry.text, text) && entry.isWritable == isWritable;
    entry.text = text;
    entry.isWritable = isWritable;
    if (!isKnown && onChange) onChange();
}

Outcome BackgroundGSettings::write(const Name& name, const std::string& text,
                                   std::function<Outcome()> write) {
    Entry& entry = entries_[name];
    if (entry.isWritable == false)
        return Failure{EPERM, "the desktop does not allow it to be changed", {}};
    if (entry.text && !*entry.text) return entry.text->failure();
    entry.text = text;
    ++entry.writes;
    queue_.async([&main = main_, weak = weak_from_this(), name, write = std::move(write)] {
        main.async([weak, name, failure = write()] {
            if (const auto settings = weak.lock()) settings->writeFinished(name, failure);
        });
    });
    return {};
}

void BackgroundGSettings::writeFinished(const Name& name, const Outcome& failure) {
    if (failure)
        systemLog("Vantle: cannot set " + name.second + " of " + name.first + ": " +
                  failure->message);
    // Read again after a success too: after a reset only the desktop knows the default.
    (void)requestRead(name);
}

}  // namespace vantle
