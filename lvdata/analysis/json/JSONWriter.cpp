#include <lvdata/analysis/json/JSONWriter.h>
#include <lvdata/analysis/utf8.h>

#include <algorithm>
#include <array>

namespace lv::analysis {
namespace {

struct Escape {
    char character;
    std::string_view text;
};

constexpr std::array<Escape, 7> escapes = {
    {{'"', "\\\""}, {'\\', "\\\\"}, {'\b', "\\b"}, {'\f', "\\f"}, {'\n', "\\n"}, {'\r', "\\r"}, {'\t', "\\t"}}};

constexpr std::string_view hexDigits = "0123456789abcdef";
constexpr unsigned char firstPlain = 0x20;
constexpr unsigned char deleteCharacter = 0x7F;

bool mustBeEscaped(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return byte < firstPlain || byte == deleteCharacter || character == '"' || character == '\\';
}

bool isASCII(char character) {
    return static_cast<unsigned char>(character) <= deleteCharacter;
}

}  // namespace

void JSONWriter::beginObject() {
    beforeValue();
    begin('{');
}

void JSONWriter::key(std::string_view name) {
    separate();
    appendQuoted(name);
    append(isCompact_ ? ":" : ": ");
    isAfterKey_ = true;
}

void JSONWriter::endObject() {
    end('}');
}

void JSONWriter::beginArray(Entries entries) {
    beforeValue();
    begin('[');
    inNumbers_ = entries == Entries::numbers;
}

void JSONWriter::endArray() {
    end(']');
}

void JSONWriter::string(std::string_view text) {
    beforeValue();
    appendQuoted(text);
}

void JSONWriter::number(std::string_view text, NumberKind /*kind*/) {
    if (!inNumbers_) {
        beforeValue();
    } else if (!isEmpty_) {
        out_ += ',';
        out_.append(isCompact_ ? 0 : 1, ' ');
    }
    isEmpty_ = false;
    append(text);
}

void JSONWriter::boolean(bool value) {
    beforeValue();
    append(value ? "true" : "false");
}

void JSONWriter::null() {
    beforeValue();
    append("null");
}

void JSONWriter::beforeValue() {
    if (!isAfterKey_ && depth_ > 0) {
        separate();
    }
    isAfterKey_ = false;
}

void JSONWriter::separate() {
    append(isEmpty_ ? "" : ",");
    startLine();
    isEmpty_ = false;
}

void JSONWriter::begin(char bracket) {
    out_ += bracket;
    ++depth_;
    isEmpty_ = true;
    inNumbers_ = false;
}

void JSONWriter::end(char bracket) {
    --depth_;
    if (!isEmpty_ && !inNumbers_) {
        startLine();
    }
    out_ += bracket;
    isEmpty_ = false;
    inNumbers_ = false;
    if (depth_ == 0 && isLine_) {
        out_ += '\n';
    }
}

void JSONWriter::startLine() {
    if (!isCompact_) {
        out_ += '\n';
        out_.append(2 * depth_, ' ');
    }
}

void JSONWriter::appendQuoted(std::string_view text) {
    isUTF8_ = isUTF8_ && (std::all_of(text.begin(), text.end(), isASCII) || analysis::isUTF8(text));
    out_ += '"';
    while (!text.empty()) {
        const auto plain =
            static_cast<std::size_t>(std::find_if(text.begin(), text.end(), mustBeEscaped) - text.begin());
        append(text.substr(0, plain));
        text.remove_prefix(plain);
        if (!text.empty()) {
            appendEscaped(text.front());
            text.remove_prefix(1);
        }
    }
    out_ += '"';
}

void JSONWriter::appendEscaped(char character) {
    for (const Escape& escape : escapes) {
        if (escape.character == character) {
            append(escape.text);
            return;
        }
    }
    const auto byte = static_cast<unsigned char>(character);
    append("\\u00");
    out_ += hexDigits[byte / hexDigits.size()];
    out_ += hexDigits[byte % hexDigits.size()];
}

}  // namespace lv::analysis
