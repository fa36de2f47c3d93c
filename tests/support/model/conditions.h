#pragma once

#include <tests/support/model/Node.h>

namespace lv::test {

/// Whether a condition of the node holds for what the members hold and what reading found.
///
/// \param hlgSwitch  that of the record that is printed
[[nodiscard]] bool holds(const lv::Condition& condition, const Node& node, bool hlgSwitch = false);

[[nodiscard]] bool allHold(const std::vector<lv::Condition>& conditions, const Node& node, bool hlgSwitch = false);

/// Whether an array has one of the numbers of entries that count. Anything but an array does.
[[nodiscard]] bool lengthCounts(const Node& node);

}  // namespace lv::test
