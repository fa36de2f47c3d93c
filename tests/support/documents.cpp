#include <tests/support/documents.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <stdexcept>
#include <vector>

#include <tinyxml2.h>

namespace lv::test {
namespace {

using tinyxml2::XMLElement;

std::vector<XMLElement*> childrenOf(XMLElement& element) {
    std::vector<XMLElement*> children;
    for (XMLElement* child = element.FirstChildElement(); child != nullptr; child = child->NextSiblingElement()) {
        children.push_back(child);
    }
    return children;
}

bool isLeaf(XMLElement& element) {
    return element.FirstChildElement() == nullptr;
}

/// Calls `change` with the root and every element below it, children before their parents.
template <class Change>
void forEachElement(XMLElement& root, Change change) {
    std::vector<XMLElement*> elements = {&root};
    for (std::size_t index = 0; index < elements.size(); ++index) {
        const std::vector<XMLElement*> children = childrenOf(*elements[index]);
        elements.insert(elements.end(), children.begin(), children.end());
    }
    std::for_each(elements.rbegin(), elements.rend(), [&change](XMLElement* element) { change(*element); });
}

/// The document's text after `change` had its root.
template <class Change>
std::string changed(const std::string& text, Change change) {
    tinyxml2::XMLDocument document;
    if (document.Parse(text.c_str(), text.size()) != tinyxml2::XML_SUCCESS || document.RootElement() == nullptr) {
        throw std::invalid_argument("not a document: " + text);
    }
    change(*document.RootElement());
    tinyxml2::XMLPrinter printer(nullptr, true);
    document.Print(&printer);
    return printer.CStr();
}

char otherDigit(char character) {
    if (character < '1' || character > '9') {
        return character;
    }
    return character == '9' ? '1' : static_cast<char>(character + 1);
}

/// Another digit for every digit but 0; one more where there is none; the other position of a switch.
std::string other(const std::string& text) {
    if (text == "true" || text == "false") {
        return text == "true" ? "false" : "true";
    }
    std::string changed = text;
    std::transform(text.begin(), text.end(), changed.begin(), &otherDigit);
    return changed == text ? text + '7' : changed;
}

void changeAttributes(XMLElement& element) {
    for (const auto* each = element.FirstAttribute(); each != nullptr; each = each->Next()) {
        element.SetAttribute(each->Name(), other(each->Value()).c_str());
    }
}

void removeText(XMLElement& element) {
    for (auto* child = element.FirstChild(); child != nullptr;) {
        auto* const next = child->NextSibling();
        if (child->ToElement() == nullptr) {
            element.DeleteChild(child);
        }
        child = next;
    }
}

XMLElement* newElement(XMLElement& neighbour, const char* name, const char* text) {
    XMLElement* const element = neighbour.GetDocument()->NewElement(name);
    element->SetText(text);
    return element;
}

void repeatAfter(XMLElement& element) {
    XMLElement* const repetition = newElement(element, element.Name(), "999");
    element.Parent()->InsertAfterChild(&element, repetition);
}

void addUnknownContent(XMLElement& element) {
    element.SetAttribute("Unknown", "7");
    if (isLeaf(element)) {
        return;
    }
    for (XMLElement* child : childrenOf(element)) {
        element.InsertAfterChild(child, newElement(element, "Unknown", "8"));
        element.InsertAfterChild(child, element.GetDocument()->NewComment(" > 9 < "));
    }
    element.InsertFirstChild(newElement(element, "Unknown", "9"));
}

void reverseChildren(XMLElement& element) {
    const std::vector<XMLElement*> children = childrenOf(element);
    std::set<std::string> names;
    for (const XMLElement* child : children) {
        names.insert(child->Name());
    }
    if (names.size() == children.size()) {
        std::for_each(children.rbegin(), children.rend(),
                      [&element](XMLElement* child) { element.InsertEndChild(child); });
    }
}

}  // namespace

std::string withRootNamed(const std::string& text, const std::string& name) {
    return changed(text, [&](XMLElement& root) { root.SetName(name.c_str()); });
}

std::string withRootAttribute(const std::string& text, const std::string& name, const std::string& value) {
    return changed(text, [&](XMLElement& root) { root.SetAttribute(name.c_str(), value.c_str()); });
}

std::string withOtherTexts(const std::string& text) {
    return changed(text, [](XMLElement& root) {
        forEachElement(root, [](XMLElement& element) {
            if (element.GetText() != nullptr) {
                element.SetText(other(element.GetText()).c_str());
            }
        });
    });
}

std::string withOtherAttributes(const std::string& text) {
    return changed(text, [](XMLElement& root) { forEachElement(root, changeAttributes); });
}

std::string withoutTexts(const std::string& text) {
    return changed(text, [](XMLElement& root) { forEachElement(root, removeText); });
}

std::string withRepeatedLeaves(const std::string& text) {
    return changed(text, [](XMLElement& root) {
        forEachElement(root, [](XMLElement& element) {
            if (isLeaf(element)) {
                repeatAfter(element);
            }
        });
    });
}

std::string withUnknownContent(const std::string& text) {
    return changed(text, [](XMLElement& root) { forEachElement(root, addUnknownContent); });
}

std::string withChildrenOneLevelDeeper(const std::string& text) {
    return changed(text, [](XMLElement& root) {
        XMLElement* const inner = root.GetDocument()->NewElement("Deeper");
        for (XMLElement* child : childrenOf(root)) {
            inner->InsertEndChild(child);
        }
        root.InsertEndChild(inner);
    });
}

std::string withChildrenReversed(const std::string& text) {
    return changed(text, [](XMLElement& root) { forEachElement(root, reverseChildren); });
}

}  // namespace lv::test
