#include <lvdata/analysis/files/Descriptor.h>
#include <lvdata/analysis/files/rights.h>

#include <tests/analysis/files/Folder.h>
#include <tests/analysis/files/in_child.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace {

using lv::analysis::adoptRights;
using lv::analysis::checked;
using lv::analysis::Descriptor;
using lv::test::inChild;

constexpr uid_t owner = 1234;
constexpr gid_t group = 4321;
constexpr const char* accessList = "system.posix_acl_access";

/// Entries of an access list as the system stores them: user::rw-, user:1234:<permissions>, group::---, mask::rw-,
/// other::---.
std::string listFor(char permissions) {
    const auto entry = [](char tag, char bits, std::string_view id) {
        return std::string{tag, '\0', bits, '\0'} + std::string(id);
    };
    using namespace std::string_view_literals;
    constexpr std::string_view none = "\xFF\xFF\xFF\xFF"sv;
    return std::string("\x02\0\0\0"sv) + entry(0x01, 6, none) + entry(0x02, permissions, "\xD2\x04\0\0"sv) +
           entry(0x04, 0, none) + entry(0x10, 6, none) + entry(0x20, 0, none);
}

class Rights : public testing::Test {
protected:
    [[nodiscard]] Descriptor make(const std::string& name, mode_t mode) const {
        const auto path = folder_.path(name);
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): that is how it is declared
        Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600));
        checked(::fchmod(file.get(), mode));
        return file;
    }

    /// A file of another owner and group, which needs root.
    [[nodiscard]] Descriptor makeForeign(mode_t mode, uid_t user = owner) const {
        Descriptor file = make("old", mode);
        checked(::fchown(file.get(), user, group));
        checked(::fchmod(file.get(), mode));
        return file;
    }

    /// As a user who is not privileged, and is a member of that group only.
    static bool adoptAs(uid_t user, gid_t memberOf, const Descriptor& file, const Descriptor& old) {
        checked(::fchown(file.get(), user, memberOf));
        const std::array<gid_t, 2> groups{memberOf, group};
        const std::size_t count = memberOf == user ? 1 : 2;
        const int status = inChild([&] {
            if (::setgroups(count, groups.data()) != 0 || ::setresgid(memberOf, memberOf, memberOf) != 0 ||
                ::setresuid(user, user, user) != 0) {
                return 2;
            }
            adoptRights(file.get(), old.get());
            return 0;
        });
        return WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }

    static struct stat statusOf(const Descriptor& file) {
        struct stat status = {};
        checked(::fstat(file.get(), &status));
        return status;
    }

    static unsigned int bitsOf(const Descriptor& file) { return statusOf(file).st_mode & 07777U; }

    static bool set(const Descriptor& file, const char* name, const std::string& value) {
        return ::fsetxattr(file.get(), name, value.data(), value.size(), 0) == 0;
    }

    static std::optional<std::string> get(const Descriptor& file, const char* name) {
        std::array<char, 1000> value{};
        const ssize_t size = ::fgetxattr(file.get(), name, value.data(), value.size());
        return size < 0 ? std::nullopt : std::optional(std::string(value.data(), static_cast<std::size_t>(size)));
    }

private:
    lv::test::Folder folder_;
};

constexpr const char* needsRoot = "only root can make files of others";
constexpr const char* needsLists = "no access lists in the folder for temporary files";
constexpr const char* needsAttributes = "no extended attributes in the folder for temporary files";

TEST_F(Rights, AreKeptForOwnFiles) {
    for (const mode_t mode : {0600U, 0640U, 0666U, 0755U, 04755U, 02755U, 01644U}) {
        const Descriptor old = make("old", mode);
        const Descriptor file = make("new", 0600);
        adoptRights(file.get(), old.get());
        EXPECT_EQ(bitsOf(file), mode);
    }
}

