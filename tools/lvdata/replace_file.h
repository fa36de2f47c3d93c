#pragma once

#include <filesystem>
#include <string_view>

#include <sys/stat.h>

namespace tool {

/// Writes all of the text; throws `std::system_error` when not all of it can be written.
void writeAll(int descriptor, std::string_view text);

/// Puts a file with that text in the place of `target`, in one step: it is written beside it under a temporary name,
/// stored, and renamed. Throws `std::system_error` on failure; nothing in the folder has then changed.
///
/// \param old  the status of the file to be replaced, whose owner and permission bits the new one gets; null when there
///             is none
void replaceFile(const std::filesystem::path& target, const struct stat* old, std::string_view text);

}  // namespace tool
