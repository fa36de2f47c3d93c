#pragma once

#include <lvdata/analysis/Shape.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace lv::analysis {

/// The named types of a schema, each written once: elements of one record that hold the same share a type.
class TypeList {
public:
    /// Adds a type with that body, unless the scope already has one. Returns the name of the existing one, or `name`.
    std::string add(const std::string& scope, const std::string& name, const std::string& body);

    /// Whether there is a type of that name.
    [[nodiscard]] bool has(const std::string& name) const;

    /// Name and body of each type; a type comes before those that need it.
    [[nodiscard]] const std::vector<std::pair<std::string, std::string>>& types() const { return types_; }

private:
    std::vector<std::pair<std::string, std::string>> types_{};
    std::map<std::pair<std::string, std::string>, std::string> names_{};  // of scope and body
};

/// The record that the described thing belongs to; the record itself when it is one.
[[nodiscard]] const Shape& recordOf(const Shape& shape);

/// "TargetSetting.Gamma.Red": the name of a type, unique in a schema except for the key of a keyed element.
[[nodiscard]] std::string typeNameOf(const Shape& shape);

/// Whether it is the first of the keyed elements that share a name.
[[nodiscard]] bool isFirstOfKeyed(const Shape& shape);

/// The keyed elements that share its name, with itself.
[[nodiscard]] std::vector<const Shape*> keyedLike(const Shape& shape);

/// The texts that an element can have, if conditions allow: one shape for each.
[[nodiscard]] std::vector<const Shape*> textsOf(const Shape& element);

}  // namespace lv::analysis
