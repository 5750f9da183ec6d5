#pragma once

#include <quillon/kit/base/instant.h>
#include <quillon/kit/base/subscription.h>
#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/usage.h>
#include <quillon/kit/records/weeks.h>

#include <string>
#include <string_view>

namespace quillon {

/// Whose usage record or annotation changed.
struct RecordChange {
    std::string bundleID = {}; ///< empty: any application's
    std::string entryID = {};  ///< empty: any of the application's commands

    /// Whether something of this application may have changed.
    bool concerns(std::string_view application) const { return bundleID.empty() || bundleID == application; }

    bool operator==(const RecordChange&) const = default;
};

/// What was learned of the user's ways and what the user has said of commands.
class LearnedRecords {
  public:
    /// Emitted after a record or an annotation changed.
    Event<const RecordChange&> changed;

    const UsageBook& usage() const { return m_usage; }
    const AnnotationBook& annotations() const { return m_annotations; }
    /// The clicks and typed uses by weeks of the user's calendar.
    const WeekBook& weeks() const { return m_weeks; }

    /// A command was clicked, its shortcut was typed, a nudge was shown for it.
    void click(const std::string& bundleID, const std::string& entryID, Instant time);
    void typed(const std::string& bundleID, const std::string& entryID, Instant time);
    void nudged(const std::string& bundleID, const std::string& entryID, Instant time);
    /// A practice question about the command was answered.
    void practiced(const std::string& bundleID, const std::string& entryID, bool correct);
    void togglePin(const std::string& bundleID, const std::string& entryID);
    /// What is said of the command apart from this stays as it was; an empty note is none.
    void setNote(const std::string& bundleID, const std::string& entryID, std::string note);
    void setMuted(const std::string& bundleID, const std::string& entryID, bool muted);

    /// Takes over all records at once: those of an earlier run, or none.
    void replace(UsageBook usage, AnnotationBook annotations, WeekBook weeks);
    /// Takes over those of one application.
    void replace(const std::string& bundleID, UsageRecords usage, Annotations annotations, WeekSums weeks);

  private:
    void annotate(const std::string& bundleID, const std::string& entryID, const Annotation& annotation);

    UsageBook m_usage;
    AnnotationBook m_annotations;
    WeekBook m_weeks;
};

} // namespace quillon
