#include "updater/ReleaseNotes.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <regex>
#include <vector>

namespace vantle::updater {
namespace {

constexpr std::size_t maximum = std::size_t{32} * 1024;  // bytes
constexpr std::size_t maximumDepth = 16;

constexpr std::array<std::string_view, 16> allowedElements{"p",  "h1", "h2",   "h3", "h4",     "ul",
                                                           "ol", "li", "b",    "i",  "strong", "em",
                                                           "u",  "s",  "code", "pre"};
constexpr std::array<std::string_view, 4> droppedElements{"script", "style", "title", "template"};

bool isOneOf(std::string_view name, const auto& names) {
    return std::ranges::find(names, name) != names.end();
}

struct Tag {
    std::string name;  ///< In lower case.
    bool isEnd = false;
    std::string attributes;
};

/// Parses the text between "<" and ">".
Tag tagFrom(std::string_view inside) {
    Tag tag;
    if (inside.starts_with('/')) {
        tag.isEnd = true;
        inside.remove_prefix(1);
    }
    const auto end = std::ranges::find_if_not(
        inside, [](unsigned char each) { return std::isalnum(each) != 0; });
    for (const unsigned char each : std::string_view(inside.begin(), end))
        tag.name += static_cast<char>(std::tolower(each));
    tag.attributes = std::string(end, inside.end());
    return tag;
}

/// Returns the address of a link if it may be shown; otherwise empty.
std::string addressIn(const std::string& attributes) {
    static const std::regex form(
        "\\shref\\s*=\\s*([\"'])(https://[A-Za-z0-9][-A-Za-z0-9._~:/?#@!$&()*+,;=%]{0,999})\\1",
        std::regex::icase);
    constexpr std::size_t maximumAttributesLength = 2000;
    std::smatch match;
    if (attributes.size() > maximumAttributesLength || !std::regex_search(attributes, match, form))
        return {};
    return match[2];
}

class Cleaner {
public:
    explicit Cleaner(std::string_view html) : rest_(html) {}

    std::string clean() {
        while (!rest_.empty() && out_.size() < maximum) step();
        if (!rest_.empty()) out_ += "…";
        while (!open_.empty()) closeLast();
        return std::move(out_);
    }

private:
    void step() {
        if (rest_.starts_with("<!--")) return skipBehind("-->");
        const bool isTag = rest_.size() > 1 && rest_.front() == '<' &&
                           (std::isalpha(static_cast<unsigned char>(rest_[1])) != 0 ||
                            rest_[1] == '/' || rest_[1] == '!' || rest_[1] == '?');
        const auto end = isTag ? rest_.find('>') : std::string_view::npos;
        if (end == std::string_view::npos) return takeCharacter();
        const Tag tag = tagFrom(rest_.substr(1, end - 1));
        rest_.remove_prefix(end + 1);
        take(tag);
    }

    void skipBehind(std::string_view end) {
        const auto at = rest_.find(end);
        rest_.remove_prefix(at == std::string_view::npos ? rest_.size() : at + end.size());
    }

    void takeCharacter() {
        static const std::regex entity("&(amp|lt|gt|quot|apos|nbsp|#[0-9]{1,6});.*");
        constexpr std::size_t maximumEntityLength = 10;
        const char character = rest_.front();
        const bool isEntity =
            character == '&' &&
            std::regex_match(std::string(rest_.substr(0, maximumEntityLength)), entity);
        if (character == '<')
            out_ += "&lt;";
        else if (character == '>')
            out_ += "&gt;";
        else if (character == '&' && !isEntity)
            out_ += "&amp;";
        else
            out_ += character;
        rest_.remove_prefix(1);
    }

    void take(const Tag& tag) {
        if (isOneOf(tag.name, droppedElements)) {
            if (!tag.isEnd) skipBehind("</" + tag.name + ">");
        } else if (tag.name == "br") {
            out_ += "<br>";
        } else if (tag.isEnd) {
            close(tag.name);
        } else if (open_.size() < maximumDepth) {
            open(tag);
        }
    }

    void open(const Tag& tag) {
        const std::string address = tag.name == "a" ? addressIn(tag.attributes) : "";
        if (!address.empty())
            out_ += "<a href=\"" + address + "\">";
        else if (isOneOf(tag.name, allowedElements))
            out_ += "<" + tag.name + ">";
        else
            return;
        open_.push_back(tag.name);
    }

    void close(const std::string& name) {
        if (std::ranges::find(open_, name) == open_.end()) return;
        while (open_.back() != name) closeLast();
        closeLast();
    }

    void closeLast() {
        out_ += "</" + open_.back() + ">";
        open_.pop_back();
    }

    std::string_view rest_;
    std::string out_;
    std::vector<std::string> open_;
};

}  // namespace

std::string safeReleaseNotes(std::string_view html) {
    return Cleaner(html).clean();
}

}  // namespace vantle::updater
