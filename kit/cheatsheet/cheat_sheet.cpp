#include "cheat_sheet.h"

#include <quillon/kit/base/hash.h>

#include <optional>

namespace quillon::CheatSheet {

namespace {

/// Appends one command, and its note where there is one to write.
void append(Group& group, const MenuEntry& entry, const Annotation& annotation, IncludeNotes includeNotes) {
    group.push_back(Item{std::string(entry.title()), entry.shortcut.display(), annotation.pinned});
    if (includeNotes == IncludeNotes::yes && !annotation.note.empty())
        group.push_back(Note{annotation.note});
}

Annotation annotationOf(const MenuEntry& entry, const Annotations& annotations) {
    const auto found = annotations.find(entry.id());
    return found == annotations.end() ? Annotation{} : found->second;
}

Group groupOf(const MenuGroup& menu, const Annotations& annotations, IncludeNotes includeNotes) {
    Group group{Heading{menu.menu}};
    for (const MenuEntry& entry : menu.entries)
        append(group, entry, annotationOf(entry, annotations), includeNotes);
    return group;
}

std::optional<Group>
pinnedGroup(const AppSheet& sheet, const Annotations& annotations, IncludeNotes includeNotes) {
    Group group{Heading{std::string(pinnedHeading)}};
    for (const MenuEntry& entry : sheet.entries) {
        const Annotation annotation = annotationOf(entry, annotations);
        if (annotation.pinned)
            append(group, entry, annotation, includeNotes);
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

std::vector<Group> lines(const AppSheet& sheet, const Annotations& annotations, IncludeNotes includeNotes) {
    std::vector<Group> groups;
    if (std::optional<Group> pinned = pinnedGroup(sheet, annotations, includeNotes))
        groups.push_back(*std::move(pinned));
    for (const MenuGroup& menu : sheet.groups())
        groups.push_back(groupOf(menu, annotations, includeNotes));
    return groups;
}

std::string markdown(const AppSheet& sheet, const Annotations& annotations) {
    MarkdownWriter writer{"# " + sheet.appName + " shortcuts\n"};
    for (const Group& group : lines(sheet, annotations, IncludeNotes::yes)) {
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
