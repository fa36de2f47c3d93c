#include <lvdata/xml/Limits.h>

#include <algorithm>
#include <array>
#include <limits>

namespace lv {
namespace {

using What = Excess::What;

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

int lineOf(std::string_view text, std::size_t position) {
    const std::string_view before = text.substr(0, position);
    const auto lines = std::count(before.begin(), before.end(), '\n');
    return static_cast<int>(std::min<std::ptrdiff_t>(lines, std::numeric_limits<int>::max() - 1)) + 1;
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
    Scan(std::string_view text, const Limits& limits) : text_(text), rest_(text), limits_(limits) {}

    std::optional<Excess> run() {
        while (takeText() && takeMarkup()) {
        }
        return found_;
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
        for (const Passage& passage : passages) {
            if (startsWith(rest_, passage.start)) {
                return takePassage(passage);
            }
        }
        return takeTag();
    }

    bool takePassage(const Passage& passage) {
        if (!countNode()) {
            return false;
        }
        rest_.remove_prefix(passage.start.size());
        return skipBehind(passage.end);
    }

    bool takeTag() {
        tag_ = here();
        take('<');
        skipBlanks();
        const bool isEnd = take('/');
        return (isEnd || countElement()) && takeName() && takeAttributes(isEnd);
    }

    bool takeAttributes(bool ofEndTag) {
        for (std::size_t count = 0; takeName(); ++count) {
            if (count == limits_.attributes) {
                return excess(What::attributes, limits_.attributes, tag_);
            }
            if (!takeValue() || (!ofEndTag && !countNode())) {
                return false;
            }
        }
        take('/');
        return take('>');
    }

    /// The rest of an attribute, after its name.
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
        const auto size = std::find_if_not(rest_.begin(), rest_.end(), continuesName) - rest_.begin();
        rest_.remove_prefix(static_cast<std::size_t>(size));
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

    [[nodiscard]] std::size_t here() const { return text_.size() - rest_.size(); }

    bool countElement() {
        return ++elements_ > limits_.elements ? excess(What::elements, limits_.elements, tag_) : countNode();
    }

    /// One that ends, or begins, where the rest begins.
    bool countNode() { return ++nodes_ <= limits_.nodes || excess(What::nodes, limits_.nodes, here()); }

    /// Of a text with which the rest begins.
    bool checkReferences(std::string_view text) {
        return brokenReferences(text) <= limits_.brokenReferences ||
               excess(What::brokenReferences, limits_.brokenReferences, here());
    }

    bool excess(What what, std::size_t limit, std::size_t position) {
        found_ = Excess{what, limit, position, lineOf(text_, position)};
        return false;
    }

    std::string_view text_;
    std::string_view rest_;
    const Limits& limits_;
    std::size_t tag_ = 0;  // where the latest begins
    std::size_t elements_ = 0;
    std::size_t nodes_ = 0;
    std::optional<Excess> found_;
};

std::string wordFor(What what) {
    switch (what) {
    case What::bytes:
        return "byte";
    case What::elements:
        return "element";
    case What::nodes:
        return "node";
    case What::attributes:
        return "attribute";
    default:
        return "broken reference";
    }
}

/// What the limit counts for, where that is not the document.
std::string placeOf(What what) {
    switch (what) {
    case What::attributes:
        return " per element";
    case What::brokenReferences:
        return " per text";
    default:
        return "";
    }
}

}  // namespace

std::string Excess::toString() const {
    std::string text = "more than " + std::to_string(limit) + ' ' + wordFor(what);
    text += limit == 1 ? "" : "s";
    return text + placeOf(what);
}

std::optional<Excess> findExcess(std::string_view text, const Limits& limits) {
    if (text.size() > limits.bytes) {
        return Excess{What::bytes, limits.bytes, limits.bytes, 0};
    }
    return Scan(text, limits).run();
}

}  // namespace lv
