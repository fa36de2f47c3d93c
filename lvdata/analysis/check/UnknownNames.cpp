#include <lvdata/analysis/check/UnknownNames.h>
#include <lvdata/analysis/spelling.h>
#include <lvdata/analysis/wording.h>

#include <vector>

namespace lv::analysis {
namespace {

using Place = Description::Place;

/// `; did you mean "Brightness"?`, or an empty text when no name of that place is similar.
std::string guess(const Shape& parent, Place place, std::string_view name) {
    std::vector<std::string> names;
    for (const auto& child : parent.children()) {
        if (child->facts().place == place) {
            names.push_back(child->facts().name);
        }
    }
    const std::string* const meant = closest(name, names);
    return meant == nullptr ? "" : "; did you mean " + inQuotes(*meant) + "?";
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
