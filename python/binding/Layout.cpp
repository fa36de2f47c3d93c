#include "Layout.h"
#include "shared.h"

#include <lvdata/analysis/Document.h>
#include <lvdata/analysis/Projection.h>

#include <algorithm>
#include <stdexcept>

namespace lv::python {
namespace {

using analysis::Shape;
using Place = Description::Place;
using Repetition = Description::Repetition;
using Layouts = std::vector<std::unique_ptr<Layout>>;

/// The name of a class in Python begins with a capital, so that it differs from that of the attribute.
std::string classNameOf(const Shape& shape) {
    std::string name = shape.facts().name;
    if (!name.empty() && name.front() >= 'a' && name.front() <= 'z') {
        name.front() = static_cast<char>(name.front() - 'a' + 'A');
    }
    return name;
}

/// Makes the layouts: the records first, since others refer to them.
class Maker {
public:
    Layouts make() {
        for (const analysis::Catalogue::Entry& entry : catalogue().entries()) {
            add(*entry.shape, nullptr).entry = &entry;
        }
        const std::size_t records = made_.size();
        for (std::size_t index = 0; index < records; ++index) {
            addMembers(*made_[index]);
        }
        return std::move(made_);
    }

private:
    Layout& add(const Shape& shape, const Layout* parent) {
        Layout& layout = *made_.emplace_back(std::make_unique<Layout>());
        layout.shape = &shape;
        layout.parent = parent;
        layout.id = made_.size() - 1;
        layout.className = classNameOf(shape);
        layout.name = (parent == nullptr ? "" : parent->name + '.') + layout.className;
        return layout;
    }

    void addMembers(Layout& layout) {
        for (const auto& child : layout.shape->children()) {
            layout.members.push_back(memberOf(*child, layout));
        }
    }

    Member memberOf(const Shape& shape, const Layout& parent) {
        Member member;
        member.shape = &shape;
        member.isGoverned = analysis::isGovernedByHLGSwitch(shape);
        const Description& facts = shape.facts();
        if (facts.place != Place::element) {
            const bool isText = facts.place == Place::text;
            member.kind = isText ? Member::Kind::ownText : Member::Kind::attribute;
            member.text = &shape;
            member.isShadowed = isText && hasOwnText(parent);
        } else if (facts.repetition != Repetition::rows && analysis::isPlain(shape)) {
            member.text = analysis::textShapeAt({&shape, nullptr, nullptr});
        } else {
            member.kind = facts.repetition == Repetition::rows ? Member::Kind::rows : Member::Kind::element;
            member.nested = &nested(shape, parent);
        }
        return member;
    }

    static bool hasOwnText(const Layout& layout) {
        return std::any_of(layout.members.begin(), layout.members.end(),
                           [](const Member& member) { return member.kind == Member::Kind::ownText; });
    }

    const Layout& nested(const Shape& shape, const Layout& parent) {
        if (!shape.facts().keyAttribute.empty()) {
            throw std::logic_error(shape.path() + ": elements with a key must be plain values");
        }
        for (const auto& each : made_) {
            if (each->entry != nullptr && each->shape->facts().name == shape.facts().record) {
                return *each;
            }
        }
        Layout& layout = add(shape, &parent);
        addMembers(layout);
        return layout;
    }

    Layouts made_{};
};

}  // namespace

std::string Member::key() const {
    return isKeyed() ? analysis::keyAmongKeyed(*shape) : shape->key();
}

bool Member::isKeyed() const {
    return shape->facts().repetition == Repetition::byKey;
}

std::string Layout::pathOf(std::size_t index) const {
    const Member& member = members.at(index);
    return name + '.' + (member.isKeyed() ? member.shape->key() + '.' : "") + member.key();
}

const Layouts& layouts() {
    static const Layouts made = Maker().make();
    return made;
}

const Layout* layoutOfRecord(std::string_view rootElementName) {
    for (const auto& each : layouts()) {
        if (each->entry != nullptr && each->shape->facts().name == rootElementName) {
            return each.get();
        }
    }
    return nullptr;
}

}  // namespace lv::python
