#pragma once

#include "data_file.h"
#include "json_codec.h"

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace quillon {

/// Why a file could not be saved.
struct SaveFailure {
    enum class Step {
        folder,   ///< the folder could not be made
        encoding, ///< the value has text that is not UTF-8
        writing,  ///< the file could not be written
    };
    Step step = Step::writing;
    std::error_code code;

    /// One line for a log: "could not write the file: No space left on device".
    std::string message() const;

    bool operator==(const SaveFailure&) const = default;
};

/// One value kept as a JSON file; `Value` is one of AppSheet, SheetMap, UsageBook, AnnotationBook. Touches
/// the disk only when asked, and keeps no copy of the contents.
template <class Value>
class JSONFile {
  public:
    explicit JSONFile(std::filesystem::path url) : m_url(std::move(url)) {}

    const std::filesystem::path& url() const { return m_url; }

    /// What the file holds. Absent when it cannot be read (see DataFile::read) or holds anything else.
    std::optional<Value> load() const {
        const std::optional<std::string> text = DataFile::read(m_url);
        return text ? Json::decode<Value>(*text) : std::nullopt;
    }

    /// Makes the file hold `value`, creating its folder where it is missing (see DataFile). The reason when
    /// that fails: the earlier file then stays as it was.
    [[nodiscard]] std::optional<SaveFailure> save(const Value& value) const {
        if (const std::error_code error = DataFile::makeFolder(m_url.parent_path()))
            return SaveFailure{SaveFailure::Step::folder, error};
        const std::optional<std::string> text = Json::encode(value);
        if (!text)
            return SaveFailure{
                SaveFailure::Step::encoding, std::make_error_code(std::errc::illegal_byte_sequence)};
        if (const std::error_code error = DataFile::replace(m_url, *text))
            return SaveFailure{SaveFailure::Step::writing, error};
        return std::nullopt;
    }

    bool operator==(const JSONFile&) const = default;

  private:
    std::filesystem::path m_url;
};

} // namespace quillon
