#pragma once

#include <lvdata/analysis/Shape.h>

#include <string>

namespace lv::analysis {

/// An XML Schema (1.0) of the documents that a record prints: its elements and attributes, in the order of writing,
/// with the forms of their texts. XML Schema cannot express dependencies between places; annotations state them in
/// words.
///
/// \param root  the shape of the record's root element
/// \return the text of the schema, with a declaration, indented
[[nodiscard]] std::string xsd(const Shape& root);

}  // namespace lv::analysis
