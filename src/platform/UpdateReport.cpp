#include "platform/UpdateReport.h"

#include <array>
#include <charconv>
#include <concepts>
#include <utility>
#include <vector>

namespace vantle {
namespace {

using namespace report;

constexpr std::array<std::pair<char, char>, 3> escapes{{{'\\', '\\'}, {'\t', 't'}, {'\n', 'n'}}};

/// Writes a report as fields that are separated by tabs.
class Writer {
public:
    explicit Writer(std::string_view kind) : line_(kind) {}

    Writer& operator<<(std::string_view field) {
        line_ += '\t';
        for (const char character : field) add(character);
        return *this;
    }
    Writer& operator<<(std::integral auto number) { return *this << std::to_string(number); }

    std::string take() { return std::move(line_); }

private:
    void add(char character) {
        for (const auto& [plain, letter] : escapes)
            if (character == plain) {
                line_ += {'\\', letter};
                return;
            }
        line_ += character;
    }

    std::string line_;
};

/// Reads the fields that a Writer wrote.
class Reader {
public:
    explicit Reader(std::string_view line) : rest_(line), kind_(takeRaw()) {}

    const std::string& kind() const { return kind_; }
    /// Returns true if every field was present and valid and there were no others.
    bool isGood() const { return isGood_ && hasEnded_; }

    std::string text() {
        if (hasEnded_) isGood_ = false;
        return hasEnded_ ? "" : takeRaw();
    }
    template <typename Number>
    Number number() {
        const std::string digits = text();
        Number value{};
        const auto [end, error] =
            std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error != std::errc() || end != digits.data() + digits.size()) isGood_ = false;
        return value;
    }

private:
    std::string takeRaw() {
        const auto end = rest_.find('\t');
        const std::string_view field = rest_.substr(0, end);
        hasEnded_ = end == std::string_view::npos;
        rest_.remove_prefix(hasEnded_ ? rest_.size() : end + 1);
        return unescaped(field);
    }

    std::string unescaped(std::string_view field) {
        std::string text;
        for (std::size_t i = 0; i < field.size(); ++i) {
            if (field[i] != '\\') {
                text += field[i];
                continue;
            }
            const char letter = ++i < field.size() ? field[i] : '\0';
            bool isKnown = false;
            for (const auto& [plain, each] : escapes)
                if (letter == each) {
                    text += plain;
                    isKnown = true;
                }
            if (!isKnown) isGood_ = false;
        }
        return text;
    }

    std::string_view rest_;
    bool isGood_ = true;
    bool hasEnded_ = false;
    std::string kind_;
};

std::string write(const FeedLoaded& loaded) {
    return (Writer("loaded") << loaded.items << loaded.date).take();
}
std::string write(const UpdateFound& found) {
    const auto& item = found.item;
    return (Writer("found") << item.version << item.displayVersion << item.notes << item.page
                            << item.address << item.length << item.signature
                            << static_cast<int>(item.installation))
        .take();
}
std::string write(const NothingFound& nothing) {
    return (Writer("nothing") << nothing.reason).take();
}
std::string write(const Progress& progress) {
    return (Writer("progress") << progress.received).take();
}
std::string write(const Installing&) {
    return "installing";
}
std::string write(const Ready&) {
    return "ready";
}
std::string write(const Failed& failed) {
    return (Writer("failed") << failed.message << failed.page).take();
}
std::string write(const RolledBack& back) {
    return (Writer("rolled-back") << back.version << back.message).take();
}

UpdateItem readItem(Reader& reader) {
    // A braced list is evaluated in the order in which it is written.
    UpdateItem item{.version = reader.text(),
                    .displayVersion = reader.text(),
                    .notes = reader.text(),
                    .page = reader.text(),
                    .address = reader.text(),
                    .length = reader.number<std::uint64_t>(),
                    .signature = reader.text()};
    const int installation = reader.number<int>();
    if (installation == static_cast<int>(UpdateItem::Installation::tree))
        item.installation = UpdateItem::Installation::tree;
    else if (installation == static_cast<int>(UpdateItem::Installation::package))
        item.installation = UpdateItem::Installation::package;
    return item;
}

std::optional<UpdateReport> read(Reader& reader) {
    const std::string& kind = reader.kind();
    if (kind == "loaded")
        return FeedLoaded{reader.number<std::uint64_t>(), reader.number<std::int64_t>()};
    if (kind == "found") return UpdateFound{readItem(reader)};
    if (kind == "nothing") return NothingFound{reader.text()};
    if (kind == "progress") return Progress{reader.number<std::uint64_t>()};
    if (kind == "installing") return Installing{};
    if (kind == "ready") return Ready{};
    if (kind == "failed") return Failed{reader.text(), reader.text()};
    if (kind == "rolled-back") return RolledBack{reader.text(), reader.text()};
    return std::nullopt;
}

}  // namespace

std::string formatReport(const UpdateReport& report) {
    return std::visit([](const auto& each) { return write(each); }, report);
}

std::optional<UpdateReport> parseReport(std::string_view line) {
    Reader reader(line);
    const auto report = read(reader);
    return reader.isGood() ? report : std::nullopt;
}

}  // namespace vantle
