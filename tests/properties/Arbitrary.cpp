#include <tests/properties/Arbitrary.h>
#include <tests/support/model/reading.h>

#include <algorithm>

namespace lv::test {
namespace {

using Pieces = std::vector<std::string>;

const Pieces& xmlPieces() {
    static const Pieces pieces = {
        "a",          "Value",     "0",      "12",     "|",
        "1|2|3",      " ",         "  ",     "\t",     "\n",
        "<",          ">",         "&",      "\"",     "'",
        "]]>",        "<![CDATA[", "<!-- ",  " -->",   "<a/>",
        "</a>",       "&amp;",     "&#65;",  "&lt;",   "&nbsp;",
        "?>",         "\\",        "%s",     "\r",     "\r\n",
        "\n\r",       "\u00e9",    "\u2028", "\ufffd", "\u6f22\u5b57",
        "\U0001f3a8", "e\u0301",   "\u00a0", "\ufeff", std::string(3000, 'x'),
    };
    return pieces;
}

const Pieces& otherPieces() {
    static const Pieces pieces = {
        std::string(1, '\0'), "\x01", "\v", "\f", "\x1b", "\x7f", "\x80", "\xff\xfe", "\xc3", "\xed\xa0\x80",
    };
    return pieces;
}

}  // namespace

Arbitrary::Arbitrary(const rc::Random& random, Texts texts, const TraitsByPath& traits)
    : random_(random),
      texts_(texts),
      traits_(&traits),
      setInEight_(oneOf<std::size_t>({1, 4, 7, 8})) {}

std::size_t Arbitrary::below(std::size_t end) {
    return static_cast<std::size_t>(random_.next() % end);
}

unsigned int Arbitrary::number() {
    static const std::vector<unsigned int> limits = {0, 1, 9, 10, 99, 2147483647, 2147483648, 4294967295};
    return oneIn(2) ? oneOf(limits) : static_cast<unsigned int>(random_.next());
}

std::string Arbitrary::text() {
    std::string text;
    for (std::size_t count = below(4); count != 0; --count) {
        text += oneOf(texts_ == Texts::any && oneIn(4) ? otherPieces() : xmlPieces());
    }
    return text;
}

std::size_t Arbitrary::length(const Traits& traits) {
    static const std::vector<std::size_t> lengths = {0, 0, 1, 2, 3, 4, 5, 8, 9, 10, 255, 257};
    return traits.lengths.empty() || oneIn(3) ? oneOf(lengths) : oneOf(traits.lengths);
}

void Arbitrary::visit(const std::string& path, const Place& place) {
    static const Traits none;
    const auto found = traits_->find(path);
    std::visit([&](auto* value) { give(*value, found == traits_->end() ? none : found->second); }, place);
}

void Arbitrary::visitRows(const std::string& /*path*/, Rows& rows) {
    rows.resize(below(4));
}

void Arbitrary::give(bool& value, const Traits& /*traits*/) {
    value = below(8) < setInEight_;
}

void Arbitrary::give(int& value, const Traits& /*traits*/) {
    value = static_cast<int>(number());
}

void Arbitrary::give(unsigned int& value, const Traits& traits) {
    value = number();
    if (!traits.texts.empty() && !oneIn(4)) {
        assign(&value, oneOf(traits.texts));
    }
}

void Arbitrary::give(double& value, const Traits& /*traits*/) {
    value = number();
}

void Arbitrary::give(std::string& value, const Traits& traits) {
    value = traits.texts.empty() || oneIn(4) ? text() : oneOf(traits.texts);
}

template <class Number>
void Arbitrary::give(std::vector<Number>& values, const Traits& traits) {
    values.resize(length(traits));
    std::generate(values.begin(), values.end(), [this] { return static_cast<Number>(number()); });
}

}  // namespace lv::test
