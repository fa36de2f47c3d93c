// A record class of the application: it is read, written and nested like those of the library.

#include <lvdata/lvdata.h>

#include <iostream>
#include <string>

namespace {

/// Where a monitor stands, and the labels that are stuck to it.
class Workplace : public lv::DataObject {
public:
    static constexpr const char* rootElementName = "Workplace";

    Workplace() : DataObject(1, 0) {}  // the version that a fresh record writes

    bool parseXMLElement(lv::XMLElement element) override {
        if (element.elementName() != rootElementName) {
            return false;  // with nothing changed
        }
        parseVersionAttribute(element);
        element.getStringValue("Room", room);
        element.getUIntValue("Desk", desk);
        labels.parseXMLElement(element.getElement(lv::AssetInfo::rootElementName));
        return true;
    }

    lv::XMLElement appendXMLElement(lv::XMLNode& parent) const override {
        lv::XMLElement element = appendVersionAttribute(appendRootXMLElement(rootElementName, parent));
        element.appendChildString("Room", room, false);  // false: nothing when it is not set
        element.appendChildUInt("Desk", desk, false);
        labels.appendXMLElement(element);
        return element;
    }

    lv::property<std::string> room;
    lv::property<unsigned int> desk;
    lv::AssetInfo labels;
};

}  // namespace

int main() {
    Workplace workplace;
    workplace.room.set("Grading 2");
    workplace.labels.asset1.set("INV-2041");
    const std::string text = workplace.toXMLString(true, true);
    std::cout << text;

    Workplace copy;
    if (!copy.parseXML(text)) {
        return 1;
    }
    std::cout << "room: " << copy.room.value << ", label: " << copy.labels.asset1.value << '\n';
    std::cout << "desk known: " << (copy.desk.hasValue ? "yes" : "no") << '\n';
}
