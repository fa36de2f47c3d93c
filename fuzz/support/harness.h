#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <stdexcept>
#include <string>

/// What every harness defines: feeds one input to the library. libFuzzer calls it, or `run_inputs.cpp` where there is
/// no libFuzzer. By its contract it returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace lv::fuzz {

/// The bytes of an input as the text that the library is handed.
inline std::string textOf(const std::uint8_t* data, std::size_t size) {
    std::string text(size, '\0');
    std::transform(data, std::next(data, static_cast<std::ptrdiff_t>(size)), text.begin(),
                   [](std::uint8_t byte) { return static_cast<char>(byte); });
    return text;
}

/// A promise that the library did not keep. No harness catches it: libFuzzer sees the program end and keeps the input.
class Find : public std::logic_error {
    using std::logic_error::logic_error;
};

inline void check(bool kept, const std::string& promise) {
    if (!kept) {
        throw Find("not kept: " + promise);
    }
}

inline void checkEqual(const std::string& actual, const std::string& expected, const std::string& promise) {
    check(actual == expected, promise + "\n--- actual\n" + actual + "\n--- expected\n" + expected + "\n---");
}

}  // namespace lv::fuzz
