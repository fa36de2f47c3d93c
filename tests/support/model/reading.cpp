#include <tests/support/model/conditions.h>
#include <tests/support/model/reading.h>
#include <tests/support/stream.h>

#include <sstream>

namespace lv::test {
namespace {

using lv::Description;

/// What a text that is not empty makes of a value.
struct Taken {
    const std::string& text;

    void operator()(std::string* value) const { *value = text; }
    void operator()(bool* value) const { *value = text == "true" || text == "TRUE"; }

    template <class Number>
    void operator()(Number* value) const {
        *value = extracted<Number>(text);
    }

    template <class Number>
    void operator()(std::vector<Number>* values) const {
        values->clear();
        std::istringstream pieces(text);
        for (std::string piece; std::getline(pieces, piece, '|');) {
            if (!piece.empty()) {
                values->push_back(extracted<Number>(piece));
            }
        }
    }
};

/// A text that is there replaces a string, also when it is empty; other values need one that is not.
void take(Node& node, const char* text) {
    const std::string taken = text != nullptr ? text : "";
    const bool isString = node.facts->content == Description::Content::string;
    node.hasText = node.hasText || !taken.empty();
    if (node.hasPlace && (isString ? text != nullptr : !taken.empty())) {
        assign(node.place, taken);
    }
}

void readIn(Node& node, const Found& parent);

void readChildren(Node& node, const Found& element) {
    for (const auto& child : node.children) {
        readIn(*child, element);
    }
}

/// A nested record that is missing stays as it is.
void readElement(Node& node, const Found& element) {
    node.exists = node.exists || element.exists();
    take(node, element.text());
    if (element.exists() || node.facts->record.empty()) {
        readChildren(node, element);
    }
}

void readKeyed(Node& node, const Found& parent) {
    for (const Found& element : parent.children(node.facts->name)) {
        const char* const key = element.attribute(node.facts->keyAttribute);
        if (key != nullptr && key == node.facts->keyText) {
            readElement(node, element);
        }
    }
}

/// Those of a nested record that is missing stay, but for its own.
void setFlags(Node& node) {
    for (const auto& child : node.children) {
        if (child->exists || child->facts->record.empty()) {
            setFlags(*child);
        }
        if (child->flag != nullptr) {
            *child->flag = holds(*child->facts->flag, *child) && lengthCounts(*child);
        }
    }
}

/// A row that nothing keeps is gone.
void readRow(Node& list, const Found& element) {
    const std::size_t index = list.rows->size();
    list.rows->resize(index + 1);
    const auto row = boundRow(list, index);
    readElement(*row, element);
    setFlags(*row);
    if (!holds(*row->facts->flag, *row)) {
        list.rows->resize(index);
    }
}

void readRows(Node& list, const Found& parent) {
    *list.wasRead = true;
    list.rows->resize(0);
    for (const Found& element : parent.children(list.facts->name)) {
        readRow(list, element);
    }
}

void readOnce(Node& node, const Found& parent) {
    switch (node.facts->place) {
    case Description::Place::element:
        readElement(node, parent.child(node.facts->name));
        break;
    case Description::Place::attribute:
        node.exists = parent.attribute(node.facts->name) != nullptr;
        take(node, parent.attribute(node.facts->name));
        break;
    case Description::Place::text:
        readElement(node, parent);
        break;
    }
}

void readIn(Node& node, const Found& parent) {
    const Found place = allHold(node.facts->readWhen, node) ? parent : Found();
    switch (node.facts->repetition) {
    case Description::Repetition::once:
        readOnce(node, place);
        break;
    case Description::Repetition::rows:
        readRows(node, place);
        break;
    case Description::Repetition::byKey:
        readKeyed(node, place);
        break;
    }
}

}  // namespace

void assign(const Place& place, const std::string& text) {
    std::visit(Taken{text}, place);
}

bool read(Node& root, const Found& element) {
    if (element.name() != root.facts->name) {
        return false;
    }
    readChildren(root, element);
    setFlags(root);
    return true;
}

}  // namespace lv::test
