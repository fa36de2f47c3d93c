#pragma once

#include <lvdata/xml/XMLNode.h>
#include <lvdata/xml/detail/handle.h>

#include <pugixml.hpp>

namespace lv::detail {

// In this style an element points at a node of pugixml. Null is its empty node, which takes every call and does
// nothing. NOLINTBEGIN(*-reinterpret-cast)

[[nodiscard]] inline pugi::xml_node pugixmlNode(const tinyxml2::XMLElement* element) {
    return pugi::xml_node(reinterpret_cast<pugi::xml_node_struct*>(const_cast<tinyxml2::XMLElement*>(element)));
}

[[nodiscard]] inline tinyxml2::XMLElement* toElement(const pugi::xml_node& node) {
    return reinterpret_cast<tinyxml2::XMLElement*>(node.internal_object());
}

// NOLINTEND(*-reinterpret-cast)

}  // namespace lv::detail
