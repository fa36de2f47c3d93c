#pragma once

#include <tests/properties/Members.h>

#include <cstddef>
#include <string>
#include <vector>

namespace lv::test {

/// Gives every member another value, and every list a row more.
class Changed : public Members {
private:
    void visit(bool& member) override { member = !member; }
    void visit(int& member) override { member ^= 1; }
    void visit(unsigned int& member, const MemberTraits& /*traits*/) override { member ^= 1U; }
    void visit(std::string& member, const MemberTraits& /*traits*/) override { member += 'x'; }
    void visit(std::vector<int>& member, const MemberTraits& /*traits*/) override { member.push_back(1); }
    void visit(std::vector<unsigned int>& member, const MemberTraits& /*traits*/) override { member.push_back(1); }
    [[nodiscard]] std::size_t rowCount(std::size_t present) override { return present + 1; }
};

}  // namespace lv::test
