#pragma once

#include "prepared_sheet.h"

#include <quillon/app/languages/translated_keys.h>
#include <quillon/kit/menu/shortcut_search.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

/// A sheet prepared to be drawn and to be searched, by symbols and names of keys alike. Prepares anew only
/// what became another one since.
class SearchedSheet {
  public:
    /// Says that the sheet, or what is known of its commands, may have become another one. Without it the
    /// next `update` does not look.
    void sheetMayDiffer() { m_sheetMayDiffer = true; }
    void recordsMayDiffer() { m_recordsMayDiffer = true; }

    /// Takes over what differs; null is an empty sheet.
    void update(const AppSheet* sheet, const AnnotationBook& annotations, const UsageBook& usage);

    /// Another object whenever something in it is another. Never null after `update`.
    const std::shared_ptr<const PreparedSheet>& prepared() const { return m_prepared; }
    /// The command that is clicked most in the menu; absent where none is known that the sheet still has.
    const PreparedEntry* mostClicked() const;

    /// Whether the next search has to prepare itself first.
    bool isSearchStale() const { return m_indexIsStale; }
    void prepareSearch();
    /// Ascending positions in the prepared entries; all of them for an empty query.
    std::vector<std::size_t> matches(std::string_view query);

  private:
    std::shared_ptr<const PreparedSheet> m_prepared;
    std::optional<AppSheet> m_source; ///< what `m_prepared` was made of
    std::optional<std::size_t> m_mostClicked;
    bool m_sheetMayDiffer = true;
    bool m_recordsMayDiffer = true;
    bool m_indexIsStale = true; ///< the sheet or the notes became others
    Notes m_notes;              ///< those that the index is made with
    KeyWords m_words = translatedKeyWords();
    SearchIndex m_index;
};

} // namespace quillon
