#include "process_facts.h"

#include <quillon/app/platform/linux/base/short_file.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <system_error>
#include <vector>

namespace quillon {

using namespace std::string_view_literals;

namespace {

std::string readFile(const std::string& path) {
    return readShortFile(path).value_or(std::string());
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n\0"sv; // a label may end in a NUL
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    while (true) {
        const auto end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

/// systemd writes characters that have a meaning in unit names as \x and two hexadecimal digits.
std::string unescaped(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        unsigned code = 0;
        if (text.size() >= 4 && text.starts_with("\\x")
            && std::from_chars(text.data() + 2, text.data() + 4, code, 16).ptr == text.data() + 4) {
            result.push_back(static_cast<char>(code));
            text.remove_prefix(4);
        } else {
            result.push_back(text.front());
            text.remove_prefix(1);
        }
    }
    return result;
}

/// app[-LAUNCHER]-ID-RANDOM.scope or app[-LAUNCHER]-ID[@RANDOM].service; dashes inside of ID are escaped.
std::string idOfUnit(std::string_view unit) {
    if (!unit.starts_with("app-"))
        return {};
    unit.remove_prefix(std::string_view("app-").size());
    const bool isScope = unit.ends_with(".scope");
    if (!isScope && !unit.ends_with(".service"))
        return {};
    unit = unit.substr(0, unit.rfind('.'));
    if (!isScope)
        unit = unit.substr(0, unit.find('@'));
    auto parts = split(unit, '-');
    if (isScope && parts.size() > 1)
        parts.pop_back();
    return unescaped(parts.back());
}

std::string executableOf(const std::string& folder) {
    std::error_code error;
    std::string path = std::filesystem::read_symlink(folder + "/exe", error).string();
    constexpr std::string_view deleted = " (deleted)";
    if (path.ends_with(deleted))
        path.resize(path.size() - deleted.size());
    std::string name = path.substr(path.rfind('/') + 1);
    if (!name.empty() && !isInterpreter(name))
        return name;
    // A script that is started by its own name has it here, cut after 15 bytes.
    const std::string script(trimmed(readFile(folder + "/comm")));
    return isInterpreter(script) ? std::string() : script;
}

} // namespace

bool isInterpreter(std::string_view program) {
    constexpr std::array<std::string_view, 14> names{"python", "perl", "ruby", "node", "java",
                                                     "bash",   "dash", "sh",   "zsh",  "gjs",
                                                     "lua",    "mono", "wish", "tclsh"};
    // Versions follow the name: python3.11, gjs-console, wish8.6.
    const std::string_view base = program.substr(0, program.find_first_of("0123456789-."));
    return std::ranges::find(names, base) != names.end();
}

std::string flatpakIDFrom(std::string_view info) {
    bool inApplication = false;
    for (std::string_view line : split(info, '\n')) {
        line = trimmed(line);
        if (line.starts_with('['))
            inApplication = line == "[Application]";
        else if (const auto equals = line.find('='); inApplication && equals != std::string_view::npos
                                                     && trimmed(line.substr(0, equals)) == "name")
            return std::string(trimmed(line.substr(equals + 1)));
    }
    return {};
}

std::string snapEntryIDFrom(std::string_view label) {
    label = trimmed(label);
    const auto parts = split(label.substr(0, label.find(' ')), '.');
    if (parts.size() != 3 || parts[0] != "snap")
        return {};
    return std::string(parts[1]) + "_" + std::string(parts[2]);
}

std::string controlGroupIDFrom(std::string_view cgroup) {
    for (const std::string_view line : split(cgroup, '\n')) {
        const auto folders = split(line, '/');
        for (auto folder = folders.rbegin(); folder != folders.rend(); ++folder) {
            if (std::string id = idOfUnit(*folder); !id.empty())
                return id;
        }
    }
    return {};
}

ProcessFacts readProcess(std::int64_t pid, const std::string& processes) {
    const std::string folder = processes + "/" + std::to_string(pid);
    return {
        .flatpakID = flatpakIDFrom(readFile(folder + "/root/.flatpak-info")),
        .snapEntryID = snapEntryIDFrom(readFile(folder + "/attr/current")),
        .controlGroupID = controlGroupIDFrom(readFile(folder + "/cgroup")),
        .executable = executableOf(folder),
    };
}

} // namespace quillon
