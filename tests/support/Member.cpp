#include <tests/support/Member.h>

#include <limits>
#include <sstream>
#include <string_view>

namespace lv::test {
namespace {

/// One line whatever the text holds, and no two texts alike.
std::string escaped(char character) {
    if (character == '\n') {
        return "\\n";
    }
    if (character == '\\' || character == '"') {
        return {'\\', character};
    }
    const auto code = static_cast<unsigned char>(character);
    if (code >= 0x20 && code != 0x7f) {
        return {character};
    }
    constexpr std::string_view digits = "0123456789abcdef";
    return {'\\', 'x', digits[code / 16], digits[code % 16]};
}

std::string textOf(bool value) {
    return value ? "true" : "false";
}

template <class Number>
std::string textOf(Number value) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(std::numeric_limits<double>::max_digits10);
    text << value;
    return text.str();
}

std::string textOf(const std::string& value) {
    std::string text = "\"";
    for (const char character : value) {
        text += escaped(character);
    }
    return text + '"';
}

template <class Number>
std::string textOf(const std::vector<Number>& numbers) {
    std::string text = std::to_string(numbers.size()) + " entries:";
    for (const Number number : numbers) {
        text += ' ' + textOf(number);
    }
    return text;
}

std::string linesOf(const Members& members, const std::string& prefix);

std::string linesOf(const Rows& rows, const std::string& name) {
    std::string text = name + " = " + std::to_string(rows.size()) + " rows\n";
    for (std::size_t index = 0; index < rows.size(); ++index) {
        text += linesOf(rows.membersOf(index), name + '[' + std::to_string(index) + "].");
    }
    return text;
}

std::string linesOf(const Member& member, const std::string& name) {
    if (member.rows != nullptr) {
        return linesOf(*member.rows, name);
    }
    const std::string value = member.isPlain ? test::textOf(member.place) : "";
    const std::string flag = member.flag == nullptr ? "" : *member.flag ? "(set)" : "(unset)";
    const std::string space = value.empty() || flag.empty() ? "" : " ";
    const std::string line = value + space + flag;
    return (line.empty() ? "" : name + " = " + line + '\n') + linesOf(member.members, name + '.');
}

std::string linesOf(const Members& members, const std::string& prefix) {
    std::string text;
    for (const Member& member : members) {
        text += linesOf(member, prefix + member.name);
    }
    return text;
}

}  // namespace

void MemberList::addBase(DataObject& record) {
    add("version", record.version);
    add("minorVersion", record.minorVersion);
    addFlag("writeHLGSystemGamma", record.writeHLGSystemGamma, Member::Role::inNoDocument);
}

void MemberVisitor::visitAll(const Members& members, const std::string& prefix) {
    for (const Member& member : members) {
        const std::string path = prefix + member.name;
        if (member.flag != nullptr) {
            visit(path, member.flag);
        }
        if (member.isPlain) {
            visit(path, member.place);
        }
        visitMembers(member, path);
        if (member.rows != nullptr) {
            visitRows(path, *member.rows);
            for (std::size_t index = 0; index < member.rows->size(); ++index) {
                visitAll(member.rows->membersOf(index), path + '.');
            }
        }
    }
}

std::string textOf(const Members& members) {
    return linesOf(members, "");
}

std::string textOf(const Place& place) {
    return std::visit([](const auto* value) { return textOf(*value); }, place);
}

}  // namespace lv::test
