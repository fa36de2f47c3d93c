#include <lvdata/analysis/files/Descriptor.h>
#include <lvdata/analysis/files/rights.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace lv::analysis {
namespace {

using Status = struct stat;

constexpr const char* accessList = "system.posix_acl_access";

Status statusOf(int file) {
    Status status = {};
    checked(::fstat(file, &status));
    return status;
}

[[noreturn]] void refuse(const std::string& name) {
    const int reason = errno;
    throw std::system_error(reason, std::generic_category(), "the file's attribute '" + name + "' cannot be kept");
}

std::vector<std::string> attributeNames(int file) {
    const ssize_t size = ::flistxattr(file, nullptr, 0);
    if (size < 0 && errno == ENOTSUP) {
        return {};
    }
    std::string list(static_cast<std::size_t>(checked(size)), '\0');
    list.resize(static_cast<std::size_t>(checked(::flistxattr(file, list.data(), list.size()))));
    std::vector<std::string> names;
    for (std::size_t at = 0; at < list.size(); at = list.find('\0', at) + 1) {
        names.emplace_back(&list[at]);
    }
    return names;
}

/// No value when the file does not have it.
std::optional<std::string> attribute(int file, const std::string& name) {
    const ssize_t size = ::fgetxattr(file, name.c_str(), nullptr, 0);
    if (size < 0 && (errno == ENODATA || errno == ENOTSUP)) {
        return std::nullopt;
    }
    std::string value(size < 0 ? 0 : static_cast<std::size_t>(size), '\0');
    if (size < 0 || ::fgetxattr(file, name.c_str(), value.data(), value.size()) != size) {
        refuse(name);
    }
    return value;
}

bool vouchesForContent(const std::string& name) {
    constexpr std::array<std::string_view, 3> names{"security.capability", "security.evm", "security.ima"};
    return std::find(names.begin(), names.end(), name) != names.end();
}

void keepAttribute(int file, int old, const std::string& name) {
    const auto value = attribute(old, name);
    if (!value || attribute(file, name) == value) {
        return;
    }
    if (::fsetxattr(file, name.c_str(), value->data(), value->size(), 0) != 0) {
        refuse(name);
    }
}

void keepAttributes(int file, int old) {
    for (const std::string& name : attributeNames(old)) {
        if (!vouchesForContent(name)) {
            keepAttribute(file, old, name);
        }
    }
    // From the folder's default, and so perhaps for users who have no access to the old file.
    if (!attribute(old, accessList) && attribute(file, accessList)) {
        checked(::fremovexattr(file, accessList));
    }
}

void keepOwner(int file, const Status& old) {
    // Only a privileged user can change the owner; otherwise the new file belongs to the current user.
    if (::fchown(file, old.st_uid, old.st_gid) != 0) {
        [[maybe_unused]] const int ignored = ::fchown(file, static_cast<uid_t>(-1), old.st_gid);
    }
}

mode_t keptBits(const Status& file, const Status& old) {
    mode_t bits = old.st_mode & 07777U;
    if (file.st_uid != old.st_uid || file.st_gid != old.st_gid) {
        bits &= 01777U;
    }
    if (file.st_gid != old.st_gid) {
        const mode_t everybody = bits & 07U;
        bits &= 01707U | (everybody << 3U);
    }
    return bits;
}

}  // namespace

void adoptRights(int file, int old) {
    const Status oldStatus = statusOf(old);
    keepOwner(file, oldStatus);
    keepAttributes(file, old);
    checked(::fchmod(file, keptBits(statusOf(file), oldStatus)));
}

}  // namespace lv::analysis
