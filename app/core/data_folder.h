#pragma once

#include "shared_sheets.h"

#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/usage.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>

namespace quillon {

/// Everything that is kept from one run to the next.
struct LearnedData {
    UsageBook usage = {};
    AnnotationBook annotations = {};
    SharedSheets sheets = {};
    WeekBook weeks = {};

    bool operator==(const LearnedData&) const = default;
};

/// The folder with the four files of what was learned. Of one thread at a time.
class DataFolder {
  public:
    /// It need not exist. Empty: nothing is read or written.
    explicit DataFolder(std::filesystem::path folder);

    /// What the files hold; nothing in place of one that is missing or cannot be made out.
    LearnedData load();
    /// Writes the four files in this order: usage, annotations, sheets, weeks. All but the usage only where
    /// they changed or their file is missing: each file costs its time. One that fails stays as it was and
    /// does not keep the others from being written. A file that `load` could not make out is kept under
    /// another name, "usage.json.broken" or with a number behind it.
    void save(LearnedData learned);
    /// Removes the folder with all that is in it.
    void erase();

  private:
    template <class Value>
    Value loadFile(const char* name);
    template <class Value>
    bool saveFile(const char* name, const Value& value);
    template <class Value>
    void saveOther(const char* name, Value value, std::optional<Value>& saved);
    bool stands(const char* name) const;
    bool setAside(const std::string& name) const;

    std::filesystem::path m_folder;
    std::set<std::string> m_broken; ///< names of files that `load` could not make out and that still stand
    /// What the files hold; absent when that is not known.
    std::optional<AnnotationBook> m_savedAnnotations;
    std::optional<SharedSheets> m_savedSheets;
    std::optional<WeekBook> m_savedWeeks;
};

} // namespace quillon