TEST_F(Rights, AreKeptForFilesOfOthersByRoot) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << needsRoot;
    }
    const Descriptor old = makeForeign(06755);
    const Descriptor file = make("new", 0600);
    adoptRights(file.get(), old.get());
    EXPECT_EQ(statusOf(file).st_uid, owner);
    EXPECT_EQ(statusOf(file).st_gid, group);
    EXPECT_EQ(bitsOf(file), 06755U);
}

TEST_F(Rights, OfTheGroupAreKeptWhenTheOwnerCannotBe) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << needsRoot;
    }
    const Descriptor old = makeForeign(06664);
    const Descriptor file = make("new", 0600);
    ASSERT_TRUE(adoptAs(2000, 3000, file, old));
    EXPECT_EQ(statusOf(file).st_uid, 2000U);
    EXPECT_EQ(statusOf(file).st_gid, group);
    EXPECT_EQ(bitsOf(file), 0664U) << "without the bits that let a program run as its owner or group";
}

TEST_F(Rights, AreThoseOfOthersWhenTheGroupCannotBeKept) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << needsRoot;
    }
    const Descriptor old = makeForeign(02674, 2000);
    const Descriptor file = make("new", 0600);
    ASSERT_TRUE(adoptAs(2000, 2000, file, old));
    EXPECT_EQ(statusOf(file).st_gid, 2000U);
    EXPECT_EQ(bitsOf(file), 0644U);
}

TEST_F(Rights, OfAnAccessListAreKept) {
    const Descriptor old = make("old", 0600);
    if (!set(old, accessList, listFor(4))) {
        GTEST_SKIP() << needsLists;
    }
    const Descriptor file = make("new", 0600);
    adoptRights(file.get(), old.get());
    EXPECT_EQ(get(file, accessList), listFor(4));
    EXPECT_EQ(bitsOf(file), 0660U);
}

TEST_F(Rights, OfAnAccessListDoNotComeFromTheFolder) {
    const Descriptor old = make("old", 0640);
    const Descriptor file = make("new", 0600);
    if (!set(file, accessList, listFor(6))) {
        GTEST_SKIP() << needsLists;
    }
    adoptRights(file.get(), old.get());
    EXPECT_EQ(get(file, accessList), std::nullopt);
    EXPECT_EQ(bitsOf(file), 0640U);
}

TEST_F(Rights, ComeWithTheAttributes) {
    const Descriptor old = make("old", 0600);
    if (!set(old, "user.origin", "sensor") || !set(old, "user.empty", "")) {
        GTEST_SKIP() << needsAttributes;
    }
    const Descriptor file = make("new", 0600);
    adoptRights(file.get(), old.get());
    EXPECT_EQ(get(file, "user.origin"), "sensor");
    EXPECT_EQ(get(file, "user.empty"), "");
}

TEST_F(Rights, AreRefusedWithAnAttributeThatCannotBeKept) {
    const Descriptor old = make("old", 0600);
    if (!set(old, "user.origin", "sensor")) {
        GTEST_SKIP() << needsAttributes;
    }
    std::array<int, 2> pipe{};  // has no attributes
    ASSERT_EQ(::pipe(pipe.data()), 0);
    const Descriptor reader(pipe[0]);
    const Descriptor file(pipe[1]);
    try {
        adoptRights(file.get(), old.get());
        FAIL() << "not refused";
    } catch (const std::system_error& error) {
        EXPECT_EQ(std::string(error.what()).rfind("the file's attribute 'user.origin' cannot be kept: ", 0), 0U)
            << error.what();
    }
}

TEST_F(Rights, DoNotIncludeAttributesThatSignTheContent) {
    const Descriptor old = make("old", 0755);
    using namespace std::string_literals;
    // One capability, as the system stores it: revision 2, permitted CAP_NET_BIND_SERVICE.
    if (!set(old, "security.capability",
             "\x00\x00\x00\x02\x00\x04\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00"s)) {
        GTEST_SKIP() << needsRoot;
    }
    const Descriptor file = make("new", 0600);
    adoptRights(file.get(), old.get());
    EXPECT_EQ(get(file, "security.capability"), std::nullopt);
}

}  // namespace
