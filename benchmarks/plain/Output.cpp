#include <lvdata/xml/detail/Output.h>
#include <lvdata/xml/detail/element_writing.h>

#include <locale>
#include <sstream>
#include <string>
#include <vector>

#include <tinyxml2.h>

// Everything becomes nodes, and numbers are written by streams.

namespace lv::detail {
namespace {

const std::string& textOf(const std::string& value) {
    return value;
}

std::string textOf(bool value) {
    return value ? "true" : "false";
}

template <class Number>
std::string textOf(const std::vector<Number>& values) {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    bool first = true;
    for (const Number value : values) {
        stream << (first ? "" : "|") << value;
        first = false;
    }
    return stream.str();
}

template <class Number>
std::string textOf(Number value) {
    return textOf(std::vector<Number>{value});
}

}  // namespace

Output Output::append(const char* name) const {
    return Output(element_ == nullptr ? nullptr : appendElement(*element_, name));
}

template <class T>
void Output::addText(const T& value) const {
    if (element_ != nullptr) {
        appendText(*element_, textOf(value));
    }
}

template <class T>
void Output::setAttribute(const char* name, const T& value) const {
    if (element_ != nullptr) {
        detail::setAttribute(*element_, name, textOf(value));
    }
}

void Output::finish() const {}

template void Output::addText(const std::string& value) const;
template void Output::addText(const bool& value) const;
template void Output::addText(const int& value) const;
template void Output::addText(const unsigned int& value) const;
template void Output::addText(const std::vector<int>& value) const;
template void Output::addText(const std::vector<unsigned int>& value) const;

template void Output::setAttribute(const char* name, const std::string& value) const;
template void Output::setAttribute(const char* name, const unsigned int& value) const;

}  // namespace lv::detail
