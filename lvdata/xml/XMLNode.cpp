#include <lvdata/xml/XMLNode.h>
#include <lvdata/xml/detail/handle.h>

namespace lv {

XMLNode::~XMLNode() = default;

int XMLNode::type() const {
    if (detail::toDocument(node_) != nullptr) {
        return 1;
    }
    return detail::toElement(node_) != nullptr ? 2 : 0;
}

}  // namespace lv
