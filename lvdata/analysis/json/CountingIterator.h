#pragma once

#include <cstddef>
#include <iterator>
#include <string>

// Shared by readers of JSON, to report the line of an error.

namespace lv::analysis {

/// The line of the character that was read last. The parser reads one character beyond a number; where that is the end
/// of the line, the number is still before it.
class Lines {
public:
    void pass(char character) {
        lines_ += last_ == '\n' ? 1 : 0;
        last_ = character;
    }

    [[nodiscard]] int current() const { return lines_; }

private:
    int lines_ = 1;
    char last_ = '\0';
};

/// Iterates over a text and counts its lines. Copies share the count.
class CountingIterator {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* position, Lines& lines) : position_(position), lines_(&lines) {}

    reference operator*() const { return *position_; }

    CountingIterator& operator++() {
        lines_->pass(*position_);
        ++position_;
        return *this;
    }

    CountingIterator operator++(int) {
        const CountingIterator before = *this;
        ++*this;
        return before;
    }

    friend bool operator==(const CountingIterator& left, const CountingIterator& right) {
        return left.position_ == right.position_;
    }
    friend bool operator!=(const CountingIterator& left, const CountingIterator& right) { return !(left == right); }

private:
    const char* position_;
    Lines* lines_;
};

/// "unexpected '}'; expected string literal" of a longer message that quotes the text.
[[nodiscard]] inline std::string plainReason(const std::string& message) {
    const std::string separator = " - ";
    const std::size_t begin = message.find(separator);
    const std::string reason = begin == std::string::npos ? message : message.substr(begin + separator.size());
    return reason.substr(0, reason.find("; last read: "));
}

}  // namespace lv::analysis
