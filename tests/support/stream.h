#pragma once

#include <locale>
#include <sstream>
#include <string>

namespace lv::test {

/// What numbers are compared with: formatted extraction from a stream in the classic locale, and insertion into one.
template <class Number>
Number extracted(const std::string& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    Number number = 0;
    stream >> number;
    return number;
}

template <class Number>
std::string inserted(Number number) {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << number;
    return stream.str();
}

}  // namespace lv::test
