#include <lvdata/xml/Limits.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <tinyxml2.h>

// The scan for what goes beyond the limits must see the tags and texts that the XML library sees: were it led astray by
// some odd markup, that could hide anything. So both count in documents that were changed at random.

namespace {

using lv::findExcess;
using lv::Limits;

/// The largest numbers in what the XML library made of a document.
class Counts : public tinyxml2::XMLVisitor {
public:
    std::size_t elements = 0;
    std::size_t nodes = 0;
    std::size_t attributes = 0;
    std::size_t brokenReferences = 0;

    bool VisitEnter(const tinyxml2::XMLElement& /*element*/, const tinyxml2::XMLAttribute* first) override {
        ++elements;
        ++nodes;
        std::size_t count = 0;
        for (const auto* attribute = first; attribute != nullptr; attribute = attribute->Next()) {
            ++count;
            countReferences(attribute->Value());
        }
        nodes += count;
        attributes = std::max(attributes, count);
        return true;
    }

    bool Visit(const tinyxml2::XMLText& text) override {
        ++nodes;
        if (!text.CData()) {
            countReferences(text.Value());
        }
        return true;
    }

    bool Visit(const tinyxml2::XMLComment& /*comment*/) override { return countNode(); }
    bool Visit(const tinyxml2::XMLDeclaration& /*declaration*/) override { return countNode(); }
    bool Visit(const tinyxml2::XMLUnknown& /*unknown*/) override { return countNode(); }

private:
    bool countNode() {
        ++nodes;
        return true;
    }

    /// Walks backwards: a ';' serves the last "&#" before it.
    void countReferences(const std::string& text) {
        std::size_t count = 0;
        bool ended = false;
        for (std::size_t at = text.size(); at-- > 0;) {
            ended = ended || text[at] == ';';
            if (text.compare(at, 2, "&#") == 0) {
                count += ended ? 0 : 1;
                ended = false;
            }
        }
        brokenReferences = std::max(brokenReferences, count);
    }
};

using Pieces = std::vector<std::string>;

const Pieces everyPiece = {"<a",   "<b",        "< a", "</a>", "</b>", ">",   "/>",    "/",        " ", "\n",   "c='",
                           "d=\"", "e",         "=",   "'",    "\"",   "&#",  "&#65;", ";",        "x", "<!--", "-->",
                           "--",   "<![CDATA[", "]]>", "]",    "<!X",  "<?y", "?>",    "\xC3\xA4", "<", "&"};

const Pieces wellFormed = {"<a", " ",  "c='", "x",     "'",    " ",  "d=\"", "&#",        "\"", ">",
                           "x",  "<b", "/>",  "&#65;", "<!--", "x",  "-->",  "<![CDATA[", "x",  "]]>",
                           "<b", "\n", "c='", "'",     ">",    "&#", "</b>", "</a>"};

std::string joined(const Pieces& pieces) {
    std::string text;
    for (const std::string& piece : pieces) {
        text += piece;
    }
    return text;
}

class Changes {
public:
    explicit Changes(unsigned int seed) : random_(seed) {}

    /// The well-formed document with up to five pieces removed or put in.
    std::string document() {
        Pieces pieces = wellFormed;
        for (std::size_t count = number(6); count > 0; --count) {
            const auto place = pieces.begin() + static_cast<Pieces::difference_type>(number(pieces.size()));
            if (number(2) == 0) {
                pieces.erase(place);
            } else {
                pieces.insert(place, everyPiece[number(everyPiece.size())]);
            }
        }
        return joined(pieces);
    }

private:
    std::size_t number(std::size_t end) { return random_() % end; }

    std::mt19937 random_;
};

constexpr Limits noLimits() {
    constexpr std::size_t none = std::numeric_limits<std::size_t>::max();
    return {none, none, none, none, none};
}

void expectFoundOnlyBeyond(const std::string& text, std::size_t Limits::*limit, std::size_t count) {
    Limits limits = noLimits();
    limits.*limit = count;
    EXPECT_FALSE(findExcess(text, limits)) << count << " in " << text;
    if (count > 0) {
        limits.*limit = count - 1;
        EXPECT_TRUE(findExcess(text, limits)) << count << " in " << text;
    }
}

/// Whether the XML library takes the whole document, in which case both must count the same.
bool agreeOn(const std::string& text) {
    tinyxml2::XMLDocument document(false);       // texts as they stand
    const std::string whole = text + "<last/>";  // an end tag too many would end the document before this
    const bool accepted = document.Parse(whole.c_str()) == tinyxml2::XML_SUCCESS;
    const tinyxml2::XMLNode* const last = document.LastChild();
    const bool taken = accepted && last != nullptr && std::string(last->Value()) == "last";
    if (taken) {
        Counts counts;
        document.Accept(&counts);
        expectFoundOnlyBeyond(whole, &Limits::elements, counts.elements);
        expectFoundOnlyBeyond(whole, &Limits::nodes, counts.nodes);
        expectFoundOnlyBeyond(whole, &Limits::attributes, counts.attributes);
        expectFoundOnlyBeyond(whole, &Limits::brokenReferences, counts.brokenReferences);
    }
    return taken;
}

TEST(LimitsAgreement, BothCountTheSameInDocumentsChangedAtRandom) {
    Changes changes(1);
    int taken = 0;
    for (int count = 0; count < 50'000 && !testing::Test::HasFailure(); ++count) {
        taken += agreeOn(changes.document()) ? 1 : 0;
    }
    EXPECT_GT(taken, 10'000);
}

}  // namespace
