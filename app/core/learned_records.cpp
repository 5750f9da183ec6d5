#include "learned_records.h"

#include "local_day.h"

#include <utility>

namespace quillon {

void LearnedRecords::click(const std::string& bundleID, const std::string& entryID, Instant time) {
    m_usage.click(bundleID, entryID, time);
    m_weeks.click(bundleID, localDay(time));
    changed.emit({bundleID, entryID});
}

void LearnedRecords::typed(const std::string& bundleID, const std::string& entryID, Instant time) {
    m_usage.typed(bundleID, entryID);
    m_weeks.typed(bundleID, localDay(time));
    changed.emit({bundleID, entryID});
}

void LearnedRecords::nudged(const std::string& bundleID, const std::string& entryID, Instant time) {
    m_usage.nudged(bundleID, entryID, time);
    changed.emit({bundleID, entryID});
}

void LearnedRecords::practiced(const std::string& bundleID, const std::string& entryID, bool correct) {
    m_usage.practiced(bundleID, entryID, correct);
    changed.emit({bundleID, entryID});
}

void LearnedRecords::togglePin(const std::string& bundleID, const std::string& entryID) {
    m_annotations.togglePin(bundleID, entryID);
    changed.emit({bundleID, entryID});
}

void LearnedRecords::setNote(const std::string& bundleID, const std::string& entryID, std::string note) {
    Annotation annotation = m_annotations.get(bundleID, entryID);
    annotation.note = std::move(note);
    annotate(bundleID, entryID, annotation);
}

void LearnedRecords::setMuted(const std::string& bundleID, const std::string& entryID, bool muted) {
    Annotation annotation = m_annotations.get(bundleID, entryID);
    annotation.muted = muted;
    annotate(bundleID, entryID, annotation);
}

void LearnedRecords::annotate(
    const std::string& bundleID, const std::string& entryID, const Annotation& annotation) {
    if (annotation == m_annotations.get(bundleID, entryID))
        return;
    m_annotations.set(bundleID, entryID, annotation);
    changed.emit({bundleID, entryID});
}

void LearnedRecords::replace(UsageBook usage, AnnotationBook annotations, WeekBook weeks) {
    if (usage == m_usage && annotations == m_annotations && weeks == m_weeks)
        return;
    m_usage = std::move(usage);
    m_annotations = std::move(annotations);
    m_weeks = std::move(weeks);
    changed.emit({});
}

void LearnedRecords::replace(
    const std::string& bundleID, UsageRecords usage, Annotations annotations, WeekSums weeks) {
    m_usage.apps.insert_or_assign(bundleID, std::move(usage));
    m_annotations.apps.insert_or_assign(bundleID, std::move(annotations));
    m_weeks.apps.insert_or_assign(bundleID, std::move(weeks));
    changed.emit({bundleID, {}});
}

} // namespace quillon
