#include <tests/support/model/conditions.h>
#include <tests/support/model/writing.h>

namespace lv::test {
namespace {

using lv::Description;

/// A value as it stands in a document.
struct Written {
    std::string operator()(const std::string* value) const { return *value; }
    std::string operator()(const bool* value) const { return *value ? "true" : "false"; }

    template <class Number>
    std::string operator()(const Number* value) const {
        return std::to_string(*value);
    }

    template <class Number>
    std::string operator()(const std::vector<Number>* values) const {
        std::string text;
        for (const Number value : *values) {
            text += (text.empty() ? "" : "|") + std::to_string(value);
        }
        return text;
    }
};

std::string textOf(const Node& node) {
    return node.facts->constant ? *node.facts->constant : std::visit(Written(), placeOf(node));
}

class Writing {
public:
    explicit Writing(tinyxml2::XMLDocument& document, bool hlgSwitch) : document_(document), hlgSwitch_(hlgSwitch) {}

    void writeElement(const Node& node, tinyxml2::XMLNode& parent) const {
        tinyxml2::XMLElement* const element = document_.NewElement(node.facts->name.c_str());
        parent.InsertEndChild(element);
        if (node.facts->content != Description::Content::none) {
            addText(node, *element);
        }
        for (const auto& child : node.children) {
            writeIn(*child, *element);
        }
    }

private:
    void writeIn(const Node& node, tinyxml2::XMLElement& parent) const {
        if (node.facts->repetition == Description::Repetition::rows) {
            writeRows(node, parent);
        } else if (isWritten(node)) {
            writeOnce(node, parent);
        }
    }

    void writeRows(const Node& list, tinyxml2::XMLElement& parent) const {
        for (std::size_t index = 0; index < list.rows->size(); ++index) {
            const auto row = boundRow(list, index);
            if (isWritten(*row)) {
                writeElement(*row, parent);
            }
        }
    }

    void writeOnce(const Node& node, tinyxml2::XMLElement& parent) const {
        switch (node.facts->place) {
        case Description::Place::element:
            writeElement(node, parent);
            break;
        case Description::Place::attribute:
            parent.SetAttribute(node.facts->name.c_str(), textOf(node).c_str());
            break;
        case Description::Place::text:
            addText(node, parent);
            break;
        }
    }

    void addText(const Node& node, tinyxml2::XMLElement& element) const {
        element.InsertEndChild(document_.NewText(textOf(node).c_str()));
    }

    bool isWritten(const Node& node) const {
        const bool isLeftOut = node.facts->isOptional && !*node.flag;
        return !isLeftOut && lengthCounts(node) && allHold(node.facts->writtenWhen, node, hlgSwitch_);
    }

    tinyxml2::XMLDocument& document_;
    bool hlgSwitch_;
};

}  // namespace

void write(const Node& root, tinyxml2::XMLDocument& document, bool hlgSwitch) {
    Writing(document, hlgSwitch).writeElement(root, document);
}

}  // namespace lv::test
