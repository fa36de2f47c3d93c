#pragma once

#include <system_error>

namespace lv::analysis {

/// The reason of the last system call that failed, as the C library calls it where it has a name for it, so that
/// messages are in plain ASCII and the same on all systems.
[[nodiscard]] std::error_code lastError();

/// Throws `std::system_error` with that reason unless the call succeeded.
void require(bool succeeded);

}  // namespace lv::analysis
