#include "stored_forms.h"

#include "data_file.h"
#include "iso_date.h"

#include <limits>

namespace quillon::Json {

// Every counter takes more than one byte of its file.
static_assert(DataFile::largestSize <= std::numeric_limits<Count>::max() / largestStoredCount);

std::string Form<Instant>::stored(Instant instant) {
    return isoDate(instant);
}

std::optional<Instant> Form<Instant>::restored(std::string_view text) {
    return parseIsoDate(text);
}

std::string_view Form<SpecialKey>::stored(SpecialKey key) {
    return rawValue(key);
}

std::optional<SpecialKey> Form<SpecialKey>::restored(std::string_view rawValue) {
    return SpecialKeys::fromRawValue(rawValue);
}

StoredKey Form<Key>::stored(const Key& key) {
    if (const SpecialKey* const special = key.asSpecial())
        return {.special = {{*special}}};
    return {.character = {{*key.asCharacter()}}};
}

std::optional<Key> Form<Key>::restored(const StoredKey& stored) {
    if (stored.character.has_value() == stored.special.has_value())
        return std::nullopt;
    return stored.special ? Key::special(stored.special->value) : Key::character(stored.character->value);
}

} // namespace quillon::Json
