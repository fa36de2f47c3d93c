#include <gtest/gtest.h>

#include <cstdlib>

/// The cases are the same in every run, unless RC_PARAMS asks for others.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    constexpr int keepWhatIsSet = 0;
    setenv("RC_PARAMS", "seed=27182818", keepWhatIsSet);
    return RUN_ALL_TESTS();
}
