#include <lvdata/xml/XMLNode.h>

namespace lv {

XMLNode::~XMLNode() = default;

}  // namespace lv
