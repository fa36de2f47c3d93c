#pragma once

#include <lvdata/analysis/files/system_files.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace lv::analysis {

/// The result of a system call; throws `std::system_error` with its reason when the call failed.
template <class Result>
Result checked(Result result) {
    if (result < 0) {
        throw std::system_error(errno, std::generic_category());
    }
    return result;
}

/// Owns an open file descriptor.
class Descriptor {
public:
    /// Takes ownership of the descriptor that a system call returned; throws as `checked` does.
    explicit Descriptor(int opened) : descriptor_(checked(opened)) {}

    ~Descriptor() {
        if (descriptor_ != closed) {
            closeDescriptor(descriptor_);
        }
    }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor(Descriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, closed)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }

    [[nodiscard]] int get() const { return descriptor_; }

    /// Closes now; throws when the last bytes could not be stored.
    void close() { checked(closeDescriptor(std::exchange(descriptor_, closed))); }

private:
    static constexpr int closed = -1;
    int descriptor_;
};

}  // namespace lv::analysis
