#pragma once

#include <pugixml.hpp>

namespace lv::detail {

// In this style a handle points at a node of pugixml. Null is its empty node, which takes every call and does nothing.

[[nodiscard]] inline pugi::xml_node toNode(void* handle) {
    return pugi::xml_node(static_cast<pugi::xml_node_struct*>(handle));
}

[[nodiscard]] inline void* toHandle(const pugi::xml_node& node) {
    return node.internal_object();
}

}  // namespace lv::detail
