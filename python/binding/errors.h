#pragma once

#include <string>

namespace lv::python {

/// Raises the exception `lvdata.ParseError`. Needs the GIL.
///
/// \param line  counted from 1; 0 when no line applies
[[noreturn]] void raiseParseError(const std::string& reason, int line);

}  // namespace lv::python
