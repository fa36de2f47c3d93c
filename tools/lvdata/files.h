#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tool {

/// What stands for standard input, or standard output, in place of a file's name.
inline constexpr std::string_view standardStream = "-";

/// How messages call the input of that name.
[[nodiscard]] std::string inputName(const std::string& file);

/// The whole content of the file, or of standard input. Throws `Failure` when it cannot be read, or when there is more
/// than `limit` bytes of it: a single one beyond is read, so that a device or a pipe without end is no trap.
[[nodiscard]] std::string readInput(const std::string& file, std::size_t limit);

}  // namespace tool
