#pragma once

#include <lvdata/core/Quantity.h>
#include <lvdata/core/detail/DraftCondition.h>
#include <lvdata/xml/property.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

namespace lv::detail {

// The conditions of the gates in a record's visit: `Reader` and `Writer` ask whether they hold (`holds`), the
// `Describer` asks what they say (`describeTo`). A condition refers to members, and is used up in the statement that
// makes it. "And" is two gates in a row.

/// The base of all conditions: nothing else is one, least of all a bool.
struct GateCondition {};

template <class Gate>
using RequireCondition = std::enable_if_t<std::is_base_of_v<GateCondition, Gate>>;

/// What a member is compared with: a text that is known at compile time, and so is its length, or a number.
template <class T>
using Comparand = std::conditional_t<std::is_same_v<T, std::string>, std::string_view, T>;

[[nodiscard]] inline bool isEqualTo(const std::string& text, std::string_view expected) {
    return text.size() == expected.size() && std::memcmp(text.data(), expected.data(), expected.size()) == 0;
}

[[nodiscard]] inline bool isEqualTo(unsigned int number, unsigned int expected) {
    return number == expected;
}

/// See `oneOf` and `noneOf`.
template <class T, std::size_t Size, Condition::Kind Kind>
struct Comparison : GateCondition {
    const T& subject;
    std::array<Comparand<T>, Size> comparands;

    Comparison(const T& member, const std::array<Comparand<T>, Size>& expected)
        : subject(member),
          comparands(expected) {}

    [[nodiscard]] bool holds() const {
        const bool isOne = std::any_of(comparands.begin(), comparands.end(),
                                       [this](const Comparand<T>& comparand) { return isEqualTo(subject, comparand); });
        return isOne == (Kind == Condition::Kind::oneOf);
    }

    const DraftCondition* describeTo(Draft& draft) const {
        return draftComparison(draft, Kind, &subject, comparands.data(), Size);
    }
};

/// The member is one of these texts or numbers.
template <class T, class... Comparands>
[[nodiscard]] auto oneOf(const T& subject, const Comparands&... comparands) {
    return Comparison<T, sizeof...(Comparands), Condition::Kind::oneOf>(subject, {Comparand<T>(comparands)...});
}

template <class T, class... Comparands>
void oneOf(const T&& subject, const Comparands&... comparands) = delete;

template <std::size_t Size>
[[nodiscard]] auto oneOf(const unsigned int& subject, const std::array<unsigned int, Size>& comparands) {
    return Comparison<unsigned int, Size, Condition::Kind::oneOf>(subject, comparands);
}

/// The member is none of these texts.
template <class T, class... Comparands>
[[nodiscard]] auto noneOf(const T& subject, const Comparands&... comparands) {
    return Comparison<T, sizeof...(Comparands), Condition::Kind::noneOf>(subject, {Comparand<T>(comparands)...});
}

template <class T, class... Comparands>
void noneOf(const T&& subject, const Comparands&... comparands) = delete;

/// See `isSet`.
struct IsSet : GateCondition {
    const bool& flag;

    explicit IsSet(const bool& memberFlag) : flag(memberFlag) {}

    [[nodiscard]] bool holds() const { return flag; }
    const DraftCondition* describeTo(Draft& draft) const { return draftOfOne(draft, Condition::Kind::isSet, &flag); }
};

/// The flag is set.
[[nodiscard]] inline IsSet isSet(const bool& flag) {
    return IsSet(flag);
}

template <class T>
[[nodiscard]] IsSet isSet(const property<T>& member) {
    return IsSet(member.hasValue);
}

void isSet(const bool&& flag) = delete;

template <class T>
void isSet(const property<T>&& member) = delete;

/// See `notEmpty`.
template <class T>
struct NotEmpty : GateCondition {
    const T& subject;

    explicit NotEmpty(const T& member) : subject(member) {}

    [[nodiscard]] bool holds() const { return !subject.empty(); }
    const DraftCondition* describeTo(Draft& draft) const {
        return draftOfOne(draft, Condition::Kind::notEmpty, &subject);
    }
};

/// The string has characters, the array has entries.
template <class T>
[[nodiscard]] NotEmpty<T> notEmpty(const T& subject) {
    return NotEmpty<T>(subject);
}

template <class T>
void notEmpty(const T&& subject) = delete;

/// See `haveEntries`.
template <class Number, std::size_t Size>
struct HaveEntries : GateCondition {
    std::size_t entries;
    std::array<const std::vector<Number>*, Size> subjects;

