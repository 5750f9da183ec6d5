#pragma once

#include "data_file.h"
#include "json_codec.h"
#include "load_failure.h"
#include "save_failure.h"

#include <quillon/kit/base/outcome.h>

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace quillon {

/// One value kept as a JSON file, of any type that has a form (see json_form.h). Touches the disk only when
/// asked, and keeps no copy of the contents.
template <Json::Storable Value>
class JSONFile {
  public:
    explicit JSONFile(std::filesystem::path url) : m_url(std::move(url)) {}

    const std::filesystem::path& url() const { return m_url; }

    /// What the file holds. Absent when it cannot be read (see DataFile::read) or holds anything else.
    std::optional<Value> load() const { return tryLoad().value(); }

    /// What the file holds, or why that is not to be had.
    Outcome<Value, LoadFailure> tryLoad() const {
        const Outcome<std::string, std::error_code> text = DataFile::read(m_url);
        if (const std::error_code* const code = text.failure())
            return LoadFailure{
                *code == std::errc::no_such_file_or_directory ? LoadFailure::Kind::absent
                                                              : LoadFailure::Kind::unreadable,
                *code,
                {}};
        Outcome<Value, Json::Fault> value = Json::tryDecode<Value>(*text);
        if (const Json::Fault* const fault = value.failure())
            return LoadFailure{LoadFailure::Kind::broken, {}, *fault};
        return *std::move(value);
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
