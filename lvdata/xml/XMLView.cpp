#include <lvdata/xml/XMLView.h>

#include <tinyxml2.h>

namespace lv {
namespace {

const tinyxml2::XMLNode* toNode(const void* node) {
    return static_cast<const tinyxml2::XMLNode*>(node);
}

const tinyxml2::XMLAttribute* toAttribute(const void* attribute) {
    return static_cast<const tinyxml2::XMLAttribute*>(attribute);
}

std::string_view orEmpty(const char* text) {
    return text == nullptr ? std::string_view() : std::string_view(text);
}

}  // namespace

std::string_view XMLAttributeView::name() const {
    return isValid() ? orEmpty(toAttribute(attribute_)->Name()) : std::string_view();
}

std::string_view XMLAttributeView::value() const {
    return isValid() ? orEmpty(toAttribute(attribute_)->Value()) : std::string_view();
}

int XMLAttributeView::line() const {
    return isValid() ? toAttribute(attribute_)->GetLineNum() : 0;
}

XMLAttributeView XMLAttributeView::next() const {
    return isValid() ? XMLAttributeView(toAttribute(attribute_)->Next()) : XMLAttributeView();
}

XMLView::Kind XMLView::kind() const {
    const tinyxml2::XMLNode* const node = toNode(node_);
    if (node == nullptr) {
        return Kind::none;
    }
    if (node->ToElement() != nullptr) {
        return Kind::element;
    }
    if (node->ToText() != nullptr) {
        return Kind::text;
    }
    if (node->ToComment() != nullptr) {
        return Kind::comment;
    }
    return node->ToDocument() != nullptr ? Kind::document : Kind::other;
}

std::string_view XMLView::value() const {
    return isValid() ? orEmpty(toNode(node_)->Value()) : std::string_view();
}

int XMLView::line() const {
    return isValid() ? toNode(node_)->GetLineNum() : 0;
}

XMLView XMLView::firstChild() const {
    return isValid() ? XMLView(toNode(node_)->FirstChild()) : XMLView();
}

XMLView XMLView::next() const {
    return isValid() ? XMLView(toNode(node_)->NextSibling()) : XMLView();
}

XMLAttributeView XMLView::firstAttribute() const {
    const tinyxml2::XMLElement* const element = isValid() ? toNode(node_)->ToElement() : nullptr;
    return element == nullptr ? XMLAttributeView() : XMLAttributeView(element->FirstAttribute());
}

}  // namespace lv
