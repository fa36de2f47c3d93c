#pragma once

namespace tinyxml2 {
class XMLDocument;
class XMLElement;
class XMLNode;
}  // namespace tinyxml2

namespace lv::detail {

/// An untyped handle as the XML library's node it points at; null stays null.
[[nodiscard]] tinyxml2::XMLNode* toNode(void* handle);

/// The handle narrowed to an element or a document; null when it is null or points at a node of another kind.
[[nodiscard]] tinyxml2::XMLElement* toElement(void* handle);
[[nodiscard]] tinyxml2::XMLDocument* toDocument(void* handle);

/// The handle of a node, the pointer to its base class `tinyxml2::XMLNode`.
[[nodiscard]] void* toHandle(tinyxml2::XMLNode* node);

}  // namespace lv::detail
