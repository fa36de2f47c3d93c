#pragma once

#include <lvdata/xml/XMLNode.h>

namespace tinyxml2 {
class XMLDocument;
class XMLElement;
class XMLNode;
}  // namespace tinyxml2

namespace lv::detail {

/// The XML library's node behind a wrapper; null when the wrapper is invalid.
[[nodiscard]] tinyxml2::XMLNode* toNode(const XMLNode& wrapper);

/// The same narrowed to an element or a document; null also when the node is of another kind.
[[nodiscard]] tinyxml2::XMLElement* toElement(const XMLNode& wrapper);
[[nodiscard]] tinyxml2::XMLDocument* toDocument(const XMLNode& wrapper);

/// The untyped handle that a wrapper is made from: the pointer to the node's base class.
[[nodiscard]] void* toHandle(tinyxml2::XMLNode* node);
[[nodiscard]] void* toHandle(tinyxml2::XMLElement* element);

}  // namespace lv::detail
