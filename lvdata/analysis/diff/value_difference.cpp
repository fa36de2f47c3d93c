#include <lvdata/analysis/content.h>
#include <lvdata/analysis/diff/value_difference.h>

#include <lvdata/analysis/diff/StoredValue.h>
#include <lvdata/core/quantities.h>

#include <utility>

namespace lv::analysis {
namespace {

using Content = Difference::Content;

/// Whether a difference is within the limits that apply to it; false when none applies.
class Verdict {
public:
    /// Compares a size with its limit, if there is one; no value: the size is not known, so the limit does not apply.
    void consider(std::optional<double> limit, std::optional<double> size) {
        if (limit && size) {
            isExceeded_ = isExceeded_ || *size > *limit;
            isLimited_ = true;
        }
    }

    [[nodiscard]] bool isWithin() const { return isLimited_ && !isExceeded_; }

private:
    bool isLimited_ = false;
    bool isExceeded_ = false;
};

bool isTable(const StoredArray& array) {
    constexpr std::size_t shownEntries = 9;  // those of the emulation matrix
    return array.numbers.size() > shownEntries;
}

std::string joined(const StoredArray& array) {
    std::string text;
    for (const std::int64_t number : array.numbers) {
        text += (text.empty() ? "" : ", ") + shownNumber(number, *array.quantity);
    }
    return text;
}

/// The largest change of one entry, in natural values; no value when the entries are not comparable.
std::optional<double> largestSize(const ComparedArrays& compared) {
    return compared.largest ? std::optional(compared.largest->size) : std::nullopt;
}

TableChange tableChange(const StoredArray& before, const StoredArray& after, const ComparedArrays& compared) {
    TableChange table{before.numbers.size(), after.numbers.size(), compared.differing, {}};
    if (compared.largest && compared.differing > 0) {
        const std::size_t index = compared.largest->index;
        table.largest = TableChange::Entry{index, shownNumber(before.numbers[index], *before.quantity),
                                           shownNumber(after.numbers[index], *after.quantity), compared.largest->change,
                                           shownUnit(*after.quantity)};
    }
    return table;
}

bool isTristimulus(const StoredArray& array) {
    return array.quantity != nullptr && *array.quantity == quantities::tristimulus && array.numbers.size() == 3;
}

std::optional<colour::Lab> labOf(const StoredArray& array, const std::optional<ReferenceWhite>& white) {
    if (!white) {
        return std::nullopt;
    }
    const auto at = [&](std::size_t index) {
        return static_cast<double>(array.numbers[index]);
    };
    return colour::lab({at(0), at(1), at(2)}, white->value);
}

bool isItself(const Position& position, const std::optional<ReferenceWhite>& white) {
    return white && (white->element == position.node || white->element == position.parent);
}

ColourChange ofTristimulus(const ValuePair& pair, const StoredArray& before, const StoredArray& after, Judge& judge) {
    ColourChange change;
    change.formula = ColourChange::Formula::deltaE2000;
    const auto whiteBefore = judge.whitesBefore.of(pair.before);
    const auto whiteAfter = judge.whitesAfter.of(pair.after);
    if (!whiteBefore || !whiteAfter) {
        change.reason = whiteBefore  ? "no reference white after the change"
                        : whiteAfter ? "no reference white before the change"
                                     : "no reference white";
        return change;
    }
    change.whiteBefore = whiteBefore->source;
    change.whiteAfter = whiteAfter->source;
    if (isItself(pair.before, whiteBefore) || isItself(pair.after, whiteAfter)) {
        change.reason = "it is the reference white itself";
        return change;
    }
    change.size = colour::deltaE2000(*labOf(before, whiteBefore), *labOf(after, whiteAfter));
    return change;
}

/// The exact difference of two numbers that are alone.
std::string changeOf(const ComparedArrays& compared) {
    return compared.largest ? compared.largest->change : "";
}

bool hasSameQuantity(const StoredArray& before, const StoredArray& after) {
    return *before.quantity == *after.quantity && before.numbers.size() == after.numbers.size();
}

/// The numbers of both sides.
struct NumberPair {
    StoredArray before;
    StoredArray after;
    ComparedArrays compared;
};

/// The values, or for a table a summary of the changes.
Difference shownNumbers(const NumberPair& numbers, bool isArray) {
    Difference difference;
    const bool isLarge = isTable(numbers.before) || isTable(numbers.after);
    difference.content = isLarge ? Content::table : Content::other;
    if (!isLarge) {
        difference.before = Difference::Value{joined(numbers.before), shownUnit(*numbers.before.quantity)};
        difference.after = Difference::Value{joined(numbers.after), shownUnit(*numbers.after.quantity)};
    }
    if (isArray) {
        difference.table = tableChange(numbers.before, numbers.after, numbers.compared);
    } else {
        difference.change = changeOf(numbers.compared);
    }
    return difference;
}

Verdict verdictOf(const NumberPair& numbers, const Difference& difference, const Tolerances& tolerances) {
    Verdict verdict;
    if (hasSameQuantity(numbers.before, numbers.after)) {
        verdict.consider(tolerances.of(numbers.before.quantity->name), largestSize(numbers.compared));
    }
    if (difference.colour) {
        verdict.consider(tolerances.of(Tolerances::de00), difference.colour->size);
    }
    return verdict;
}

JudgedDifference numbersDifference(const ValuePair& pair, Judge& judge) {
    NumberPair numbers = {storedArray(pair.before), storedArray(pair.after), {}};
    numbers.compared = compareArrays(numbers.before, numbers.after);
    Difference difference = shownNumbers(numbers, isArray(pair.before.shape->facts().content));
    if (isTristimulus(numbers.before) && isTristimulus(numbers.after)) {
        difference.colour = ofTristimulus(pair, numbers.before, numbers.after, judge);
    }
    const bool isWithin = verdictOf(numbers, difference, judge.tolerances).isWithin();
    return {std::move(difference), isWithin};
}

JudgedDifference textsDifference(const ValuePair& pair) {
    JudgedDifference result;
    result.difference.content = contentAt(pair.before);
    result.difference.before = shownValue(pair.before);
    result.difference.after = shownValue(pair.after);
    return result;
}

bool isSameQuantity(const ValuePair& pair) {
    const Quantity* const before = quantityAt(pair.before);
    const Quantity* const after = quantityAt(pair.after);
    return before == nullptr || after == nullptr || *before == *after;
}

colour::Chromaticity chromaticity(const StoredArray& x, const StoredArray& y) {
    const auto valueOf = [](const StoredArray& stored) {
        return static_cast<double>(stored.numbers.front()) / stored.quantity->factor;
    };
    return {valueOf(x), valueOf(y)};
}

/// x and y of one document.
struct Coordinates {
    StoredArray x;
    StoredArray y;
};

Difference::Value shownCoordinates(const Coordinates& coordinates) {
    return {joined(coordinates.x) + ", " + joined(coordinates.y), shownUnit(*coordinates.x.quantity)};
}

ColourChange ofChromaticity(const Coordinates& before, const Coordinates& after) {
    ColourChange change;
    const auto left = colour::uniform(chromaticity(before.x, before.y));
    const auto right = colour::uniform(chromaticity(after.x, after.y));
    if (left && right) {
        change.size = colour::distance(*left, *right);
    } else {
        change.reason = "x and y are not those of a colour";
    }
    return change;
}

}  // namespace

Content contentAt(const Position& position) {
    if (storedText(position) == nullptr) {
        return Content::group;
    }
    if (!isNumeric(position.shape->facts().content)) {
        return position.shape->facts().content == Description::Content::string ? Content::string : Content::other;
    }
    return isTable(storedArray(position)) ? Content::table : Content::other;
}

std::optional<Difference::Value> shownValue(const Position& position) {
    switch (contentAt(position)) {
    case Content::group:
    case Content::table:
        return std::nullopt;
    default:
        break;
    }
    if (!isNumeric(position.shape->facts().content)) {
        return Difference::Value{std::string(*storedText(position)), ""};
    }
    const StoredArray array = storedArray(position);
    return Difference::Value{joined(array), shownUnit(*array.quantity)};
}

std::optional<JudgedDifference> valueDifference(const ValuePair& pair, Judge& judge) {
    if (*storedText(pair.before) == *storedText(pair.after) && isSameQuantity(pair)) {
        return std::nullopt;
    }
    return isNumeric(pair.before.shape->facts().content) ? numbersDifference(pair, judge) : textsDifference(pair);
}

std::optional<JudgedDifference> chromaticityDifference(const ValuePair& x, const ValuePair& y, const Judge& judge) {
    const Coordinates before = {storedArray(x.before), storedArray(y.before)};
    const Coordinates after = {storedArray(x.after), storedArray(y.after)};
    const ComparedArrays inX = compareArrays(before.x, after.x);
    const ComparedArrays inY = compareArrays(before.y, after.y);
    if (inX.differing + inY.differing == 0) {
        return std::nullopt;
    }
    JudgedDifference result;
    result.difference.content = Content::other;
    result.difference.before = shownCoordinates(before);
    result.difference.after = shownCoordinates(after);
    result.difference.colour = ofChromaticity(before, after);
    Verdict verdict;
    verdict.consider(judge.tolerances.of(quantities::chromaticity.name), largestSize(inX));
    verdict.consider(judge.tolerances.of(quantities::chromaticity.name), largestSize(inY));
    verdict.consider(judge.tolerances.of(Tolerances::duv), result.difference.colour->size);
    result.isWithinTolerance = verdict.isWithin();
    return result;
}

}  // namespace lv::analysis
