#pragma once

#include <tests/support/model/traits.h>

#include <cstddef>
#include <string>
#include <vector>

#include <rapidcheck/Random.h>

namespace lv::test {

/// Which texts occur.
enum class Texts {
    xml,  ///< such as XML allows
    any,  ///< also control characters, NUL, and bytes that are not UTF-8
};

/// Gives every member any state: set or not, values behind clear flags, limits, odd texts, arrays of lengths that count
/// and of others, any number of rows. In some records hardly any flag is set, in others all are: where only two set
/// flags let a value be written, both are often enough.
class Arbitrary : public MemberVisitor {
public:
    Arbitrary(const rc::Random& random, Texts texts, const TraitsByPath& traits);

private:
    void visit(const std::string& path, const Place& place) override;
    void visitRows(const std::string& path, Rows& rows) override;

    void give(bool& value, const Traits& traits);
    void give(int& value, const Traits& traits);
    void give(unsigned int& value, const Traits& traits);
    void give(double& value, const Traits& traits);
    void give(std::string& value, const Traits& traits);

    template <class Number>
    void give(std::vector<Number>& values, const Traits& traits);

    /// A number below `end`.
    [[nodiscard]] std::size_t below(std::size_t end);
    [[nodiscard]] bool oneIn(std::size_t many) { return below(many) == 0; }

    template <class T>
    [[nodiscard]] const T& oneOf(const std::vector<T>& values) {
        return values[below(values.size())];
    }

    [[nodiscard]] unsigned int number();
    [[nodiscard]] std::string text();
    [[nodiscard]] std::size_t length(const Traits& traits);

    rc::Random random_;
    Texts texts_;
    const TraitsByPath* traits_;
    std::size_t setInEight_;  ///< how many of eight flags are set
};

}  // namespace lv::test
