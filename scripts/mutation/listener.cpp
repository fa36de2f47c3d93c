// Part of each test program that scripts/mutate runs: says which mutants each test reaches.
#include <gtest/gtest.h>
#include <lvdata/mutation.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

class Reached final : public testing::EmptyTestEventListener {
public:
    explicit Reached(unsigned char* reached)
        : reached_(reached),
          out_(std::getenv("LVDATA_MUTANTS_OUT"), std::ios::app) {}

    void OnTestProgramStart(const testing::UnitTest& /*tests*/) override { write("*", 0); }

    void OnTestEnd(const testing::TestInfo& test) override {
        write(std::string(test.test_suite_name()) + "." + test.name(), test.result()->elapsed_time());
    }

private:
    void write(const std::string& name, long long milliseconds) {
        out_ << name << '\t' << milliseconds << '\t';
        for (std::size_t mutant = 0; mutant != size_; ++mutant) {
            if (reached_[mutant] != 0) {
                out_ << mutant << ' ';
            }
        }
        out_ << std::endl;
        std::fill(reached_, reached_ + size_, '\0');
    }

    unsigned char* reached_;
    std::size_t size_ = std::strtoul(std::getenv("LVDATA_MUTANTS_SIZE"), nullptr, 10);
    std::ofstream out_;
};

[[maybe_unused]] const bool isListening = [] {
    unsigned char* const reached = lv::mutation::openReached();
    if (reached != nullptr) {
        testing::UnitTest::GetInstance()->listeners().Append(new Reached(reached));
    }
    return true;
}();

}  // namespace
