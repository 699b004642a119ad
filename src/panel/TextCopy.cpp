#include "panel/TextCopy.h"

#include <algorithm>
#include <utility>

#include "support/Localization.h"
#include "support/Weakly.h"
#include "support/WordCount.h"

namespace vantle {
namespace {

std::string copiedNotice(std::size_t words) {
    if (words == 1) return localized("TextCopy", "Copied 1 word");
    return filled(localized("TextCopy", "Copied %1 words"), {std::to_string(words)});
}

}  // namespace

std::shared_ptr<TextCopy> TextCopy::create(const Services& services) {
    return std::shared_ptr<TextCopy>(new TextCopy(services));
}

TextCopy::TextCopy(const Services& services)
    : services_(services),
      captures_(services.state.captures.observeChanges(
          [this](const auto& captures) { endThoseWithout(captures); })) {}

bool TextCopy::canCopy(const CapturePointer& capture) const {
    return capture->kind() == CaptureKind::image && services_.reader.isAvailable();
}

void TextCopy::copy(const CapturePointer& capture, int page) {
    const auto found = copies_.find(capture->id());
    const bool isBeingRead = found != copies_.end() && found->second.reading;
    if (isBeingRead || !canCopy(capture)) return;
    end(capture->id());
    copies_[capture->id()] = {read(capture, page), services_.countdown.hold(), nullptr};
    show(capture->id(), {});
}

std::unique_ptr<TextReader::Reading> TextCopy::read(const CapturePointer& capture, int page) {
    const UUID id = capture->id();
    return services_.reader.read(
        capture->url(), page,
        {.onProgress =
             weakly(shared_from_this(),
                    [id](auto& self, double fraction) { self.show(id, {.fraction = fraction}); }),
         .onDone = weakly(shared_from_this(),
                          [id](auto& self, const auto& text) { self.done(id, text); })});
}

void TextCopy::done(const UUID& id, const Result<std::string>& text) {
    // The reading owns the callback that runs, and with it `id` and perhaps `text`.
    const auto reading = std::move(copies_[id].reading);
    show(id, {.fraction = 1, .notice = finish(text)});
    copies_[id].heldCountdown.reset();
    copies_[id].end = services_.scheduler.after(
        noticeTime, weakly(shared_from_this(), [id](auto& self) { self.end(id); }));
}

std::string TextCopy::finish(const Result<std::string>& text) {
    if (!text) return text.failure().message;
    const std::size_t words = countOfWords(text.value());
    if (words == 0) return localized("TextCopy", "No text found");
    services_.pasteboard.clearContents();
    services_.pasteboard.writeObjects({text.value()});
    return copiedNotice(words);
}

void TextCopy::stop(const CapturePointer& capture) {
    const auto found = copies_.find(capture->id());
    if (found != copies_.end() && found->second.reading) end(capture->id());
}

void TextCopy::stopAll() {
    endThoseWithout({});
}

void TextCopy::endThoseWithout(const std::vector<CapturePointer>& captures) {
    std::vector<UUID> left;
    for (const auto& [id, copy] : copies_) {
        const bool stays = std::ranges::find(captures, id, [](const auto& capture) {
                               return capture->id();
                           }) != captures.end();
        if (!stays) left.push_back(id);
    }
    for (const UUID& id : left) end(id);
}

void TextCopy::end(const UUID& id) {
    const auto found = copies_.find(id);
    if (found == copies_.end()) return;
    // The countdown is free again only after the card shows no reading any more.
    const Copy ended = std::move(found->second);
    copies_.erase(found);
    if (ended.end) ended.end->cancel();
    auto all = services_.state.textCopying.value();
    all.erase(id);
    services_.state.textCopying.set(std::move(all));
}

void TextCopy::show(const UUID& id, PanelState::TextCopying copying) {
    auto all = services_.state.textCopying.value();
    all[id] = std::move(copying);
    services_.state.textCopying.set(std::move(all));
}

}  // namespace vantle
