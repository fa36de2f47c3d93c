#include <lvdata/analysis/files/windows/errors.h>

#include <windows.h>

namespace lv::analysis {

std::error_code lastError() {
    const DWORD number = ::GetLastError();
    if (number == ERROR_BROKEN_PIPE || number == ERROR_NO_DATA) {
        return std::make_error_code(std::errc::broken_pipe);
    }
    const std::error_code error(static_cast<int>(number), std::system_category());
    const std::error_condition known = error.default_error_condition();
    return known.category() == std::generic_category() ? std::error_code(known.value(), known.category()) : error;
}

void require(bool succeeded) {
    if (!succeeded) {
        throw std::system_error(lastError());
    }
}

}  // namespace lv::analysis
