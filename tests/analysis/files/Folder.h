#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#include <vector>

namespace lv::test {

/// A folder of the test's own, which goes with it.
class Folder {
public:
    Folder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / ("lvdata-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));  // false for one that is there already
    }

    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    Folder(Folder&&) = delete;
    Folder& operator=(Folder&&) = delete;

    /// A file in the folder, its content, and the names of everything there, sorted.
    [[nodiscard]] std::filesystem::path path(const std::string& name) const { return path_ / name; }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(path(name), std::ios::binary) << text;
    }

    [[nodiscard]] std::string read(const std::string& name) const {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    [[nodiscard]] std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            found.push_back(entry.path().filename().string());
        }
        std::sort(found.begin(), found.end());
        return found;
    }

private:
    std::filesystem::path path_;
};

}  // namespace lv::test
