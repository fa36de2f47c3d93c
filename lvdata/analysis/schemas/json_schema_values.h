#pragma once

#include <lvdata/analysis/Shape.h>

#include <string>
#include <vector>

namespace lv::analysis {

/// The text as a string of JSON, in quotation marks.
[[nodiscard]] std::string quotedJSON(const std::string& text);

/// The texts as strings of JSON, in brackets.
[[nodiscard]] std::string quotedJSON(const std::vector<std::string>& texts);

/// What a JSON Schema says of the value of what is described: `"type": "integer", "minimum": 0, ...`.
[[nodiscard]] std::string valueSchema(const Description& facts);

}  // namespace lv::analysis
