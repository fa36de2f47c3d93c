#pragma once

#include <tests/properties/Members.h>

#include <cstddef>

namespace lv::test {

/// Makes a record simpler in one place: of all that can be set back to its default, or erased, one. What a failing case
/// is shrunk by, until nothing is left in it that the failure can do without.
class Simpler : public Members {
public:
    explicit Simpler(std::size_t place) : place_(place) {}

    /// Whether there was such a place.
    [[nodiscard]] bool done() const { return seen_ > place_; }

private:
    void visit(bool& /*member*/) override {}
    void visit(int& /*member*/) override {}
    void visit(unsigned int& /*member*/, const MemberTraits& /*traits*/) override {}
    void visit(std::string& /*member*/, const MemberTraits& /*traits*/) override {}
    void visit(std::vector<int>& /*member*/, const MemberTraits& /*traits*/) override {}
    void visit(std::vector<unsigned int>& /*member*/, const MemberTraits& /*traits*/) override {}

    [[nodiscard]] bool resetsProperty(bool /*hasValue*/, bool isDefault) override { return !isDefault && isThePlace(); }
    [[nodiscard]] bool resetsPlain(bool isDefault) override { return !isDefault && isThePlace(); }
    [[nodiscard]] bool erasesRow() override { return isThePlace(); }

    [[nodiscard]] bool isThePlace() { return seen_++ == place_; }

    std::size_t place_;
    std::size_t seen_ = 0;
};

}  // namespace lv::test
