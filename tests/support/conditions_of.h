#pragma once

#include <lvdata/core/Description.h>

#include <cstddef>
#include <vector>

namespace lv::test {

/// All conditions of a node with their alternatives.
[[nodiscard]] inline std::vector<Condition> conditionsOf(const Description& node) {
    std::vector<Condition> conditions = node.writtenWhen;
    conditions.insert(conditions.end(), node.readWhen.begin(), node.readWhen.end());
    if (node.flag) {
        conditions.push_back(*node.flag);
    }
    for (const Description::QuantityWhen& other : node.otherQuantities) {
        conditions.push_back(other.condition);
    }
    for (std::size_t index = 0; index < conditions.size(); ++index) {
        const std::vector<Condition> alternatives = conditions[index].alternatives;
        conditions.insert(conditions.end(), alternatives.begin(), alternatives.end());
    }
    return conditions;
}

}  // namespace lv::test
