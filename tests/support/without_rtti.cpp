#include <tests/support/without_rtti.h>

#include <lvdata/core/DataArrayObject.h>
#include <lvdata/xml/XMLDocument.h>

#include <tinyxml2.h>

#if defined(__cpp_rtti)
#error "to be compiled without RTTI"
#endif

namespace lv::test {
namespace {

class OwnDocument : public tinyxml2::XMLDocument {};

class OwnWrapper : public XMLNode {
public:
    using XMLNode::XMLNode;
};

/// Not one of the library's records: those that derive from one need RTTI.
class OwnList : public DataArrayObject<int> {
public:
    OwnList() : DataArrayObject(1, 2) {}

    bool parseXMLElement(XMLElement element) override { return element.elementName() == "List"; }

    XMLElement appendXMLElement(XMLNode& parent) const override {
        return appendVersionAttribute(appendRootXMLElement("List", parent));
    }
};

}  // namespace

std::string ownListPrintedWithoutRtti() {
    return OwnList().toXMLString(false, false);
}

std::string printedWithoutRtti(const DataObject& record) {
    OwnDocument document;
    OwnWrapper wrapper(static_cast<tinyxml2::XMLNode*>(&document));
    record.appendXMLElement(wrapper);
    return XMLDocument(wrapper.get()).toXMLString(false, false);
}

bool parsedWithoutRtti(DataObject& record, const std::string& text) {
    OwnDocument document;
    return document.Parse(text.c_str()) == tinyxml2::XML_SUCCESS && record.parseXMLElement(document.RootElement());
}

}  // namespace lv::test
