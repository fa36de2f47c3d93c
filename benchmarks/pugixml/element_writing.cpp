#include <benchmarks/pugixml/handle.h>

#include <lvdata/xml/detail/element_writing.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>

namespace lv::detail {
namespace {

/// The most characters that a number takes.
template <class Number>
constexpr std::size_t maxDigits = std::numeric_limits<Number>::digits10 + 2;

/// A number's decimal text, NUL-terminated.
template <class Number>
class Decimal {
public:
    explicit Decimal(Number value) { *std::to_chars(text_.data(), text_.data() + text_.size(), value).ptr = '\0'; }

    [[nodiscard]] const char* c_str() const { return text_.data(); }

private:
    std::array<char, maxDigits<Number> + 1> text_;
};

/// All numbers' decimal texts, NUL-terminated, in a buffer that serves for the next array, too.
template <class Number>
const char* joined(const std::vector<Number>& values) {
    thread_local std::vector<char> buffer;
    buffer.resize(std::max(buffer.size(), values.size() * (maxDigits<Number> + 1) + 1));
    char* at = buffer.data();
    for (const Number value : values) {
        at = std::to_chars(at, at + maxDigits<Number>, value).ptr;
        *at++ = *arraySeparator;
    }
    *(values.empty() ? at : at - 1) = '\0';
    return buffer.data();
}

void addText(pugi::xml_node element, const char* text) {
    element.append_child(pugi::node_pcdata).set_value(text);
}

bool appendWithText(void* parent, const char* name, const char* text) {
    const pugi::xml_node child = toNode(parent).append_child(name);
    addText(child, text);
    return !child.empty();
}

}  // namespace

void* appendChild(void* parent, const char* name) {
    return toHandle(toNode(parent).append_child(name));
}

bool appendLeaf(void* parent, const char* name, const std::string& text) {
    return appendWithText(parent, name, text.c_str());
}

bool appendLeaf(void* parent, const char* name, int value) {
    return appendWithText(parent, name, Decimal(value).c_str());
}

bool appendLeaf(void* parent, const char* name, unsigned int value) {
    return appendWithText(parent, name, Decimal(value).c_str());
}

bool appendLeaf(void* parent, const char* name, bool value) {
    return appendWithText(parent, name, value ? "true" : "false");
}

bool appendLeaf(void* parent, const char* name, const std::vector<int>& values) {
    return appendWithText(parent, name, joined(values));
}

bool appendLeaf(void* parent, const char* name, const std::vector<unsigned int>& values) {
    return appendWithText(parent, name, joined(values));
}

void setText(void* element, unsigned int value) {
    addText(toNode(element), Decimal(value).c_str());
}

void setText(void* element, const std::vector<unsigned int>& values) {
    addText(toNode(element), joined(values));
}

void setAttribute(void* element, const char* name, const std::string& value) {
    toNode(element).append_attribute(name).set_value(value.c_str());
}

void setAttribute(void* element, const char* name, int value) {
    toNode(element).append_attribute(name).set_value(Decimal(value).c_str());
}

void setAttribute(void* element, const char* name, unsigned int value) {
    toNode(element).append_attribute(name).set_value(Decimal(value).c_str());
}

}  // namespace lv::detail
