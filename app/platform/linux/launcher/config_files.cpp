#include "config_files.h"

#include "key_name.h"

#include <glib.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <QXmlStreamReader>

#include <array>
#include <memory>

namespace quillon::launcher {

namespace {

using namespace Qt::StringLiterals;

struct Unref {
    void operator()(GKeyFile* file) const { g_key_file_unref(file); }
};

std::unique_ptr<GKeyFile, Unref> parsed(const std::string& text) {
    std::unique_ptr<GKeyFile, Unref> file(g_key_file_new());
    const bool isRead =
        g_key_file_load_from_data(file.get(), text.data(), text.size(), G_KEY_FILE_NONE, nullptr) != FALSE;
    return isRead ? std::move(file) : nullptr;
}

/// As the file writes it; absent when the key is not there.
std::optional<std::string> valueOf(GKeyFile* file, const char* group, const char* key) {
    const std::unique_ptr<char, decltype(&g_free)> value(
        g_key_file_get_value(file, group, key, nullptr), g_free);
    return value ? std::optional<std::string>(value.get()) : std::nullopt;
}

/// The commands of Xfce's shortcuts that a modifier runs alone.
struct XfceCommands {
    Modifiers usual;
    Modifiers own;
    bool ownReplaceUsual = false;
};

void note(XfceCommands& commands, const QStringList& path, const QXmlStreamAttributes& attributes) {
    if (path.size() != 3 || path[0] != "commands"_L1)
        return;
    const bool isOwn = path[1] == "custom"_L1;
    const QString value = attributes.value("value"_L1).toString();
    if (isOwn && path[2] == "override"_L1)
        commands.ownReplaceUsual = value == "true"_L1;
    if (value.isEmpty())
        return;
    if (const Modifiers modifier = modifierAlone(path[2].toStdString()); !modifier.isEmpty())
        (isOwn ? commands.own : commands.usual) = modifier;
}

} // namespace

Modifiers fromKWin(const std::string& text) {
    struct Key {
        const char* name;
        Modifiers modifier;
        bool isDefault; ///< whether it opens the launcher while nothing else is written
    };
    const std::array keys{
        Key{"Meta", Modifiers::command, true}, Key{"Alt", Modifiers::option, false},
        Key{"Control", Modifiers::control, false}};
    const auto file = parsed(text);
    for (const Key& key : keys) {
        const auto action = file ? valueOf(file.get(), "ModifierOnlyShortcuts", key.name) : std::nullopt;
        if (action ? !action->empty() && *action != "none" : key.isDefault)
            return key.modifier;
    }
    return {};
}

Modifiers fromXfce(const std::string& text) {
    QXmlStreamReader xml(QByteArray::fromStdString(text));
    XfceCommands commands;
    QStringList path;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (xml.name() != "property"_L1)
            continue;
        if (token == QXmlStreamReader::StartElement) {
            path.append(xml.attributes().value("name"_L1).toString());
            note(commands, path, xml.attributes());
        } else if (token == QXmlStreamReader::EndElement) {
            path.removeLast();
        }
    }
    if (xml.hasError())
        return {};
    return commands.ownReplaceUsual || !commands.own.isEmpty() ? commands.own : commands.usual;
}

Modifiers fromLxqt(const std::string& text) {
    const auto file = parsed(text);
    if (!file)
        return {};
    const std::unique_ptr<char*, decltype(&g_strfreev)> groups(
        g_key_file_get_groups(file.get(), nullptr), g_strfreev);
    for (char** group = groups.get(); *group != nullptr; ++group) {
        const std::string_view name(*group);
        const Modifiers modifier = modifierAlone(name.substr(0, name.find('.')));
        if (!modifier.isEmpty() && valueOf(file.get(), *group, "Enabled") != "false")
            return modifier;
    }
    return {};
}

std::optional<Modifiers> fromCinnamon(const std::string& text) {
    const QJsonObject all = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
    const QJsonValue value = all.value("overlay-key"_L1).toObject().value("value"_L1);
    return value.isString() ? std::optional(modifierAlone(value.toString().toStdString())) : std::nullopt;
}

} // namespace quillon::launcher
