#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lv::analysis {

/// The data for a template: a condition, a text, a list, or values with names.
///
/// A template looks up a name in the innermost value first and then further out, so each value of a list has all names
/// that the template uses, even if they are empty. An empty text, an empty list and `false` count as missing.
class View {
public:
    struct Member;
    using Items = std::vector<View>;
    using Members = std::vector<Member>;
    using Value = std::variant<bool, std::string, Items, Members>;

    View(bool condition);
    View(std::string text);
    View(std::string_view text);
    View(const char* text);
    View(Items items);
    View(Members members);

    /// Its content.
    [[nodiscard]] const Value& value() const { return value_; }

private:
    Value value_;
};

/// A value with its name.
struct View::Member {
    std::string name;  ///< As templates write it.
    View view;         ///< The value.
};

}  // namespace lv::analysis
