#include <lvdata/analysis/pictures/svg/text.h>

#include <lvdata/analysis/figures/Figure.h>
#include <lvdata/analysis/printable.h>
#include <lvdata/analysis/utf8.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace lv::analysis::svg {
namespace {

constexpr double greatestCoordinate = 99999;
constexpr double greatestPlain = 1e9;
constexpr std::string_view ellipsis = "…";

std::string withoutZerosAtEnd(std::string text) {
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') {
            text.pop_back();
        }
    }
    return text;
}

/// "1.23e+45"
std::string scientific(double value) {
    double exponent = std::floor(std::log10(std::abs(value)));
    double mantissa = value / std::pow(10, exponent);
    if (std::abs(mantissa) >= 9.995) {
        mantissa /= 10;
        exponent += 1;
    }
    return withoutZerosAtEnd(fixedText(mantissa, 2)) + 'e' + fixedText(exponent, 0);
}

std::string_view entityOf(char character) {
    constexpr std::array<std::pair<char, std::string_view>, 5> entities{
        {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&apos;"}}};
    for (const auto& [special, entity] : entities) {
        if (special == character) {
            return entity;
        }
    }
    return {};
}

/// The first character; of bytes that are not UTF-8, the first byte.
std::string_view firstCharacter(std::string_view text) {
    return text.substr(0, std::max<std::size_t>(characterLength(text), 1));
}

/// The width of a character at font size 1, as in wide fonts such as DejaVu Sans.
double relativeWidth(std::string_view character) {
    constexpr std::string_view narrow = "ijlI.,:;'|!()[] ftr-";
    constexpr std::string_view wide = "mwMW%@";
    if (character.size() > 1) {
        return character.size() == 2 ? 0.7 : 1;
    }
    if (narrow.find(character) != std::string_view::npos) {
        return 0.4;
    }
    return wide.find(character) != std::string_view::npos ? 0.98 : 0.64;
}

}  // namespace

std::string coordinateText(double value) {
    const double number = std::isnan(value) ? 0 : std::clamp(value, -greatestCoordinate, greatestCoordinate);
    std::string text = withoutZerosAtEnd(fixedText(number, 1));
    const std::size_t first = text.front() == '-' ? 1 : 0;
    return text.substr(first, 2) == "0." ? text.erase(first, 1) : text;
}

std::string valueText(double value, int decimals) {
    if (std::isnan(value)) {
        return "not a number";
    }
    if (std::isinf(value)) {
        return value > 0 ? "infinite" : "-infinite";
    }
    return std::abs(value) < greatestPlain ? fixedText(value, decimals) : scientific(value);
}

std::string cleaned(std::string_view text) {
    std::string result = printable(text);
    for (const std::string_view excluded : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
        for (std::size_t at = result.find(excluded); at != std::string::npos; at = result.find(excluded, at)) {
            result.replace(at, excluded.size(), "\xEF\xBF\xBD");
        }
    }
    return result;
}

std::string escaped(std::string_view text) {
    std::string result;
    for (const char character : text) {
        const std::string_view entity = entityOf(character);
        if (entity.empty()) {
            result += character;
        } else {
            result += entity;
        }
    }
    return result;
}

double textWidth(std::string_view text, double fontSize) {
    double width = 0;
    while (!text.empty()) {
        const std::string_view character = firstCharacter(text);
        width += relativeWidth(character) * fontSize;
        text.remove_prefix(character.size());
    }
    return width;
}

std::string shortened(std::string_view text, double width, double fontSize) {
    if (textWidth(text, fontSize) <= width) {
        return std::string(text);
    }
    std::string result;
    double used = textWidth(ellipsis, fontSize);
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view character = firstCharacter(rest);
        used += textWidth(character, fontSize);
        if (used > width) {
            break;
        }
        result += character;
        rest.remove_prefix(character.size());
    }
    return result += ellipsis;
}

std::string quotable(std::string_view text, std::size_t characters) {
    constexpr std::size_t mostBytesOfOne = 4;
    const double averageWidth = relativeWidth("a");
    const std::string start = cleaned(text.substr(0, mostBytesOfOne * (characters + 1)));
    return shortened(start, averageWidth * static_cast<double>(characters), 1);
}

}  // namespace lv::analysis::svg
