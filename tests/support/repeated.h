#pragma once

#include <cstddef>
#include <string>

namespace lv::test {

/// The text so many times.
[[nodiscard]] inline std::string repeated(const std::string& text, std::size_t count) {
    std::string result;
    result.reserve(text.size() * count);
    for (std::size_t index = 0; index < count; ++index) {
        result += text;
    }
    return result;
}

}  // namespace lv::test
