#include "Limits.h"

#include <algorithm>
#include <array>

namespace tool {
namespace {

constexpr std::string_view blanks = " \t\n\v\f\r";

/// Markup that is no tag, and where it ends; of two that fit, the first counts.
struct Passage {
    std::string_view start;
    std::string_view end;
};

constexpr std::array<Passage, 4> passages{{{"<?", "?>"}, {"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<!", ">"}}};

bool startsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

/// As the XML library has it: every byte beyond ASCII can stand in a name.
constexpr bool startsName(char character) {
    const auto byte = static_cast<unsigned char>(character);
    const bool letter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
    return letter || byte >= 128 || byte == ':' || byte == '_';
}

constexpr bool continuesName(char character) {
    return startsName(character) || (character >= '0' && character <= '9') || character == '.' || character == '-';
}

std::size_t brokenReferences(std::string_view text) {
    constexpr std::string_view start = "&#";
    std::size_t count = 0;
    std::size_t at = text.find(start);
    while (at != std::string_view::npos) {
        const std::size_t next = text.find(start, at + start.size());
        count += text.substr(at, next - at).find(';') == std::string_view::npos ? 1 : 0;
        at = next;
    }
    return count;
}

/// Goes through a document once. Its functions return false where the scan is over: because the text is at its end,
/// because the XML library would refuse it there, or because something was found.
class Scan {
public:
    Scan(std::string_view text, const Limits& limits) : size_(text.size()), rest_(text), limits_(limits) {}

    std::optional<Excess> run() {
        while (takeText() && takeMarkup()) {
        }
        return std::move(found_);
    }

private:
    bool takeText() {
        const std::string_view text = rest_.substr(0, rest_.find('<'));
        const bool isNode = text.find_first_not_of(blanks) != std::string_view::npos;
        if (!checkReferences(text) || (isNode && !countNode())) {
            return false;
        }
        rest_.remove_prefix(text.size());
        return !rest_.empty();
    }

    bool takeMarkup() {
        const auto* const passage = std::find_if(passages.begin(), passages.end(),
                                                 [this](const Passage& each) { return startsWith(rest_, each.start); });
        return passage == passages.end() ? takeTag() : takePassage(*passage);
    }

    bool takePassage(const Passage& passage) {
        if (!countNode()) {
            return false;
        }
        rest_.remove_prefix(passage.start.size());
        return skipBehind(passage.end);
    }

    bool takeTag() {
        tag_ = size_ - rest_.size();
        take('<');
        skipBlanks();
        const bool isEnd = take('/');
        return (isEnd || countElement()) && takeName() && takeAttributes(isEnd);
    }

    bool takeAttributes(bool ofEndTag) {
        for (std::size_t count = 0; takeName(); ++count) {
            if (count == limits_.attributes) {
                return excess(tag_, limits_.attributes, "attributes in one tag", "attributes");
            }
            if (!takeValue() || (!ofEndTag && !countNode())) {
                return false;
            }
        }
        take('/');
        return take('>');
    }

    /// The rest of an attribute, behind its name.
    bool takeValue() {
        skipBlanks();
        if (!take('=')) {
            return false;
        }
        skipBlanks();
        const char quote = rest_.empty() ? '\0' : rest_.front();
        if (!take('"') && !take('\'')) {
            return false;
        }
        const std::string_view value = rest_.substr(0, rest_.find(quote));
        return checkReferences(value) && skipBehind({&quote, 1});
    }

    bool takeName() {
        skipBlanks();
        if (rest_.empty() || !startsName(rest_.front())) {
            return false;
        }
        const auto* const end = std::find_if_not(rest_.begin(), rest_.end(), continuesName);
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.begin()));
        return true;
    }

    bool take(char character) {
        const bool found = !rest_.empty() && rest_.front() == character;
        rest_.remove_prefix(found ? 1 : 0);
        return found;
    }

    void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(blanks), rest_.size())); }

    bool skipBehind(std::string_view end) {
        const std::size_t at = rest_.find(end);
        const bool found = at != std::string_view::npos;
        rest_.remove_prefix(found ? at + end.size() : rest_.size());
        return found;
    }

    bool countElement() {
        return ++elements_ > limits_.elements ? excess(tag_, limits_.elements, "elements", "elements") : countNode();
    }

    /// One that ends, or begins, where the rest begins.
    bool countNode() {
        return ++nodes_ <= limits_.nodes || excess(size_ - rest_.size(), limits_.nodes, "nodes", "nodes");
    }

    /// Of a text with which the rest begins.
    bool checkReferences(std::string_view text) {
        return brokenReferences(text) <= limits_.brokenReferences ||
               excess(size_ - rest_.size(), limits_.brokenReferences, "broken references in one text",
                      "broken-references");
    }

    bool excess(std::size_t position, std::size_t limit, const std::string& things, const std::string& name) {
        found_ = Excess{position, excessReason(limit, things, "--max-" + name)};
        return false;
    }

    std::size_t size_;
    std::string_view rest_;
    const Limits& limits_;
    std::size_t tag_ = 0;  // where the latest begins
    std::size_t elements_ = 0;
    std::size_t nodes_ = 0;
    std::optional<Excess> found_;
};

}  // namespace

std::optional<Excess> findExcess(std::string_view text, const Limits& limits) {
    return Scan(text, limits).run();
}

std::string excessReason(std::size_t limit, const std::string& things, const std::string& option) {
    return "more than " + std::to_string(limit) + ' ' + things + ", see " + option;
}

}  // namespace tool
