#include <lvdata/xml/XMLNode.h>
#include <lvdata/xml/detail/handle.h>

namespace lv {

XMLNode::~XMLNode() = default;

int XMLNode::type() const {
    if (detail::toDocument(node_) != nullptr) {
        return documentType;
    }
    return detail::toElement(node_) != nullptr ? elementType : otherType;
}

}  // namespace lv
