#include <lvdata/xml/detail/number_text.h>
#include <lvdata/xml/split_string.h>

#include <locale>
#include <sstream>

namespace lv::detail {
namespace {

template <class Number>
std::string inserted(Number value) {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << value;
    return stream.str();
}

template <class Number>
Number extracted(const std::string& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    Number number = 0;
    stream >> number;  // a failure leaves 0 or the nearest limit, which is what the library wants
    return number;
}

}  // namespace

template <>
int parseNumber<int>(std::string_view text) {
    return extracted<int>(std::string(text));
}

template <>
unsigned int parseNumber<unsigned int>(std::string_view text) {
    return extracted<unsigned int>(std::string(text));
}

template <class Number>
void parseNumbers(std::string_view text, std::string_view separator, std::vector<Number>& out) {
    out.clear();
    for (const std::string& piece : split_string(std::string(text), std::string(separator))) {
        if (!piece.empty()) {
            out.push_back(extracted<Number>(piece));
        }
    }
}

template void parseNumbers(std::string_view text, std::string_view separator, std::vector<int>& out);
template void parseNumbers(std::string_view text, std::string_view separator, std::vector<unsigned int>& out);

template <class Number>
std::string joinNumbers(const std::vector<Number>& values, std::string_view separator) {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    bool first = true;
    for (const Number value : values) {
        if (!first) {
            stream << separator;
        }
        stream << value;
        first = false;
    }
    return stream.str();
}

template std::string joinNumbers(const std::vector<int>& values, std::string_view separator);
template std::string joinNumbers(const std::vector<unsigned int>& values, std::string_view separator);

void appendNumber(std::string& text, int value) {
    text += inserted(value);
}

void appendNumber(std::string& text, unsigned int value) {
    text += inserted(value);
}

}  // namespace lv::detail
