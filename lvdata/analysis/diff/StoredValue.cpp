#include <lvdata/analysis/diff/StoredValue.h>

#include <lvdata/analysis/decimal.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>

namespace lv::analysis {
namespace {

using Content = Description::Content;

/// What both kinds of stored integers are multiplied by, to be compared exactly.
struct Scales {
    std::int64_t before;
    std::int64_t after;
    std::uint32_t factor;  // of the result
};

/// No value when the quantities are of different kinds.
std::optional<Scales> scalesOf(const Quantity& before, const Quantity& after) {
    const std::uint32_t factor = std::max(before.factor, after.factor);
    if (before.unit != after.unit || factor % before.factor != 0 || factor % after.factor != 0) {
        return std::nullopt;
    }
    return Scales{factor / before.factor, factor / after.factor, factor};
}

bool isPowerOfTen(std::uint32_t factor) {
    return factor == 1 || decimalsOf(factor) != 0;
}

std::string decimalText(std::int64_t stored, std::uint32_t factor) {
    DecimalBuffer buffer;
    return std::string(naturalText(std::to_string(stored), decimalsOf(factor), buffer));
}

/// As it is shown: not divided by a factor that is not a power of ten. Correctly rounded, so that a limit that is typed
/// in as a decimal compares as expected.
double shownSize(std::int64_t difference, std::uint32_t factor) {
    return static_cast<double>(std::abs(difference)) / (isPowerOfTen(factor) ? factor : 1);
}

}  // namespace

std::vector<std::int64_t> storedNumbers(std::string_view text) {
    std::vector<std::int64_t> numbers;
    const char* const end = text.data() + text.size();
    for (const char* begin = text.data(); begin < end;) {
        std::int64_t number = 0;
        const auto [stop, error] = std::from_chars(begin, end, number);
        if (error != std::errc()) {
            break;
        }
        numbers.push_back(number);
        begin = stop == end ? end : stop + 1;
    }
    return numbers;
}

const std::string_view* storedText(const Position& position) {
    static constexpr std::string_view empty;
    if (position.shape->facts().content == Content::none) {
        return nullptr;
    }
    const bool isElement = position.node->kind == Node::Kind::element;
    const Node* const holder = isElement ? textOf(*position.node) : position.node;
    return holder == nullptr ? &empty : &holder->text;
}

StoredArray storedArray(const Position& position) {
    return {storedNumbers(*storedText(position)), quantityAt(position)};
}

ComparedArrays compareArrays(const StoredArray& before, const StoredArray& after) {
    const auto scales = scalesOf(*before.quantity, *after.quantity);
    const std::size_t common = std::min(before.numbers.size(), after.numbers.size());
    ComparedArrays result;
    std::int64_t largest = 0;
    std::size_t index = 0;
    for (std::size_t each = 0; each < common; ++each) {
        const std::int64_t difference =
            scales ? after.numbers[each] * scales->after - before.numbers[each] * scales->before
                   : after.numbers[each] - before.numbers[each];
        result.differing += difference != 0 ? 1 : 0;
        index = std::abs(difference) > std::abs(largest) ? each : index;
        largest = std::abs(difference) > std::abs(largest) ? difference : largest;
    }
    if (scales && common > 0) {
        result.largest =
            ComparedArrays::Largest{index, decimalText(largest, scales->factor), shownSize(largest, scales->factor)};
    }
    return result;
}

std::string shownNumber(std::int64_t stored, const Quantity& quantity) {
    return decimalText(stored, quantity.factor);
}

std::string shownUnit(const Quantity& quantity) {
    if (!isPowerOfTen(quantity.factor)) {
        return "1/" + std::to_string(quantity.factor);
    }
    return quantity.unit == unknownUnit ? "" : std::string(quantity.unit);
}

}  // namespace lv::analysis
