#include <benchmarks/pugixml/handle.h>

namespace lv::detail {

tinyxml2::XMLElement* toElement(const XMLNode& wrapper) {
    return static_cast<tinyxml2::XMLElement*>(wrapper.get());
}

void* toHandle(tinyxml2::XMLElement* element) {
    return element;
}

}  // namespace lv::detail
