#pragma once

#include <lvdata/analysis/Shape.h>

#include <string>

namespace lv::analysis {

/// A JSON Schema (2020-12) of the JSON form of the documents that a record prints: keys, required keys, and the types,
/// ranges and lengths of values. Dependencies between places are not checked; descriptions state them in words.
///
/// \param root  the shape of the record's root element
/// \return the text of the schema, indented
[[nodiscard]] std::string jsonSchema(const Shape& root);

}  // namespace lv::analysis
