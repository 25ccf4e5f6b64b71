#include "platform/linux/DesktopEntry.h"

#include <optional>
#include <string_view>

namespace zpsg::platform {
namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

struct MainGroup {
    bool present = false;
    bool off = false;
    std::optional<std::string_view> exec;
};

void readLine(MainGroup &group, std::string_view line) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) {
        return;
    }
    const std::string_view key = trimmed(line.substr(0, equals));
    const std::string_view value = trimmed(line.substr(equals + 1));
    if (key == "Exec") {
        group.exec = value;
    } else if (key == "Hidden") {
        group.off = group.off || value == "true";
    } else if (key == "X-GNOME-Autostart-enabled") {
        group.off = group.off || value == "false";
    }
}

MainGroup readMainGroup(std::string_view entry) {
    MainGroup group;
    bool inside = false;
    while (!entry.empty()) {
        const auto end = entry.find('\n');
        const std::string_view line = trimmed(entry.substr(0, end));
        entry.remove_prefix(end == std::string_view::npos ? entry.size() : end + 1);
        if (line.starts_with('[')) {
            inside = line == "[Desktop Entry]";
            group.present = group.present || inside;
        } else if (inside && !line.starts_with('#')) {
            readLine(group, line);
        }
    }
    return group;
}

} // namespace

std::string execValue(const std::string &executable, bool hidden) {
    // Three layers in one pass: '%' starts a field code; inside quotes four characters take a backslash; and
    // the file format itself takes a backslash before each backslash and has letters for line breaks and
    // tabs.
    std::string quoted = "\"";
    for (const char c : executable) {
        switch (c) {
        case '%':
            quoted += "%%";
            break;
        case '"':
        case '`':
        case '$':
            quoted += std::string("\\\\") + c;
            break;
        case '\\':
            quoted += R"(\\\\)";
            break;
        case '\n':
            quoted += "\\n";
            break;
        case '\r':
            quoted += "\\r";
            break;
        case '\t':
            quoted += "\\t";
            break;
        default:
            quoted += c;
        }
    }
    return quoted + (hidden ? "\" open" : "\"");
}

std::string desktopEntry(const std::string &exec) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=ZPS G\n"
           "Comment=Monitor of the power supply\n"
           "Exec=" +
           exec +
           "\n"
           "Terminal=false\n";
}

bool entryInEffect(const std::string &entry) {
    const MainGroup group = readMainGroup(entry);
    return group.present && !group.off;
}

bool entryStarts(const std::string &entry, const std::string &exec) {
    const MainGroup group = readMainGroup(entry);
    return group.present && !group.off && group.exec == exec;
}

} // namespace zpsg::platform
