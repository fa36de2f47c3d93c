#include <lvdata/xml/detail/number_parsing.h>
#include <lvdata/xml/detail/number_writing.h>
#include <lvdata/xml/lexical_cast.h>

namespace lv {
// By value is the published signature; number text is short enough for its copy never to matter.
// NOLINTBEGIN(performance-unnecessary-value-param)
template <>
int lexical_cast<int>(std::string text) {
    return detail::parseNumber<int>(text);
}

template <>
unsigned int lexical_cast<unsigned int>(std::string text) {
    return detail::parseNumber<unsigned int>(text);
}
// NOLINTEND(performance-unnecessary-value-param)

template <>
std::string lexical_cast<std::string>(int value) {
    return detail::decimalText(value);
}

template <>
std::string lexical_cast<std::string>(unsigned int value) {
    return detail::decimalText(value);
}

}  // namespace lv
