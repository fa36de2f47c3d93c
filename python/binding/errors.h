#pragma once

#include <string>
#include <system_error>

namespace lv::python {

/// Raises the exception `lvdata.ParseError`. Needs the GIL.
///
/// \param line  counted from 1; 0 when no line applies
/// \param path  the place in a JSON text; empty when none applies
[[noreturn]] void raiseParseError(const std::string& reason, int line, const std::string& path = {});

/// Raises the `OSError` of the system for a file. Needs the GIL.
[[noreturn]] void raiseOSError(const std::error_code& error, const std::string& file);

}  // namespace lv::python
