#pragma once

#include <lvdata/analysis/Document.h>
#include <lvdata/xml/Limits.h>

#include <string>

namespace tool {

/// The whole text of an input. Throws `Failure` when it cannot be read or exceeds a limit.
[[nodiscard]] std::string readText(const std::string& file, const lv::Limits& limits);

/// The document that an input holds. Throws `Failure` when there is none.
[[nodiscard]] lv::analysis::Document readDocument(const std::string& file, const lv::Limits& limits,
                                                  const lv::analysis::Catalogue& catalogue);

}  // namespace tool
