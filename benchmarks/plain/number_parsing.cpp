#include <lvdata/xml/detail/number_parsing.h>
#include <lvdata/xml/split_string.h>

#include <locale>
#include <sstream>

namespace lv::detail {
namespace {

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

}  // namespace lv::detail
