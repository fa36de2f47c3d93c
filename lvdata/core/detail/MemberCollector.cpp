#include <lvdata/core/detail/MemberCollector.h>

#include <algorithm>

namespace lv::detail {

MemberPairs::MemberPairs() = default;
MemberPairs::~MemberPairs() = default;

void MemberPairs::add(std::size_t side, const Member& member) {
    sides_[side].push_back(member);
}

bool MemberPairs::areEqual() const {
    return std::equal(
        sides_[0].begin(), sides_[0].end(), sides_[1].begin(), sides_[1].end(),
        [](const Member& left, const Member& right) { return left.isEqual(left.address, right.address); });
}

}  // namespace lv::detail
