#include "cheat_sheet.h"

#include <quillon/kit/base/hash.h>

#include <optional>

namespace quillon::CheatSheet {

namespace {

/// How the commands are written.
struct Manner {
    const Annotations& annotations;
    IncludeNotes includeNotes;
    const KeyNames* names;
};

Annotation annotationOf(const MenuEntry& entry, const Annotations& annotations) {
    const auto found = annotations.find(entry.id());
    return found == annotations.end() ? Annotation{} : found->second;
}

/// Appends one command, and its note where there is one to write.
void append(Group& group, const MenuEntry& entry, const Annotation& annotation, const Manner& manner) {
    group.push_back(
        Item{std::string(entry.title()), displayWith(entry.shortcut, manner.names), annotation.pinned});
    if (manner.includeNotes == IncludeNotes::yes && !annotation.note.empty())
        group.push_back(Note{annotation.note});
}

Group groupOf(const MenuGroup& menu, const Manner& manner) {
    Group group{Heading{menu.menu}};
    for (const MenuEntry& entry : menu.entries)
        append(group, entry, annotationOf(entry, manner.annotations), manner);
    return group;
}

std::optional<Group> pinnedGroup(const AppSheet& sheet, const Manner& manner) {
    Group group{Heading{std::string(pinnedHeading)}};
    for (const MenuEntry& entry : sheet.entries) {
        const Annotation annotation = annotationOf(entry, manner.annotations);
        if (annotation.pinned)
            append(group, entry, annotation, manner);
    }
    return group.size() > 1 ? std::optional(std::move(group)) : std::nullopt;
}

/// Writes each kind of line as Markdown.
struct MarkdownWriter {
    std::string text;

    void operator()(const Heading& heading) { text.append("\n## ").append(heading.text).append("\n\n"); }
    void operator()(const Item& item) {
        text.append("- **").append(item.shortcut).append("** ").append(item.title).append("\n");
    }
    void operator()(const Note& note) { text.append("  - ").append(note.text).append("\n"); }
};

} // namespace

std::vector<Group> lines(
    const AppSheet& sheet, const Annotations& annotations, IncludeNotes includeNotes, const KeyNames* names) {
    const Manner manner{annotations, includeNotes, names};
    std::vector<Group> groups;
    if (std::optional<Group> pinned = pinnedGroup(sheet, manner))
        groups.push_back(*std::move(pinned));
    for (const MenuGroup& menu : sheet.groups())
        groups.push_back(groupOf(menu, manner));
    return groups;
}

std::string markdown(const AppSheet& sheet, const Annotations& annotations, const KeyNames* names) {
    MarkdownWriter writer{"# " + sheet.appName + " shortcuts\n"};
    for (const Group& group : lines(sheet, annotations, IncludeNotes::yes, names)) {
        for (const Line& line : group)
            std::visit(writer, line);
    }
    return std::move(writer.text);
}

} // namespace quillon::CheatSheet

std::size_t std::hash<quillon::CheatSheet::Heading>::operator()(
    const quillon::CheatSheet::Heading& heading) const noexcept {
    return quillon::hashOf(heading.text, heading.continued);
}

std::size_t
std::hash<quillon::CheatSheet::Item>::operator()(const quillon::CheatSheet::Item& item) const noexcept {
    return quillon::hashOf(item.title, item.shortcut, item.pinned);
}

std::size_t
std::hash<quillon::CheatSheet::Note>::operator()(const quillon::CheatSheet::Note& note) const noexcept {
    return quillon::hashOf(note.text);
}
