#include <lvdata/analysis/report/filling.h>
#include <lvdata/analysis/utf8.h>

namespace lv::analysis {
namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";  // U+FFFD

bool isControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return (byte < 0x20 && character != '\n' && character != '\t') || byte == 0x7F;
}

void appendEscaped(std::string& out, char character) {
    switch (character) {
    case '&':
        out += "&amp;";
        break;
    case '<':
        out += "&lt;";
        break;
    case '>':
        out += "&gt;";
        break;
    case '"':
        out += "&quot;";
        break;
    case '\'':
        out += "&#39;";
        break;
    default:
        out += isControl(character) ? replacement : std::string_view(&character, 1);
    }
}

bool isSpace(char character) {
    return character == ' ' || character == '\n' || character == '\r' || character == '\t';
}

/// Copies JSON text one character at a time.
class ScriptText {
public:
    explicit ScriptText(std::size_t length) { text_.reserve(length); }

    void add(char character) {
        if (!inText_ && isSpace(character)) {
            return;
        }
        append(character);
        inText_ = character == '"' && !isEscaped_ ? !inText_ : inText_;
        isEscaped_ = inText_ && character == '\\' && !isEscaped_;
    }

    [[nodiscard]] std::string take() && { return std::move(text_); }

private:
    void append(char character) {
        if (character == '<') {
            text_ += "\\u003c";
        } else {
            text_ += character;
        }
    }

    std::string text_{};
    bool inText_ = false;
    bool isEscaped_ = false;
};

}  // namespace

std::string escapedForHTML(std::string_view text) {
    const std::string source = inUTF8(text);
    std::string out;
    out.reserve(source.size());
    for (const char character : source) {
        appendEscaped(out, character);
    }
    return out;
}

std::string escapedForScript(std::string_view json) {
    const std::string source = inUTF8(json);
    ScriptText out(source.size());
    for (const char character : source) {
        out.add(character);
    }
    std::string text = std::move(out).take();
    return text.empty() ? "null" : text;
}

}  // namespace lv::analysis
