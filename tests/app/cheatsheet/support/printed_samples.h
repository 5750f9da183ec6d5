#pragma once

#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/records/annotations.h>

#include <cstddef>
#include <string>

namespace quillon {

/// A sheet with what its user said of it.
struct AnnotatedSheet {
    AppSheet sheet;
    Annotations annotations = {};
};

/// An application of this name without any command.
AnnotatedSheet emptySheet(std::string appName);
/// The sample application with its pins and notes.
AnnotatedSheet sampleSheet();
/// What the recorded menus of GIMP make.
AnnotatedSheet gimpSheet();
/// So many commands in twelve menus, every seventh of them with a note and every ninth pinned.
AnnotatedSheet manyEntries(std::size_t count);
/// Titles, menus and notes that no column is wide enough for, of many scripts, with control characters; long
/// notes with line breaks and tabs; shortcuts of every modifier and key; an application name of many lines.
AnnotatedSheet hostileSheet();

} // namespace quillon
