#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace lv::test {

/// A new folder with letters beyond ASCII in its name, which goes at the end.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    Folder(Folder&&) = delete;
    Folder& operator=(Folder&&) = delete;

    /// A file in it; the name is UTF-8.
    [[nodiscard]] std::filesystem::path path(const std::string& name) const {
        return folder_ / std::filesystem::u8path(name);
    }
    void write(const std::string& name, const std::string& text) const;
    [[nodiscard]] std::string read(const std::string& name) const;
    [[nodiscard]] std::vector<std::string> names() const;

private:
    std::filesystem::path folder_;
};

}  // namespace lv::test
