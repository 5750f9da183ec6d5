#pragma once

#include <quillon/kit/records/annotations.h>
#include <quillon/kit/records/json_codec.h>
#include <quillon/kit/records/usage.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>

namespace quillon {

/// Everything that is kept from one run to the next.
struct LearnedData {
    UsageBook usage;
    AnnotationBook annotations;
    SheetMap sheets;

    bool operator==(const LearnedData&) const = default;
};

/// The folder with the three files of what was learned.
class DataFolder {
  public:
    /// It need not exist. Empty: nothing is read or written.
    explicit DataFolder(std::filesystem::path folder);

    /// What the files hold; nothing in place of one that is missing or cannot be made out.
    LearnedData load();
    /// The sheets are no longer those that were loaded or saved last.
    void sheetsChanged() { m_sheetsChanged = true; }
    /// Writes the three files in this order: usage, annotations, sheets. Annotations and sheets, which change
    /// seldom, only where they changed or their file is missing: each file costs its time. One that fails
    /// stays as it was and does not keep the others from being written. A file that `load` could not make out
    /// is kept under another name, "usage.json.broken" or with a number behind it.
    void save(const UsageBook& usage, const AnnotationBook& annotations, const SheetMap& sheets);
    /// Removes the folder with all that is in it.
    void erase();

  private:
    template <class Value>
    Value loadFile(const char* name);
    template <class Value>
    bool saveFile(const char* name, const Value& value);
    bool stands(const char* name) const;
    bool setAside(const std::string& name) const;

    std::filesystem::path m_folder;
    std::set<std::string> m_broken; ///< names of files that `load` could not make out and that still stand
    std::optional<AnnotationBook> m_savedAnnotations; ///< absent when what the file holds is not known
    bool m_sheetsChanged = false;
};

} // namespace quillon
