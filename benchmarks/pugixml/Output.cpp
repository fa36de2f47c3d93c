#include <benchmarks/pugixml/handle.h>

#include <lvdata/xml/detail/Output.h>
#include <lvdata/xml/detail/element_reading.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

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
        *at++ = arraySeparator.front();
    }
    *(values.empty() ? at : at - 1) = '\0';
    return buffer.data();
}

void addTo(pugi::xml_node element, const char* text) {
    element.append_child(pugi::node_pcdata).set_value(text);
}

void addTo(pugi::xml_node element, const std::string& value) {
    addTo(element, value.c_str());
}

void addTo(pugi::xml_node element, bool value) {
    addTo(element, value ? "true" : "false");
}

template <class Number>
void addTo(pugi::xml_node element, Number value) {
    addTo(element, Decimal(value).c_str());
}

template <class Number>
void addTo(pugi::xml_node element, const std::vector<Number>& values) {
    addTo(element, joined(values));
}

}  // namespace

Output Output::append(const char* name) const {
    return Output(toElement(pugixmlNode(element_).append_child(name)));
}

template <class T>
void Output::addText(const T& value) const {
    addTo(pugixmlNode(element_), value);
}

template <>
void Output::setAttribute(const char* name, const std::string& value) const {
    pugixmlNode(element_).append_attribute(name).set_value(value.c_str());
}

template <>
void Output::setAttribute(const char* name, const unsigned int& value) const {
    pugixmlNode(element_).append_attribute(name).set_value(Decimal(value).c_str());
}

void Output::finish() const {}

template void Output::addText(const std::string& value) const;
template void Output::addText(const bool& value) const;
template void Output::addText(const int& value) const;
template void Output::addText(const unsigned int& value) const;
template void Output::addText(const std::vector<int>& value) const;
template void Output::addText(const std::vector<unsigned int>& value) const;

}  // namespace lv::detail
