#include "OutputTest.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

bool becomeUnprivileged() {
    constexpr uid_t nobody = 65534;
    const bool dropped = ::geteuid() != 0 || (::setgid(nobody) == 0 && ::setuid(nobody) == 0);
    return dropped && ::access(LVDATA_TOOL, X_OK) == 0;
}

}  // namespace

bool limitFileSize() {
    const rlimit limit{1'000'000, 1'000'000};
    return ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

unsigned int permissionsOf(const fs::path& path) {
    return static_cast<unsigned int>(fs::status(path).permissions());
}

OutputTest::OutputTest() {
    write("in.xml", untidy);
    write("broken.xml", "<AssetInfo>");
    write("large.xml", large());
}

Outcome OutputTest::formatTo(const std::string& output, const Surroundings& around) const {
    return run({"format", "--no-declaration", "in.xml", "-o", output}, around);
}

std::optional<Outcome> OutputTest::runUnprivileged(const std::vector<std::string>& arguments) const {
    fs::permissions(path("."), fs::perms{0777});
    fs::permissions(path(".."), fs::perms{0755});
    const Outcome outcome = run(arguments, {"", "", becomeUnprivileged});
    return outcome.exitCode == notStarted ? std::nullopt : std::optional(outcome);
}

bool OutputTest::holdsBesides(std::vector<std::string> others) const {
    others.insert(others.end(), {"broken.xml", "in.xml", "large.xml"});
    return testing::Matches(testing::UnorderedElementsAreArray(others))(names());
}
