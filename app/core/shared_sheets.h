#pragma once

#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/records/json_form.h>
#include <quillon/kit/records/stored_forms.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quillon {

/// A sheet that nobody changes any more, so that copies share it: they cost nothing and may be read on any
/// thread. Not to be used after it was moved from.
class SharedSheet {
  public:
    explicit SharedSheet(AppSheet sheet) : m_sheet(std::make_shared<const AppSheet>(std::move(sheet))) {}

    const AppSheet& operator*() const { return *m_sheet; }
    const AppSheet* operator->() const { return m_sheet.get(); }

    bool operator==(const SharedSheet& other) const {
        return m_sheet == other.m_sheet || *m_sheet == *other.m_sheet;
    }

  private:
    std::shared_ptr<const AppSheet> m_sheet;
};

/// The sheets read so far, by bundle identifier.
using SharedSheets = std::map<std::string, SharedSheet, std::less<>>;

/// As the sheet itself.
template <>
struct Json::Form<SharedSheet> {
    using Stored = AppSheet;
    static constexpr std::string_view expected = "a sheet";
    static const AppSheet& stored(const SharedSheet& sheet) { return *sheet; }
    static std::optional<SharedSheet> restored(AppSheet sheet) { return SharedSheet(std::move(sheet)); }
};

} // namespace quillon
