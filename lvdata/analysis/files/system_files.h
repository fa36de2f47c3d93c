#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>

namespace lv::analysis {

// What each system has its own calls for. Descriptors are those of the C library, and so that a line break stays one
// byte, none of these functions cares about text modes. They throw `std::system_error`.

/// Opens a file and returns its descriptor, which no program that is started meanwhile inherits.
[[nodiscard]] int openForReading(const std::filesystem::path& path);

/// Reads up to so many bytes; 0 at the end.
[[nodiscard]] std::size_t readSome(int descriptor, char* block, std::size_t size);

/// Writes all of the text.
void writeAll(int descriptor, std::string_view text);

/// Closes a descriptor; negative, with `errno`, when the last bytes could not be stored. Does not throw.
int closeDescriptor(int descriptor) noexcept;

/// What `writeFile` promises.
void writeTo(const std::filesystem::path& path, std::string_view text);

}  // namespace lv::analysis
