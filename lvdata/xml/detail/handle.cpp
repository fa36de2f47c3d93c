#include <lvdata/xml/detail/handle.h>

#include <tinyxml2.h>

namespace lv::detail {

tinyxml2::XMLNode* toNode(void* handle) {
    return static_cast<tinyxml2::XMLNode*>(handle);
}

tinyxml2::XMLElement* toElement(void* handle) {
    tinyxml2::XMLNode* const node = toNode(handle);
    return node == nullptr ? nullptr : node->ToElement();
}

tinyxml2::XMLDocument* toDocument(void* handle) {
    tinyxml2::XMLNode* const node = toNode(handle);
    return node == nullptr ? nullptr : node->ToDocument();
}

void* toHandle(tinyxml2::XMLNode* node) {
    return node;
}

}  // namespace lv::detail
