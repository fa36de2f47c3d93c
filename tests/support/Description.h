#pragma once

#include <lvdata/xml/property.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace lv::test {

[[nodiscard]] std::string textOf(int value);
[[nodiscard]] std::string textOf(unsigned int value);
[[nodiscard]] std::string textOf(bool value);
[[nodiscard]] std::string textOf(double value);
[[nodiscard]] std::string textOf(const std::string& value);

template <class Number, std::enable_if_t<std::is_arithmetic_v<Number>, int> = 0>
[[nodiscard]] std::string textOf(const std::vector<Number>& numbers) {
    std::string text = std::to_string(numbers.size()) + " entries:";
    for (const Number number : numbers) {
        text += ' ' + textOf(number);
    }
    return text;
}

template <class T, class = void>
inline constexpr bool fitsOneLine = false;

template <class T>
inline constexpr bool fitsOneLine<T, std::void_t<decltype(textOf(std::declval<const T&>()))>> = true;

/// A value as text, one line per member: "redGain = 1000000 (set)", "hue = (unset)", "hue.red = 3",
/// "objects[1].RGB = 3 entries: 0 0 255".
///
/// A value with members of its own needs a function `describe(Description&, const T&)` in this namespace that hands
/// each of them to `member` or `rows`.
class Description {
public:
    [[nodiscard]] const std::string& text() const { return text_; }

    template <class T>
    void member(const std::string& name, const T& value) {
        if constexpr (fitsOneLine<T>) {
            line(name, textOf(value));
        } else {
            part(name, value);
        }
    }

    template <class T>
    void member(const std::string& name, const property<T>& value) {
        const std::string flag = value.hasValue ? "(set)" : "(unset)";
        if constexpr (fitsOneLine<T>) {
            line(name, textOf(value.value) + ' ' + flag);
        } else {
            line(name, flag);
            part(name, value.value);
        }
    }

    template <class Row>
    void rows(const std::string& name, const std::vector<Row>& rows) {
        line(name, std::to_string(rows.size()) + " rows");
        for (std::size_t index = 0; index < rows.size(); ++index) {
            part(name + '[' + std::to_string(index) + ']', rows[index]);
        }
    }

private:
    void line(const std::string& name, const std::string& value) { text_ += prefix_ + name + " = " + value + '\n'; }

    template <class T>
    void part(const std::string& name, const T& value) {
        const std::size_t outerLength = prefix_.size();
        prefix_ += name + '.';
        describe(*this, value);
        prefix_.resize(outerLength);
    }

    std::string prefix_;
    std::string text_;
};

}  // namespace lv::test
