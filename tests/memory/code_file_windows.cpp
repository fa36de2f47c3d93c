#include "code_file.h"

#include <filesystem>

#include <windows.h>

namespace lv::test {

std::string fileOf(const void* code) {
    constexpr DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE module = nullptr;
    if (::GetModuleHandleExW(flags, static_cast<LPCWSTR>(code), &module) == 0) {
        return "unknown";
    }
    std::wstring path(MAX_PATH, L'\0');
    path.resize(::GetModuleFileNameW(module, path.data(), MAX_PATH));
    return std::filesystem::path(path).filename().u8string();
}

}  // namespace lv::test
