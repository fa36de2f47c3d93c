#include <benchmarks/pugixml/handle.h>

#include <lvdata/xml/XMLElement.h>

namespace lv {

std::string XMLElement::elementName() const {
    return detail::toNode(get()).name();
}

}  // namespace lv
