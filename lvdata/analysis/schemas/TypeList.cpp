#include <lvdata/analysis/schemas/TypeList.h>

#include <algorithm>

namespace lv::analysis {

std::string TypeList::add(const std::string& scope, const std::string& name, const std::string& body) {
    const auto [entry, isNew] = names_.emplace(std::pair(scope, body), name);
    if (isNew) {
        types_.emplace_back(name, body);
    }
    return entry->second;
}

bool TypeList::has(const std::string& name) const {
    return std::any_of(types_.begin(), types_.end(), [&name](const auto& type) { return type.first == name; });
}

const Shape& recordOf(const Shape& shape) {
    const bool isRecord = !shape.facts().record.empty() || shape.parent() == nullptr;
    return isRecord ? shape : recordOf(*shape.parent());
}

std::string typeNameOf(const Shape& shape) {
    const bool isRecord = &recordOf(shape) == &shape;
    return isRecord ? shape.facts().name : typeNameOf(*shape.parent()) + '.' + shape.facts().name;
}

std::vector<const Shape*> keyedLike(const Shape& shape) {
    std::vector<const Shape*> found;
    for (const auto& sibling : shape.parent()->children()) {
        if (!sibling->facts().keyAttribute.empty() && sibling->facts().name == shape.facts().name) {
            found.push_back(sibling.get());
        }
    }
    return found;
}

bool isFirstOfKeyed(const Shape& shape) {
    return !shape.facts().keyAttribute.empty() && keyedLike(shape).front() == &shape;
}

std::vector<const Shape*> textsOf(const Shape& element) {
    std::vector<const Shape*> found;
    for (const auto& child : element.children()) {
        if (child->facts().place == Description::Place::text) {
            found.push_back(child.get());
        }
    }
    return found;
}

}  // namespace lv::analysis
