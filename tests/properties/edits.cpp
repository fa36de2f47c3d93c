#include <tests/properties/edits.h>

#include <array>
#include <cstddef>

#include <tinyxml2.h>

namespace lv::test {
namespace {

using tinyxml2::XMLElement;

constexpr std::array texts = {"",
                              " ",
                              "42",
                              " 42",
                              "+7",
                              "-1",
                              "-0007",
                              "12abc",
                              "12.9",
                              "abc",
                              "-",
                              "99999999999",
                              "true",
                              "TRUE",
                              "True",
                              "false",
                              "|",
                              "1|2|3",
                              "1||2|",
                              "|x|-5|",
                              "1|2|3|4",
                              "1|2|3|4|5|6|7|8|9",
                              "Value",
                              "Fixed",
                              "SyncSignal",
                              "Lut",
                              "Formula",
                              "LStar",
                              "Standard",
                              "Red",
                              "-99999999999",
                              "-99999999999|7",
                              "4294967296"};

constexpr std::array attributes = {"Type", "Color", "Version", "MinorVersion"};

const char* textOf(const Edit& edit) {
    return texts.at(edit.text % texts.size());
}

const char* attributeOf(const Edit& edit) {
    return attributes.at(edit.attribute % attributes.size());
}

/// Whether it has a place among others that can change.
bool isRoot(const XMLElement& element) {
    return element.Parent()->ToElement() == nullptr;
}

void empty(XMLElement& element, const Edit& /*edit*/) {
    element.DeleteChildren();
}

void replaceText(XMLElement& element, const Edit& edit) {
    element.DeleteChildren();
    element.InsertEndChild(element.GetDocument()->NewText(textOf(edit)));
}

void replaceTextByCdata(XMLElement& element, const Edit& edit) {
    replaceText(element, edit);
    element.FirstChild()->ToText()->SetCData(true);
}

void insertComment(XMLElement& element, const Edit& /*edit*/) {
    element.InsertFirstChild(element.GetDocument()->NewComment(" 7 "));
}

void insertText(XMLElement& element, const Edit& edit) {
    element.InsertFirstChild(element.GetDocument()->NewText(textOf(edit)));
}

void setAttribute(XMLElement& element, const Edit& edit) {
    element.SetAttribute(attributeOf(edit), textOf(edit));
}

/// Another type than its children were written for.
void retype(XMLElement& element, const Edit& edit) {
    constexpr std::array types = {"SyncSignal", "Formula", "Lut", "Other", ""};
    if (element.Attribute("Type") != nullptr) {
        element.SetAttribute("Type", types.at(edit.text % types.size()));
    }
}

void removeAttributes(XMLElement& element, const Edit& /*edit*/) {
    for (const char* name : attributes) {
        element.DeleteAttribute(name);
    }
}

void repeatAfter(XMLElement& element, const Edit& edit) {
    if (!isRoot(element)) {
        XMLElement* const copy = element.DeepClone(element.GetDocument())->ToElement();
        element.Parent()->InsertAfterChild(&element, copy);
        replaceText(*copy, edit);
    }
}

void moveToTheEnd(XMLElement& element, const Edit& /*edit*/) {
    if (!isRoot(element)) {
        element.Parent()->InsertEndChild(&element);
    }
}

void rename(XMLElement& element, const Edit& /*edit*/) {
    if (!isRoot(element)) {
        element.SetName("Unknown");
    }
}

void remove(XMLElement& element, const Edit& /*edit*/) {
    if (!isRoot(element)) {
        element.GetDocument()->DeleteNode(&element);
    }
}

/// One of the parts of a structure, without the others.
void removeOthers(XMLElement& element, const Edit& /*edit*/) {
    if (isRoot(element) || isRoot(*element.Parent()->ToElement())) {
        return;
    }
    while (element.PreviousSibling() != nullptr) {
        element.Parent()->DeleteChild(element.PreviousSibling());
    }
    while (element.NextSibling() != nullptr) {
        element.Parent()->DeleteChild(element.NextSibling());
    }
}

constexpr std::array edits = {
    &replaceText, &empty,  &replaceTextByCdata, &insertComment, &insertText,   &setAttribute, &retype,
    &retype,      &retype, &removeAttributes,   &repeatAfter,   &moveToTheEnd, &rename,       &remove,
    &removeOthers};

std::vector<XMLElement*> elementsOf(tinyxml2::XMLDocument& document) {
    std::vector<XMLElement*> elements = {document.RootElement()};
    for (std::size_t index = 0; index < elements.size(); ++index) {
        for (auto* child = elements[index]->FirstChildElement(); child != nullptr;
             child = child->NextSiblingElement()) {
            elements.push_back(child);
        }
    }
    return elements;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Edit& edit) {
    return out << "edit " << edit.what % edits.size() << " at " << edit.where << ", attribute " << attributeOf(edit)
               << ", with \"" << textOf(edit) << '"';
}

std::string edited(const std::string& document, const std::vector<Edit>& all) {
    tinyxml2::XMLDocument parsed;
    RC_ASSERT(parsed.Parse(document.c_str(), document.size()) == tinyxml2::XML_SUCCESS);
    for (const Edit& edit : all) {
        const std::vector<XMLElement*> elements = elementsOf(parsed);
        edits.at(edit.what % edits.size())(*elements.at(edit.where % elements.size()), edit);
    }
    tinyxml2::XMLPrinter printer(nullptr, true);
    parsed.Print(&printer);
    return printer.CStr();
}

}  // namespace lv::test

rc::Gen<lv::test::Edit> rc::Arbitrary<lv::test::Edit>::arbitrary() {
    return [](Random random, int /*size*/) {
        const auto any = [&random] {
            return static_cast<std::uint32_t>(random.next());
        };
        return shrinkable::just(lv::test::Edit{any(), any(), any(), any()});
    };
}
