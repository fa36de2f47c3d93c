#pragma once

#include <string>

namespace lv::test {

/// Variations of a document, made by the XML library alone. They take and give compact text.

[[nodiscard]] std::string withRootNamed(const std::string& text, const std::string& name);

/// The root's attribute set to this value.
[[nodiscard]] std::string withRootAttribute(const std::string& text, const std::string& name, const std::string& value);

/// Another text in every element that holds one, and of the same kind: another value for every member.
[[nodiscard]] std::string withOtherTexts(const std::string& text);

/// The same for the attributes.
[[nodiscard]] std::string withOtherAttributes(const std::string& text);

/// The elements and their attributes, without what is written between them.
[[nodiscard]] std::string withoutTexts(const std::string& text);

/// Adds, after each element that holds only text, another one with the same name and a different text.
[[nodiscard]] std::string withRepeatedLeaves(const std::string& text);

/// Around each child of an element unknown elements and comments, and in each element an unknown attribute.
[[nodiscard]] std::string withUnknownContent(const std::string& text);

/// The root's children inside one more element.
[[nodiscard]] std::string withChildrenOneLevelDeeper(const std::string& text);

/// The children of an element in reverse order, except where some share a name and their order matters.
[[nodiscard]] std::string withChildrenReversed(const std::string& text);

}  // namespace lv::test
