#pragma once

#include <lvdata/analysis/schemas/TypeList.h>

#include <string>

namespace lv::analysis {

/// The text as character data of XML, and as the value of an attribute if it has no quotation marks.
[[nodiscard]] std::string escapedXML(const std::string& text);

/// The name of the simple type of what is described; adds the type to the list if XML Schema does not have it.
[[nodiscard]] std::string simpleTypeOf(const Shape& shape, TypeList& types);

/// The name of the simple type of an element's text, whichever of its texts there is. Only for one that has such.
[[nodiscard]] std::string textTypeOf(const Shape& element, TypeList& types);

/// The name of a type of texts that are one of these.
[[nodiscard]] std::string enumerationOf(const std::vector<std::string>& texts, const std::string& name,
                                        TypeList& types);

}  // namespace lv::analysis
