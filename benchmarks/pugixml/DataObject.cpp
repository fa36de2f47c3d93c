#include <benchmarks/pugixml/handle.h>

#include <lvdata/core/detail/record.h>

namespace lv {

DataObject::~DataObject() = default;

XMLElement DataObject::appendRootXMLElement(const std::string& name, XMLNode& parent) const {
    return detail::Writer(XMLElement(parent.get())).element(name.c_str()).xmlElement();
}

}  // namespace lv
