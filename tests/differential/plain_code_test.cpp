#include <tests/differential/Damage.h>
#include <tests/differential/Subject.h>
#include <tests/support/documents.h>
#include <tests/support/golden.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The library's fast code against plain code for the same records: both read documents of all kinds, whole and damaged,
// and must agree in what they take, in every member and in every character that they print.

namespace differential {
namespace {

constexpr std::size_t documentsPerRecord = 600;

/// Documents that the record accepts: its sample in several forms, and the golden ones.
std::vector<std::string> wholeDocuments(const std::string& record) {
    const auto sample = plainSubjects().at(record)();
    sample->fill();
    const std::string text = sample->print(false);
    std::vector<std::string> documents = lv::test::goldenTextsOf(record);
    documents.insert(documents.end(),
                     {text, text, text, sample->print(true), lv::test::withOtherTexts(text),
                      lv::test::withRepeatedLeaves(text), lv::test::withUnknownContent(text),
                      lv::test::withChildrenOneLevelDeeper(text), lv::test::withChildrenReversed(text)});
    return documents;
}

/// The same record in both styles.
class Pair {
public:
    explicit Pair(const std::string& record)
        : library_(librarySubjects().at(record)()),
          plain_(plainSubjects().at(record)()) {}

    void fill() {
        library_->fill();
        plain_->fill();
    }

    /// Whether both took it; that only one does fails the test, as does any difference afterwards.
    bool parse(const std::string& document) {
        const bool taken = library_->parse(document);
        EXPECT_EQ(taken, plain_->parse(document));
        EXPECT_EQ(library_->members(), plain_->members());
        EXPECT_EQ(library_->print(false), plain_->print(false));
        EXPECT_EQ(library_->print(true), plain_->print(true));
        return taken;
    }

private:
    std::unique_ptr<Subject> library_;
    std::unique_ptr<Subject> plain_;
};

class PlainCode : public ::testing::TestWithParam<std::string> {
protected:
    /// Reads it into fresh records, or into filled ones; with a failure the rest of the documents is not tried.
    static bool parse(const std::string& document, bool intoFilled) {
        Pair pair(GetParam());
        if (intoFilled) {
            pair.fill();
        }
        const bool taken = pair.parse(document);
        EXPECT_FALSE(HasFailure()) << "the document:\n" << document;
        return taken;
    }
};

std::vector<std::string> everyName() {
    std::vector<std::string> names;
    for (const auto& [name, maker] : librarySubjects()) {
        names.push_back(name);
    }
    return names;
}

std::string nameOf(const ::testing::TestParamInfo<std::string>& info) {
    return info.param;
}

INSTANTIATE_TEST_SUITE_P(EveryRecord, PlainCode, ::testing::ValuesIn(everyName()), nameOf);

TEST_P(PlainCode, AgreesOnWholeDocuments) {
    for (const std::string& document : wholeDocuments(GetParam())) {
        EXPECT_TRUE(parse(document, false));
        EXPECT_TRUE(parse(document, true));
    }
}

TEST_P(PlainCode, AgreesOnDamagedDocuments) {
    const std::vector<std::string> whole = wholeDocuments(GetParam());
    Damage damage(20240401);
    std::size_t taken = 0;
    for (std::size_t index = 0; index < documentsPerRecord && !HasFailure(); ++index) {
        const std::string document = damage.damaged(whole[index % whole.size()]);
        taken += parse(document, index % 3 == 0) ? 1 : 0;
    }
    EXPECT_GT(taken, documentsPerRecord / 3) << "most documents are not even well-formed";
}

}  // namespace
}  // namespace differential
