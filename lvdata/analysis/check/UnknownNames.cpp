#include <lvdata/analysis/check/UnknownNames.h>
#include <lvdata/analysis/wording.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace lv::analysis {
namespace {

using Place = Description::Place;

char inLowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

bool isLike(char left, char right) {
    return inLowerCase(left) == inLowerCase(right);
}

/// How many characters must be changed, added or removed to make one of the other (Levenshtein); upper and lower case
/// are the same.
std::size_t distance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);
    for (std::size_t column = 0; column <= right.size(); ++column) {
        row[column] = column;
    }
    for (std::size_t line = 1; line <= left.size(); ++line) {
        std::size_t diagonal = row[0];
        row[0] = line;
        for (std::size_t column = 1; column <= right.size(); ++column) {
            const std::size_t replaced = diagonal + (isLike(left[line - 1], right[column - 1]) ? 0 : 1);
            diagonal = row[column];
            row[column] = std::min({replaced, row[column] + 1, row[column - 1] + 1});
        }
    }
    return row[right.size()];
}

constexpr std::size_t tooManyErrors = 3;  // which make another word

/// Whether the lengths alone rule out that one is the other with a few typing errors.
bool haveLikeLengths(std::string_view left, std::string_view right) {
    return std::max(left.size(), right.size()) - std::min(left.size(), right.size()) < tooManyErrors;
}

/// `; did you mean "Brightness"?`, or nothing when no name of that place is close.
std::string guess(const Shape& parent, Place place, std::string_view name) {
    std::size_t least = tooManyErrors;
    const Shape* best = nullptr;
    for (const auto& child : parent.children()) {
        const bool isCandidate = child->facts().place == place && haveLikeLengths(name, child->facts().name);
        const std::size_t errors = isCandidate ? distance(name, child->facts().name) : least;
        if (errors < least && errors < child->facts().name.size()) {
            least = errors;
            best = child.get();
        }
    }
    return best == nullptr ? "" : "; did you mean " + inQuotes(best->facts().name) + "?";
}

void addPlaces(const Shape& parent, std::unordered_map<std::string_view, const Shape*>& places) {
    for (const auto& child : parent.children()) {
        if (child->facts().place == Place::element) {
            places.emplace(child->facts().name, child.get());
        }
    }
    for (const auto& child : parent.children()) {
        addPlaces(*child, places);
    }
}

/// `<MeasuredXYZ>` with a key that no child has.
std::string unknownKey(const Shape& known, const Node& element) {
    const std::string& attribute = known.facts().keyAttribute;
    const Node* const key = attributeOf(element, attribute);
    return key == nullptr ? "has no attribute " + attribute
                          : "has an unknown " + attribute + ", " + inQuotes(key->text);
}

}  // namespace

void UnknownNames::reportElement(Reporter& reporter, const Shape& parent, const Node& element) {
    const std::string name = inQuotes(element.name);
    if (const Shape* const known = parent.firstElement(element.name)) {
        reporter.add("301", element, "element " + name + ' ' + unknownKey(*known, element) + ", and is dropped");
        return;
    }
    const Shape* const place = placeOf(element.name);
    const bool isGuessUsed = place != nullptr || reporter.isListing("301");
    const std::string meant = isGuessUsed ? guess(parent, Place::element, element.name) : "";
    if (meant.empty() && place != nullptr) {
        reporter.add("309", element,
                     "element " + name + " is in the wrong place and is dropped; it belongs in " +
                         place->parent()->path());
    } else {
        reporter.add("301", element, "unknown element " + name + " is dropped" + meant);
    }
}

void UnknownNames::reportAttribute(Reporter& reporter, const Shape& parent, const Node& attribute) {
    const bool isListed = reporter.isListing("302");
    const std::string meant = isListed ? guess(parent, Place::attribute, attribute.name) : "";
    reporter.add("302", attribute, "unknown attribute " + inQuotes(attribute.name) + " is dropped" + meant);
}

const Shape* UnknownNames::placeOf(std::string_view name) {
    if (places_.empty()) {
        addPlaces(root_, places_);
    }
    const auto found = places_.find(name);
    return found == places_.end() ? nullptr : found->second;
}

}  // namespace lv::analysis
