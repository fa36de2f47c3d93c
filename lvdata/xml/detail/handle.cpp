#include <lvdata/xml/detail/handle.h>

#include <tinyxml2.h>

namespace lv::detail {

static_assert(TINYXML2_MAJOR_VERSION > 8 || (TINYXML2_MAJOR_VERSION == 8 && TINYXML2_MINOR_VERSION >= 1),
              "lvdata needs tinyxml2 8.1 or newer");
static_assert(alignof(tinyxml2::XMLNode) >= 4, "the lowest bits of a node's address are free for marks");

tinyxml2::XMLNode* toNode(const XMLNode& wrapper) {
    return static_cast<tinyxml2::XMLNode*>(wrapper.get());
}

tinyxml2::XMLElement* toElement(const XMLNode& wrapper) {
    tinyxml2::XMLNode* const node = toNode(wrapper);
    return node == nullptr ? nullptr : node->ToElement();
}

tinyxml2::XMLDocument* toDocument(const XMLNode& wrapper) {
    tinyxml2::XMLNode* const node = toNode(wrapper);
    return node == nullptr ? nullptr : node->ToDocument();
}

void* toHandle(tinyxml2::XMLNode* node) {
    return node;
}

void* toHandle(tinyxml2::XMLElement* element) {
    return static_cast<tinyxml2::XMLNode*>(element);
}

}  // namespace lv::detail
