#pragma once

#include <lvdata/analysis/Document.h>
#include <lvdata/xml/Limits.h>

#include <string>

namespace tool {

/// The whole text of an input. Throws `Failure` when it cannot be read or exceeds a limit.
[[nodiscard]] std::string readText(const std::string& file, const lv::Limits& limits);

/// The document in a text that was already read. Throws `Failure` with that name when it exceeds a limit or is not a
/// document of a record.
[[nodiscard]] lv::analysis::Document documentOf(const std::string& text, const std::string& name,
                                                const lv::Limits& limits, const lv::analysis::Catalogue& catalogue);

/// The document that an input holds. Throws `Failure` when there is none.
[[nodiscard]] lv::analysis::Document readDocument(const std::string& file, const lv::Limits& limits,
                                                  const lv::analysis::Catalogue& catalogue);

}  // namespace tool
