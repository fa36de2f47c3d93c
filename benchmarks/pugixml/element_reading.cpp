#include <benchmarks/pugixml/handle.h>

#include <lvdata/xml/detail/element_reading.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstring>

namespace lv::detail {
namespace {

template <class Number>
bool convert(std::string_view text, Number& out) {
    return std::from_chars(text.data(), text.data() + text.size(), out).ec == std::errc();
}

template <class Number>
bool convert(std::string_view text, std::vector<Number>& out, char separator) {
    if (text.empty()) {
        return false;
    }
    const char* at = text.data();
    const char* const end = at + text.size();
    out.resize(static_cast<std::size_t>(std::count(at, end, separator)) + 1);
    for (Number& number : out) {
        at = std::from_chars(at, end, number).ptr;
        at += at != end ? 1 : 0;
    }
    return true;
}

}  // namespace

void* findChild(void* parent, const char* name) {
    return toHandle(toNode(parent).child(name));
}

void* findNext(void* element, const char* name) {
    return toHandle(toNode(element).next_sibling(name));
}

ChildFinder::ChildFinder(void* parent) : next_(toHandle(toNode(parent).first_child())) {}

void* ChildFinder::find(const char* name) {
    const pugi::xml_node next = toNode(next_);
    for (pugi::xml_node child = next; !child.empty(); child = child.next_sibling()) {
        if (std::strcmp(child.name(), name) == 0) {
            if (child == next) {
                next_ = toHandle(child.next_sibling());
            }
            return toHandle(child);
        }
    }
    return nullptr;
}

bool readText(void* element, std::string& out) {
    const char* const text = toNode(element).child_value();
    if (*text != '\0') {
        out = text;
    }
    return element != nullptr;
}

bool readText(void* element, int& out) {
    return convert(toNode(element).child_value(), out);
}

bool readText(void* element, unsigned int& out) {
    return convert(toNode(element).child_value(), out);
}

bool readText(void* element, bool& out) {
    const std::string_view text = toNode(element).child_value();
    if (!text.empty()) {
        out = text == "true" || text == "TRUE";
    }
    return !text.empty();
}

bool readText(void* element, std::vector<int>& out, std::string_view separator) {
    return convert(toNode(element).child_value(), out, separator.front());
}

bool readText(void* element, std::vector<unsigned int>& out, std::string_view separator) {
    return convert(toNode(element).child_value(), out, separator.front());
}

bool readAttribute(void* element, const char* name, std::string& out) {
    const pugi::xml_attribute attribute = toNode(element).attribute(name);
    if (!attribute.empty()) {
        out = attribute.value();
    }
    return !attribute.empty();
}

bool readAttribute(void* element, const char* name, int& out) {
    return convert(toNode(element).attribute(name).value(), out);
}

bool readAttribute(void* element, const char* name, unsigned int& out) {
    return convert(toNode(element).attribute(name).value(), out);
}

}  // namespace lv::detail
