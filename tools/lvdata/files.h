#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tool {

/// The file name that stands for standard input or standard output.
inline constexpr std::string_view standardStream = "-";

/// The name of that input in messages.
[[nodiscard]] std::string inputName(const std::string& file);

/// The whole content of the file, or of standard input. Throws `Failure` when it cannot be read, or when there is more
/// than `limit` bytes of it: only one more byte is read, so that a device or a pipe without end does no harm.
[[nodiscard]] std::string readInput(const std::string& file, std::size_t limit);

}  // namespace tool
