#include <lvdata/xml/XMLNode.h>
#include <lvdata/xml/detail/handle.h>

namespace lv {

XMLNode::~XMLNode() = default;

int XMLNode::type() const {
    if (detail::toDocument(*this) != nullptr) {
        return documentType;
    }
    return detail::toElement(*this) != nullptr ? elementType : otherType;
}

}  // namespace lv
