#pragma once

#include <lvdata/analysis/files/windows/errors.h>

#include <utility>

#include <windows.h>

namespace lv::analysis {

/// Owns an open handle of a file.
class Handle {
public:
    /// Takes over what `CreateFileW` returned; throws `std::system_error` when that failed.
    explicit Handle(HANDLE opened) : handle_(opened) { require(opened != INVALID_HANDLE_VALUE); }

    ~Handle() { close(); }

    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    Handle(Handle&& other) noexcept : handle_(other.release()) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }

    [[nodiscard]] HANDLE get() const { return handle_; }

    /// Gives the handle away.
    HANDLE release() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

    void close() {
        if (handle_ != INVALID_HANDLE_VALUE) {
            ::CloseHandle(release());
        }
    }

private:
    HANDLE handle_;
};

}  // namespace lv::analysis
