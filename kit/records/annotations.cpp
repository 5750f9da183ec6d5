#include "annotations.h"

#include <quillon/kit/base/hash.h>

namespace quillon {

const Annotations& AnnotationBook::annotations(std::string_view app) const {
    static const Annotations none;
    const auto found = apps.find(app);
    return found == apps.end() ? none : found->second;
}

Annotation AnnotationBook::get(std::string_view app, std::string_view id) const {
    const Annotations& known = annotations(app);
    const auto found = known.find(id);
    return found == known.end() ? Annotation{} : found->second;
}

void AnnotationBook::set(std::string_view app, std::string_view id, const Annotation& annotation) {
    if (!annotation.isEmpty()) {
        apps[std::string(app)].insert_or_assign(std::string(id), annotation);
        return;
    }
    const auto known = apps.find(app);
    if (known == apps.end())
        return;
    if (const auto stored = known->second.find(id); stored != known->second.end())
        known->second.erase(stored);
    if (known->second.empty())
        apps.erase(known);
}

void AnnotationBook::togglePin(std::string_view app, std::string_view id) {
    Annotation annotation = get(app, id);
    annotation.pinned = !annotation.pinned;
    set(app, id, annotation);
}

std::set<std::string, std::less<>> AnnotationBook::pinned(std::string_view app) const {
    std::set<std::string, std::less<>> ids;
    for (const auto& [id, annotation] : annotations(app)) {
        if (annotation.pinned)
            ids.insert(id);
    }
    return ids;
}

std::map<std::string, std::string, std::less<>> AnnotationBook::notes(std::string_view app) const {
    std::map<std::string, std::string, std::less<>> notes;
    for (const auto& [id, annotation] : annotations(app)) {
        if (!annotation.note.empty())
            notes.emplace(id, annotation.note);
    }
    return notes;
}

} // namespace quillon

std::size_t std::hash<quillon::Annotation>::operator()(const quillon::Annotation& annotation) const noexcept {
    return quillon::hashOf(annotation.pinned, annotation.note, annotation.muted);
}

std::size_t
std::hash<quillon::AnnotationBook>::operator()(const quillon::AnnotationBook& book) const noexcept {
    return quillon::hashOf(book.apps);
}
