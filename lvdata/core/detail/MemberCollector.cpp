#include <lvdata/core/detail/MemberCollector.h>

#include <algorithm>

namespace lv::detail {

MemberPairs::MemberPairs() = default;
MemberPairs::~MemberPairs() = default;

void MemberPairs::add(std::size_t side, const Member& member) {
    sides_.at(side).push_back(member);
}

bool MemberPairs::areEqual() const {
    const auto& [left, right] = sides_;
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const Member& one, const Member& other) { return one.isEqual(one.address, other.address); });
}

}  // namespace lv::detail
