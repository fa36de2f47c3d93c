#pragma once

#include <tests/support/Member.h>

#include <lvdata/core/Description.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace lv::test {

/// One element, attribute or text of a record's description, together with the member that it is of: what the library
/// says of itself beside what the lists of members say. Of a list there is one node, and one more for each of its rows
/// when asked for.
struct Node {
    const lv::Description* facts = nullptr;
    Node* parent = nullptr;
    std::vector<std::unique_ptr<Node>> children{};

    std::string path{};            ///< The path of the member, as `MemberVisitor` knows it.
    bool hasPlace = false;         ///< Whether it has one value.
    Place place{};                 ///< Of that value.
    std::shared_ptr<Rows> rows{};  ///< Of rows.
    bool* wasRead = nullptr;       ///< Of rows.
    bool* flag = nullptr;          ///< The member's flag, or that of the value which the node is part of.

    // What reading found.
    bool exists = false;
    bool hasText = false;
};

/// The node of a record's root element.
///
/// Throws `std::logic_error`, which names both sides, when the description and the members do not belong together: in
/// number, order, type or flags.
[[nodiscard]] std::unique_ptr<Node> boundRoot(const lv::Description& description, const Members& members);

/// The node of the element of one row. It does not outlive the list's node, nor another number of rows.
[[nodiscard]] std::unique_ptr<Node> boundRow(const Node& list, std::size_t index);

/// Where the value of an attribute, element or text is held. Throws when it has none.
[[nodiscard]] const Place& placeOf(const Node& node);

/// The nodes that the subjects of a condition of `node` stand for.
[[nodiscard]] std::vector<const Node*> subjectsOf(const lv::Condition& condition, const Node& node);

}  // namespace lv::test
