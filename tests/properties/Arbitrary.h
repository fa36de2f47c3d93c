#pragma once

#include <tests/properties/Members.h>

#include <cstddef>
#include <string>
#include <vector>

#include <rapidcheck/Random.h>

namespace lv::test {

/// Which texts occur.
enum class Texts {
    xml,  ///< such as XML allows
    any,  ///< also control characters, NUL, and bytes that are no UTF-8
};

/// Gives every member any state: set or not, values behind clear flags, limits, odd texts, arrays of lengths that count
/// and of others, any number of rows. In some records hardly any flag is set, in others all are: where only two set
/// flags let a value be written, both are often enough.
class Arbitrary : public Members {
public:
    Arbitrary(const rc::Random& random, Texts texts);

private:
    void visit(bool& member) override;
    void visit(int& member) override;
    void visit(unsigned int& member, const MemberTraits& traits) override;
    void visit(std::string& member, const MemberTraits& traits) override;
    void visit(std::vector<int>& member, const MemberTraits& traits) override;
    void visit(std::vector<unsigned int>& member, const MemberTraits& traits) override;
    [[nodiscard]] std::size_t rowCount(std::size_t present) override;

    /// A number below `end`.
    [[nodiscard]] std::size_t below(std::size_t end);
    [[nodiscard]] bool oneIn(std::size_t many) { return below(many) == 0; }

    template <class T>
    [[nodiscard]] const T& oneOf(const std::vector<T>& values) {
        return values[below(values.size())];
    }

    [[nodiscard]] unsigned int number();
    [[nodiscard]] std::string text();
    [[nodiscard]] std::size_t length(const MemberTraits& traits);

    rc::Random random_;
    Texts texts_;
    std::size_t setInEight_;  ///< how many of eight flags are set
};

}  // namespace lv::test
