#pragma once

#include <tests/support/model/Node.h>

#include <map>

namespace lv::test {

/// What the description says of a member that makes some of its values more telling than others.
struct Traits {
    std::vector<std::string> texts{};    ///< Texts, or numbers in decimal, that decide something.
    std::vector<std::size_t> lengths{};  ///< Numbers of entries that decide something.
};

/// The traits of the members by their paths, as `MemberVisitor` has them.
using TraitsByPath = std::map<std::string, Traits>;

/// Of all members below the node. Lists have rows afterwards.
[[nodiscard]] TraitsByPath traitsOf(const Node& root);

}  // namespace lv::test
