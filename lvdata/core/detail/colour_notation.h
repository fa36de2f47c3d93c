#pragma once

#include <lvdata/core/colour.h>
#include <lvdata/core/detail/fixed_point.h>

#include <array>
#include <cstddef>
#include <vector>

namespace lv::detail {

/// The members of a colour that one notation uses, in stored order.
template <std::size_t Size>
using Notation = std::array<double colour::*, Size>;

inline constexpr Notation<3> rgb = {&colour::red, &colour::green, &colour::blue};
inline constexpr Notation<4> cmyk = {&colour::cyan, &colour::magenta, &colour::yellow, &colour::black};
inline constexpr Notation<3> xyz = {&colour::X, &colour::Y, &colour::Z};
inline constexpr Notation<3> cielab = {&colour::L, &colour::a, &colour::b};

/// A colour from stored numbers: all zero when they are fewer than the notation needs; further ones are ignored.
template <std::size_t Size, class Number>
[[nodiscard]] colour to_colour(const Notation<Size>& members, const std::vector<Number>& stored, double factor) {
    colour result;
    if (stored.size() >= Size) {
        for (std::size_t index = 0; index < Size; ++index) {
            result.*members[index] = from_fixed(stored[index], factor);
        }
    }
    return result;
}

/// The stored numbers of a colour: as many as the notation has members.
template <class Number, std::size_t Size>
[[nodiscard]] std::vector<Number> from_colour(const Notation<Size>& members, const colour& source, double factor) {
    std::vector<Number> stored;
    stored.reserve(Size);
    for (const auto member : members) {
        stored.push_back(to_fixed<Number>(source.*member, factor));
    }
    return stored;
}

}  // namespace lv::detail
