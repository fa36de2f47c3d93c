#include <tests/analysis/pictures/ParsedPicture.h>

#include <lvdata/analysis/decimal.h>

#include <gtest/gtest.h>
#include <libxml/parser.h>

#include <cmath>
#include <limits>
#include <memory>

namespace lv::test {
namespace {

using analysis::svg::Point;

std::string textOf(const xmlChar* text) {
    return text == nullptr ? "" : std::string(reinterpret_cast<const char*>(text));
}

std::string attributeOf(const xmlNode* node, const xmlAttr* attribute) {
    const std::unique_ptr<xmlChar, void (*)(xmlChar*)> value(xmlGetProp(node, attribute->name),
                                                             [](xmlChar* text) { xmlFree(text); });
    return textOf(value.get());
}

/// The text in an element, without that of elements in it.
std::string ownText(const xmlNode* node) {
    std::string text;
    for (const xmlNode* child = node->children; child != nullptr; child = child->next) {
        text += child->type == XML_TEXT_NODE ? textOf(child->content) : "";
    }
    return text;
}

std::string classOf(const Element& element) {
    const auto found = element.attributes.find("class");
    return found == element.attributes.end() ? "" : found->second;
}

/// The number that follows that text in the transformation of an element; 0 where there is none.
double movedBy(const Element& element, std::string_view start) {
    const auto found = element.attributes.find("transform");
    const bool isMoved = found != element.attributes.end() && found->second.rfind(start, 0) == 0;
    return isMoved ? leadingNumber(found->second.substr(start.size())) : 0;
}

/// How far an element moves what it holds down, and to the right.
double downOf(const Element& element) {
    return element.down + movedBy(element, "translate(0,");
}

double acrossOf(const Element& element) {
    return element.across + movedBy(element, "translate(");
}

void collect(const xmlNode* node, const Element& group, std::vector<Element>& elements) {
    Element element{textOf(node->name), {},           ownText(node), "",
                    classOf(group),     group.anchor, downOf(group), acrossOf(group)};
    for (const xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next) {
        element.attributes[textOf(attribute->name)] = attributeOf(node, attribute);
    }
    for (const xmlNode* child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE && textOf(child->name) == "title") {
            element.title = ownText(child);
        }
    }
    const auto anchor = element.attributes.find("text-anchor");
    element.anchor = anchor == element.attributes.end() ? element.anchor : anchor->second;
    elements.push_back(element);
    const Element own = elements.back();
    for (const xmlNode* child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            collect(child, own, elements);
        }
    }
}

bool isWordOf(const std::string& words, const std::string& word) {
    return (' ' + words + ' ').find(' ' + word + ' ') != std::string::npos;
}

double numberOf(const std::string& text) {
    const auto value = analysis::decimalNumber(text);
    EXPECT_TRUE(value) << '"' << text << '"';
    return value.value_or(std::numeric_limits<double>::quiet_NaN());
}

/// All numbers of a text; everything else separates them.
std::vector<double> numbersOf(const std::string& text) {
    std::vector<double> numbers;
    for (std::size_t at = text.find_first_of("-.0123456789"); at != std::string::npos;
         at = text.find_first_of("-.0123456789", at)) {
        const std::size_t end = std::min(text.find_first_not_of(".0123456789", at + 1), text.size());
        numbers.push_back(numberOf(text.substr(at, end - at)));
        at = end;
    }
    return numbers;
}

/// A pen that follows a path of the commands that pictures have.
struct Pen {
    Point start{};
    Point place{};

    void go(char command, double x, double y) {
        switch (command) {
        case 'M':
            place = start = {x, y};
            break;
        case 'm':
            place = start = {place.x + x, place.y + y};
            break;
        case 'l':
            place = {place.x + x, place.y + y};
            break;
        case 'h':
            place.x += x;
            break;
        case 'v':
            place.y += x;
            break;
        case 'V':
            place.y = x;
            break;
        default:
            ADD_FAILURE() << "unknown command " << command;
        }
    }
};

std::vector<Point> pointsOf(const std::string& path) {
    std::vector<Point> points;
    Pen pen;
    for (std::size_t at = 0; at < path.size();) {
        const char command = path[at];
        const std::size_t end = std::min(path.find_first_of("MmlhvVz", at + 1), path.size());
        const std::vector<double> numbers = numbersOf(path.substr(at + 1, end - at - 1));
        const std::size_t step = command == 'M' || command == 'm' || command == 'l' ? 2 : 1;
        for (std::size_t index = 0; index + step <= numbers.size(); index += step) {
            pen.go(command, numbers[index], numbers[index + step - 1]);
            points.push_back(pen.place);
        }
        pen.place = command == 'z' ? pen.start : pen.place;
        at = end;
    }
    return points;
}

}  // namespace

double leadingNumber(std::string_view text) {
    return analysis::decimalNumber(text.substr(0, text.find_first_not_of("+-.0123456789"))).value_or(0);
}

double Element::number(const std::string& attribute) const {
    const auto found = attributes.find(attribute);
    EXPECT_NE(found, attributes.end()) << name << " has no " << attribute;
    return found == attributes.end() ? 0 : numberOf(found->second);
}

bool Element::hasClass(const std::string& className) const {
    const auto own = attributes.find("class");
    return isWordOf(groupClass, className) || (own != attributes.end() && isWordOf(own->second, className));
}

std::vector<Point> Element::points() const {
    std::vector<Point> points = ownPoints();
    for (Point& point : points) {
        point.x += across;
        point.y += down;
    }
    return points;
}

std::vector<Point> Element::ownPoints() const {
    if (name == "rect" && attributes.count("x") > 0) {
        const Point start{number("x"), number("y")};
        return {start, {start.x + number("width"), start.y + number("height")}};
    }
    if (name == "circle") {
        return {{number("cx"), number("cy")}};
    }
    if (name == "text") {
        return {{attributes.count("x") > 0 ? number("x") : 0, attributes.count("y") > 0 ? number("y") : 0}};
    }
    if (name == "path") {
        return pointsOf(attributes.at("d"));
    }
    return {};
}

ParsedPicture::ParsedPicture(const std::string& text) {
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document(
        xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, "UTF-8", XML_PARSE_NONET), xmlFreeDoc);
    EXPECT_NE(document, nullptr) << text.substr(0, 1000);
    if (document) {
        collect(xmlDocGetRootElement(document.get()), {}, elements_);
    } else {
        elements_.emplace_back();
    }
}

std::vector<Element> ParsedPicture::all(const std::string& name, const std::string& withClass) const {
    std::vector<Element> found;
    for (const Element& element : elements_) {
        if (element.name == name && (withClass.empty() || element.hasClass(withClass))) {
            found.push_back(element);
        }
    }
    return found;
}

Element ParsedPicture::only(const std::string& name, const std::string& withClass) const {
    const std::vector<Element> found = all(name, withClass);
    EXPECT_EQ(found.size(), 1U) << name << ' ' << withClass;
    return found.empty() ? Element() : found.front();
}

std::vector<std::string> ParsedPicture::hoverTexts() const {
    std::vector<std::string> texts;
    for (const Element& column : all("path", "lv-hover")) {
        texts.push_back(column.title);
    }
    return texts;
}

bool ParsedPicture::says(const std::string& text) const {
    for (const Element& element : elements_) {
        if ((element.name == "text" || element.name == "title" || element.name == "desc") &&
            element.text.find(text) != std::string::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace lv::test
