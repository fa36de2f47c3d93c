#include <lvdata/core/checked.h>
#include <lvdata/core/detail/array_lengths.h>
#include <lvdata/core/detail/colour_notation.h>
#include <lvdata/core/detail/fixed_point.h>
#include <lvdata/core/quantities.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace lv {
namespace {

using ColourMembers = std::vector<double colour::*>;

template <std::size_t Size>
ColourMembers all(const detail::Notation<Size>& notation) {
    return {notation.begin(), notation.end()};
}

/// The members of a colour that the quantity applies to; none when it does not apply to colours.
ColourMembers colourMembers(const Quantity& quantity) {
    if (quantity == quantities::codeValue) {
        return all(detail::rgb);
    }
    if (quantity == quantities::inkAmount) {
        return all(detail::cmyk);
    }
    if (quantity == quantities::cielab) {
        return all(detail::cielab);
    }
    const bool isXYZ = quantity == quantities::tristimulus || quantity == quantities::pqr;
    return isXYZ ? all(detail::xyz) : ColourMembers();
}

bool isOneOf(std::initializer_list<std::size_t> lengths, std::size_t length) {
    return std::find(lengths.begin(), lengths.end(), length) != lengths.end();
}

bool isWrittenWith(std::size_t length, const Quantity& quantity) {
    if (quantity == quantities::matrixEntry) {
        return isOneOf(detail::matrixLengths, length);
    }
    if (quantity == quantities::tableEntry || quantity == quantities::hdrTableEntry) {
        return isOneOf(detail::tableLengths, length);
    }
    const std::size_t ofColour = colourMembers(quantity).size();
    return ofColour == 0 || length == ofColour;
}

template <class Number>
bool trySetNumber(Number& member, double value, const Quantity& quantity) {
    const std::optional<Number> stored = detail::checkedFixed<Number>(value, quantity.factor);
    member = stored.value_or(member);
    return stored.has_value();
}

template <class Number>
bool trySetArray(std::vector<Number>& member, const std::vector<double>& values, const Quantity& quantity) {
    std::vector<Number> stored(values.size());
    for (std::size_t index = 0; index < values.size(); ++index) {
        if (!trySetNumber(stored[index], values[index], quantity)) {
            return false;
        }
    }
    const bool isWritten = isWrittenWith(values.size(), quantity);
    if (isWritten) {
        member = std::move(stored);
    }
    return isWritten;
}

template <class Number>
bool trySetMembers(std::vector<Number>& member, const colour& value, const Quantity& quantity) {
    std::vector<double> values;
    for (const auto each : colourMembers(quantity)) {
        values.push_back(value.*each);
    }
    return !values.empty() && trySetArray(member, values, quantity);
}

}  // namespace

bool trySet(unsigned int& member, double value, const Quantity& quantity) {
    return trySetNumber(member, value, quantity);
}

bool trySet(int& member, double value, const Quantity& quantity) {
    return trySetNumber(member, value, quantity);
}

bool trySet(std::vector<unsigned int>& member, const std::vector<double>& values, const Quantity& quantity) {
    return trySetArray(member, values, quantity);
}

bool trySet(std::vector<int>& member, const std::vector<double>& values, const Quantity& quantity) {
    return trySetArray(member, values, quantity);
}

bool trySetColour(std::vector<unsigned int>& member, const colour& value, const Quantity& quantity) {
    return trySetMembers(member, value, quantity);
}

bool trySetColour(std::vector<int>& member, const colour& value, const Quantity& quantity) {
    return trySetMembers(member, value, quantity);
}

bool trySetChromaticity(unsigned int& x, unsigned int& y, const colour& value) {
    unsigned int storedX = 0;
    const bool fits =
        trySet(storedX, value.x, quantities::chromaticity) && trySet(y, value.y, quantities::chromaticity);
    x = fits ? storedX : x;
    return fits;
}

}  // namespace lv
