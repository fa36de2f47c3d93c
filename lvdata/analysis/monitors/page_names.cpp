#include <lvdata/analysis/monitors/page_names.h>

#include <lvdata/analysis/figures/MonitorFigures.h>

#include <map>
#include <set>
#include <string_view>

namespace lv::analysis {
namespace {

bool isLetterOrDigit(char character) {
    return ('a' <= character && character <= 'z') || ('A' <= character && character <= 'Z') ||
           ('0' <= character && character <= '9');
}

std::string lowerCase(std::string text) {
    for (char& character : text) {
        character = 'A' <= character && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    }
    return text;
}

/// The letters and digits of the text, with "-" for each run of anything else between them.
std::string safe(std::string_view text) {
    constexpr std::size_t longest = 60;
    std::string result;
    bool isGap = false;
    for (const char character : text) {
        if (!isLetterOrDigit(character)) {
            isGap = !result.empty();
        } else if (result.size() < longest) {
            result += isGap ? "-" : "";
            result += character;
            isGap = false;
        }
    }
    return result;
}

std::string joined(const std::string& left, const std::string& right) {
    return left + (left.empty() || right.empty() ? "" : "-") + right;
}

/// The name and the serial number, as far as they exist.
std::string shortName(const MonitorFigures& monitor) {
    const std::string name = joined(safe(monitor.name), safe(monitor.serial));
    const std::string other = name.empty() ? safe(monitor.uuid) : name;
    return other.empty() ? "monitor" : other;
}

/// With the UUID, for monitors whose names are not enough.
std::string longName(const MonitorFigures& monitor) {
    const std::string name = shortName(monitor);
    const std::string uuid = safe(monitor.uuid);
    return name == uuid ? name : joined(name, uuid);
}

/// Makes names different.
class UniqueNames {
public:
    /// The name, with a number if it is already in use.
    std::string unique(const std::string& name) {
        std::string result = name;
        for (std::size_t& number = numbers_[lowerCase(name)]; !taken_.insert(lowerCase(result)).second;) {
            result = name + '-' + std::to_string(++number + 1);
        }
        return result;
    }

private:
    std::set<std::string> taken_{"index"};        // the page with the table of all
    std::map<std::string, std::size_t> numbers_;  // the last number that was tried
};

}  // namespace

std::vector<std::string> pageNames(const std::vector<MonitorDocuments>& monitors) {
    std::map<std::string, std::size_t> counts;
    for (const MonitorDocuments& documents : monitors) {
        ++counts[lowerCase(shortName(latestOf(documents).snapshot.figures))];
    }
    UniqueNames names;
    std::vector<std::string> result;
    for (const MonitorDocuments& documents : monitors) {
        const MonitorFigures& monitor = latestOf(documents).snapshot.figures;
        const bool isEnough = counts[lowerCase(shortName(monitor))] == 1;
        result.push_back(names.unique(isEnough ? shortName(monitor) : longName(monitor)) + ".html");
    }
    return result;
}

}  // namespace lv::analysis
