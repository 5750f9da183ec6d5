#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace quillon {

/// What the user has said of one command of one application.
struct Annotation {
    bool pinned = false; ///< shown first on sheets, weighted up in practice
    std::string note = {};
    bool muted = false; ///< no nudges for it

    /// Nothing was said. A note of blanks is something.
    bool isEmpty() const { return !pinned && note.empty() && !muted; }

    bool operator==(const Annotation&) const = default;
};

/// The annotations of one application, by entry id.
using Annotations = std::map<std::string, Annotation, std::less<>>;

/// All annotations, keyed by bundle identifier and then by entry id. Law kept by `set`: no stored annotation
/// is empty and no application has an empty map.
class AnnotationBook {
  public:
    std::map<std::string, Annotations, std::less<>> apps;

    /// The stored annotation, or an empty one.
    Annotation get(std::string_view app, std::string_view id) const;
    /// Stores the annotation; an empty one removes what was stored.
    void set(std::string_view app, std::string_view id, const Annotation& annotation);
    void togglePin(std::string_view app, std::string_view id);

    /// What was said of the application's commands; empty for an unknown application. Valid until the book
    /// changes.
    const Annotations& annotations(std::string_view app) const;
    /// The ids that are pinned.
    std::set<std::string, std::less<>> pinned(std::string_view app) const;
    /// The notes that are not empty, by entry id, as they were stored.
    std::map<std::string, std::string, std::less<>> notes(std::string_view app) const;

    bool operator==(const AnnotationBook&) const = default;
};

} // namespace quillon

template <>
struct std::hash<quillon::Annotation> {
    std::size_t operator()(const quillon::Annotation& annotation) const noexcept;
};
template <>
struct std::hash<quillon::AnnotationBook> {
    std::size_t operator()(const quillon::AnnotationBook& book) const noexcept;
};
