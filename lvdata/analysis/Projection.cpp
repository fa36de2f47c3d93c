#include <lvdata/analysis/Projection.h>
#include <lvdata/analysis/content.h>
#include <lvdata/analysis/decimal.h>
#include <lvdata/analysis/snake_case.h>

#include <algorithm>

namespace lv::analysis {
namespace {

using Content = Description::Content;
using Place = Description::Place;
using Repetition = Description::Repetition;

bool isKeyOf(const Shape& child, const Shape& element) {
    const std::string& keyAttribute = element.facts().keyAttribute;
    return !keyAttribute.empty() && child.facts().place == Place::attribute && child.facts().name == keyAttribute;
}

/// Writes the texts of one place: its decimals are looked up once.
class Numbers {
public:
    Numbers(const Position& position, Sink& sink) : sink_(sink) {
        const Quantity* const quantity = quantityAt(position);
        decimals_ = quantity == nullptr ? 0 : decimalsOf(quantity->factor);
    }

    void one(std::string_view stored) {
        const auto kind = decimals_ == 0 ? Sink::NumberKind::integer : Sink::NumberKind::fraction;
        sink_.number(naturalText(stored, decimals_, buffer_), kind);
    }

    void all(std::string_view joined) {
        sink_.beginArray(Sink::Entries::numbers);
        std::size_t begin = 0;
        for (std::size_t index = 0; index <= joined.size() && !joined.empty(); ++index) {
            if (index == joined.size() || joined[index] == '|') {
                one(joined.substr(begin, index - begin));
                begin = index + 1;
            }
        }
        sink_.endArray();
    }

private:
    Sink& sink_;
    std::size_t decimals_ = 0;
    DecimalBuffer buffer_{};
};

/// \param position  of an element without children, an attribute, or a text
void projectText(const Position& position, std::string_view text, Sink& sink) {
    const Content content = position.shape->facts().content;
    if (content == Content::string) {
        sink.string(text);
    } else if (isArray(content)) {
        Numbers(position, sink).all(text);
    } else if (text.empty()) {
        sink.null();
    } else if (content == Content::boolean) {
        sink.boolean(text == "true");
    } else {
        Numbers(position, sink).one(text);
    }
}

void projectOwnText(const Node& element, const Shape& shape, Sink& sink) {
    const Shape& textShape = *textShapeAt({&shape, &element, element.parent});
    const Node* const text = textOf(element);
    const bool isElement = &textShape == &shape;
    const Position position{&textShape, isElement ? &element : text, isElement ? element.parent : &element};
    projectText(position, text == nullptr ? std::string_view() : text->text, sink);
}

/// Visits the children of an element that is an object.
class Members {
public:
    Members(const Node& element, const Shape& shape, Sink& sink)
        : element_(element),
          shape_(shape),
          sink_(sink),
          next_(element.firstChild) {}

    void all() {
        sink_.beginObject();
        while (next_ != nullptr) {
            takeOne();
        }
        sink_.endObject();
    }

private:
    void takeOne() {
        const Node& node = take();
        if (node.kind == Node::Kind::attribute) {
            takeAttribute(node);
        } else if (node.kind == Node::Kind::text) {
            sink_.key(textShapeAt({&shape_, &element_, element_.parent})->key());
            projectOwnText(element_, shape_, sink_);
        } else if (const Shape* const found = shape_.firstElement(node.name, previous_)) {
            previous_ = found;
            takeElement(node, *found);
        }
    }

    void takeAttribute(const Node& attribute) {
        const Shape* const found = shape_.attribute(attribute.name);
        if (found != nullptr && !isKeyOf(*found, shape_)) {
            sink_.key(found->key());
            projectText({found, &attribute, &element_}, attribute.text, sink_);
        }
    }

    void takeElement(const Node& node, const Shape& found) {
        switch (found.facts().repetition) {
        case Repetition::once:
            sink_.key(found.key());
            projectElement(node, found, sink_);
            break;
        case Repetition::rows:
            takeRows(node, found);
            break;
        case Repetition::byKey:
            takeKeyed(node, found);
            break;
        }
    }

    void takeRows(const Node& first, const Shape& row) {
        sink_.key(row.key());
        sink_.beginArray(Sink::Entries::objects);
        projectElement(first, row, sink_);
        while (isNextNamed(first.name)) {
            projectElement(take(), row, sink_);
        }
        sink_.endArray();
    }

    void takeKeyed(const Node& first, const Shape& anyKey) {
        isOpen_ = false;
        takeKeyedOne(first, anyKey);
        while (isNextNamed(first.name)) {
            takeKeyedOne(take(), anyKey);
        }
        if (isOpen_) {
            sink_.endObject();
        }
    }

    /// An element that has only its key has no information: it is written always.
    void takeKeyedOne(const Node& node, const Shape& anyKey) {
        const Node* const key = attributeOf(node, anyKey.facts().keyAttribute);
        const Shape* const keyed = key == nullptr ? nullptr : shape_.element(node.name, key->text);
        if (keyed == nullptr || node.firstChild->next == nullptr) {
            return;
        }
        if (!isOpen_) {
            sink_.key(keyed->key());
            sink_.beginObject();
            isOpen_ = true;
        }
        sink_.key(keyAmongKeyed(*keyed));
        projectElement(node, *keyed, sink_);
    }

    const Node& take() {
        const Node& taken = *next_;
        next_ = taken.next;
        return taken;
    }

    [[nodiscard]] bool isNextNamed(std::string_view name) const {
        return next_ != nullptr && next_->kind == Node::Kind::element && next_->name == name;
    }

    const Node& element_;
    const Shape& shape_;
    Sink& sink_;
    const Node* next_;
    const Shape* previous_ = nullptr;  // where the search for the next one begins
    bool isOpen_ = false;              // the object of the keyed elements
};

}  // namespace

void project(const Tree& printed, const Shape& root, Sink& sink) {
    sink.beginObject();
    sink.key(root.key());
    projectElement(*printed.root(), root, sink);
    sink.endObject();
}

void projectElement(const Node& element, const Shape& shape, Sink& sink) {
    if (isPlain(shape)) {
        projectOwnText(element, shape, sink);
    } else {
        Members(element, shape, sink).all();
    }
}

bool isPlain(const Shape& shape) {
    if (shape.facts().content != Content::none) {
        return true;
    }
    const auto& children = shape.children();
    return shape.takesText() && std::all_of(children.begin(), children.end(), [&](const auto& child) {
               return child->facts().place == Place::text || isKeyOf(*child, shape);
           });
}

const Shape* textShapeAt(const Position& element) {
    if (element.shape->facts().content != Content::none) {
        return element.shape;
    }
    const Node* const text = element.node == nullptr ? nullptr : textOf(*element.node);
    const Shape* first = nullptr;
    for (const auto& child : element.shape->children()) {
        if (child->facts().place == Place::text) {
            const Position position{child.get(), text, element.node};
            if (firstDenied(child->readWhen(), position, {}) == nullptr) {
                return child.get();
            }
            first = first == nullptr ? child.get() : first;
        }
    }
    return first;
}

std::string keyAmongKeyed(const Shape& keyed) {
    return snakeCase(keyed.facts().keyText);
}

}  // namespace lv::analysis
