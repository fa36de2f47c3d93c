#include "element_record.h"
#include "shared.h"
#include "texts.h"

#include <lvdata/analysis/Tree.h>
#include <lvdata/xml/XMLDocument.h>
#include <lvdata/xml/XMLElement.h>

#include <stdexcept>
#include <vector>

namespace lv::python {
namespace {

using analysis::Node;
using Kind = Member::Kind;

/// Appends elements to a document of the XML library.
class Writer {
public:
    /// Whether the switch must be set for what was written.
    [[nodiscard]] bool hlgSwitch() const { return hlgSwitch_; }

    void writeContent(const XMLElement& target, const Element& element) {
        for (std::size_t index = 0; index < element.layout().members.size(); ++index) {
            writeMember(target, element, index);
        }
    }

private:
    void writeMember(const XMLElement& target, const Element& element, std::size_t index) {
        const Member& member = element.layout().members[index];
        const Slot& slot = element.at(index);
        hlgSwitch_ = hlgSwitch_ || (member.isGoverned && !std::holds_alternative<std::monostate>(slot));
        if (const auto* const text = std::get_if<std::string>(&slot)) {
            writeText(target, element, index, *text);
        } else if (const auto* const child = std::get_if<ElementPtr>(&slot)) {
            writeElement(target, **child);
        } else if (const auto* const rows = std::get_if<std::shared_ptr<RowList>>(&slot)) {
            for (const ElementPtr& row : (*rows)->rows) {
                writeElement(target, *row);
            }
        }
    }

    static void writeText(const XMLElement& target, const Element& element, std::size_t index,
                          const std::string& text) {
        const Member& member = element.layout().members[index];
        const Description& facts = member.shape->facts();
        if (member.kind == Kind::attribute) {
            static_cast<void>(target.setAttributeString(facts.name, text));
        } else if (member.kind == Kind::ownText) {
            refuseOtherKind(element, index);
        } else {
            const XMLElement child = append(target, facts.name, &text);
            if (member.isKeyed()) {
                static_cast<void>(child.setAttributeString(facts.keyAttribute, facts.keyText));
            }
        }
    }

    void writeElement(const XMLElement& target, const Element& element) {
        writeContent(append(target, element.layout().shape->facts().name, ownText(element)), element);
    }

    static XMLElement append(const XMLElement& target, const std::string& name, const std::string* text) {
        return text == nullptr ? target.appendChild(name) : target.appendChildString(name, *text);
    }

    static const std::string* ownText(const Element& element) {
        const auto& members = element.layout().members;
        for (std::size_t index = 0; index < members.size(); ++index) {
            if (members[index].kind == Kind::ownText && !members[index].isShadowed) {
                return element.textAt(index);
            }
        }
        return nullptr;
    }

    bool hlgSwitch_ = false;
};

/// The layouts from the record down to this one.
std::vector<const Layout*> wayTo(const Layout& layout) {
    std::vector<const Layout*> way;
    for (const Layout* each = &layout; each != nullptr; each = each->parent) {
        way.insert(way.begin(), each);
    }
    return way;
}

const Node* elementNamed(const Node& parent, std::string_view name) {
    for (const Node& child : childrenOf(parent)) {
        if (child.kind == Node::Kind::element && child.name == name) {
            return &child;
        }
    }
    return nullptr;
}

/// Prints a record of which nothing is set but that it has the element.
ElementPtr makeFresh(const Layout& layout) {
    const std::vector<const Layout*> way = wayTo(layout);
    const XMLDocument document;
    XMLElement element = document.appendChild(way.front()->shape->facts().name);
    const std::unique_ptr<DataObject> record = way.front()->entry->recordClass->make();
    const XMLElement root = element;
    for (std::size_t index = 1; index < way.size(); ++index) {
        element = element.appendChild(way[index]->shape->facts().name);
    }
    static_cast<void>(record->parseXMLElement(root));
    const auto printed = analysis::Tree::ofPrinted(record->toXMLString(false, false));
    const Node* node = &printed.document();
    for (std::size_t index = 0; node != nullptr && index < way.size(); ++index) {
        node = elementNamed(*node, way[index]->shape->facts().name);
    }
    return node == nullptr ? std::make_shared<Element>(layout) : std::make_shared<Element>(*node, layout);
}

std::vector<ElementPtr> makeAllFresh() {
    std::vector<ElementPtr> made;
    for (const auto& layout : layouts()) {
        made.push_back(makeFresh(*layout));
    }
    return made;
}

}  // namespace

ElementPtr elementOf(const DataObject& record) {
    const auto printed = analysis::Tree::ofPrinted(record.toXMLString(false, false));
    const Node& root = *printed.root();
    const Layout* const layout = layoutOfRecord(root.name);
    return layout == nullptr ? nullptr : std::make_shared<Element>(root, *layout);
}

std::unique_ptr<DataObject> recordOf(const Element& element) {
    if (element.layout().entry == nullptr) {
        throw std::invalid_argument(element.layout().name + " is not a record");
    }
    const RecordClass& recordClass = *element.layout().entry->recordClass;
    const XMLDocument document;
    const XMLElement root = document.appendChild(recordClass.name);
    Writer writer;
    writer.writeContent(root, element);
    std::unique_ptr<DataObject> record = recordClass.make();
    record->writeHLGSystemGamma = writer.hlgSwitch();
    static_cast<void>(record->parseXMLElement(root));
    return record;
}

const Element& freshOf(const Layout& layout) {
    static const std::vector<ElementPtr> made = makeAllFresh();
    return *made[layout.id];
}

}  // namespace lv::python