    HaveEntries(std::size_t count, const std::array<const std::vector<Number>*, Size>& arrays)
        : entries(count),
          subjects(arrays) {}

    [[nodiscard]] bool holds() const {
        return std::all_of(subjects.begin(), subjects.end(),
                           [this](const std::vector<Number>* array) { return array->size() == entries; });
    }

    const DraftCondition* describeTo(Draft& draft) const {
        std::array<const void*, Size> addresses{};
        std::copy(subjects.begin(), subjects.end(), addresses.begin());
        return draftEntries(draft, entries, addresses.data(), Size);
    }
};

/// Each of the arrays has exactly that many entries.
template <class Number, class... Arrays>
[[nodiscard]] auto haveEntries(std::size_t entries, const std::vector<Number>& first, const Arrays&... others) {
    return HaveEntries<Number, sizeof...(Arrays) + 1>(entries, {&first, &others...});
}

/// See `anyOf`.
template <class... Conditions>
struct AnyOf : GateCondition {
    std::tuple<Conditions...> alternatives;

    explicit AnyOf(const Conditions&... conditions) : alternatives(conditions...) {}

    [[nodiscard]] bool holds() const {
        return std::apply([](const auto&... each) { return (each.holds() || ...); }, alternatives);
    }

    const DraftCondition* describeTo(Draft& draft) const {
        const auto all =
            std::apply([&draft](const auto&... each) { return std::array{each.describeTo(draft)...}; }, alternatives);
        return draftAnyOf(draft, all.data(), all.size());
    }
};

/// At least one of the conditions holds.
template <class... Conditions>
[[nodiscard]] AnyOf<Conditions...> anyOf(const Conditions&... conditions) {
    return AnyOf<Conditions...>(conditions...);
}

/// The record that is printed has `writeHLGSystemGamma` set. Only a writer knows that, so there is no `holds`.
struct HLGSwitch : GateCondition {
    static const DraftCondition* describeTo(Draft& draft) { return draftHLGSwitch(draft); }
};

/// See `rule`.
template <std::size_t Size>
struct Rule : GateCondition {
    const char* words;
    bool isKept;
    std::array<const void*, Size> subjects;

    Rule(const char* text, bool isTrue, const std::array<const void*, Size>& members)
        : words(text),
          isKept(isTrue),
          subjects(members) {}

    [[nodiscard]] bool holds() const { return isKept; }
    const DraftCondition* describeTo(Draft& draft) const { return draftRule(draft, words, subjects.data(), Size); }
};

/// A rule about these members that the other conditions cannot say: in words, and whether it is kept.
template <class... Members>
[[nodiscard]] auto rule(const char* words, bool isKept, const Members&... members) {
    return Rule<sizeof...(Members)>(words, isKept, {&members...});
}

/// See `when`.
template <class Gate>
struct QuantityWhen {
    Gate condition;
    const Quantity& quantity;
};

/// A quantity that counts when a condition holds, for `choose`.
template <class Gate, class = RequireCondition<Gate>>
[[nodiscard]] QuantityWhen<Gate> when(const Gate& condition, const Quantity& quantity) {
    return {condition, quantity};
}

/// See `choose`.
template <class... Gates>
struct QuantityChoice {
    const Quantity& usual;
    std::tuple<QuantityWhen<Gates>...> others;

    [[nodiscard]] const Quantity& chosen() const {
        const Quantity* result = nullptr;
        const auto consider = [&result](const auto& other) {
            if (result == nullptr && other.condition.holds()) {
                result = &other.quantity;
            }
        };
        std::apply([&consider](const auto&... each) { (consider(each), ...); }, others);
        return result == nullptr ? usual : *result;
    }
};

/// The first quantity whose condition holds, otherwise the usual one.
template <class... Gates>
[[nodiscard]] QuantityChoice<Gates...> choose(const Quantity& usual, const QuantityWhen<Gates>&... others) {
    return {usual, {others...}};
}

}  // namespace lv::detail
