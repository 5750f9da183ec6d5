#include "data_file.h"
#include "iso_date.h"
#include "json_codec.h"
#include "json_reader.h"

#include <quillon/kit/shortcut/shortcut.h>

#include <limits>

namespace quillon::Json {

namespace {

class DateReader : public Reader {
  public:
    Instant value;
    bool text(const std::string& read) override {
        const std::optional<Instant> instant = parseIsoDate(read);
        value = instant.value_or(Instant());
        return instant.has_value();
    }
};

class CounterReader : public IntegerReader {
  public:
    bool integer(std::int64_t read) override {
        return read >= 0 && read <= largestStoredCount && IntegerReader::integer(read);
    }
};

// Every counter takes more than one byte of its file.
static_assert(DataFile::largestSize <= std::numeric_limits<Count>::max() / largestStoredCount);

/// What one alternative of a key holds, under "_0".
class PayloadReader : public ObjectReader {
  public:
    PayloadReader() { field("_0", m_text); }
    const std::string& payload() const { return m_text.value; }

  private:
    TextReader m_text;
};

/// Exactly one of "char" and "special" must be there.
class KeyReader : public ObjectReader {
  public:
    Key value = Key::character({});

    KeyReader() {
        field("char", m_character, Need::optional);
        field("special", m_special, Need::optional);
    }
    bool end() override {
        if (seen("char") == seen("special"))
            return false;
        if (seen("char")) {
            value = Key::character(m_character.payload());
            return true;
        }
        const std::optional<SpecialKey> special = SpecialKeys::fromRawValue(m_special.payload());
        if (special)
            value = Key::special(*special);
        return special.has_value();
    }

  private:
    PayloadReader m_character;
    PayloadReader m_special;
};

class ShortcutReader : public ObjectReader {
  public:
    Shortcut value{{}, Key::character({})};

    ShortcutReader() {
        field("key", m_key);
        field("modifiers", m_modifiers);
    }
    bool end() override {
        value = {Modifiers(m_modifiers.value), m_key.value};
        return ObjectReader::end();
    }

  private:
    KeyReader m_key;
    IntegerReader m_modifiers;
};

class EntryReader : public ObjectReader {
  public:
    MenuEntry value{{}, {{}, Key::character({})}, true};

    EntryReader() {
        field("enabled", m_enabled);
        field("path", m_path);
        field("shortcut", m_shortcut);
    }
    bool end() override {
        value = {std::move(m_path.value), m_shortcut.value, m_enabled.value};
        return ObjectReader::end();
    }

  private:
    BooleanReader m_enabled;
    ArrayReader<TextReader> m_path;
    ShortcutReader m_shortcut;
};

class SheetReader : public ObjectReader {
  public:
    AppSheet value;

    SheetReader() {
        field("appName", m_appName);
        field("bundleID", m_bundleID);
        field("entries", m_entries);
        field("readAt", m_readAt);
    }
    bool end() override {
        value = {m_bundleID.value, m_appName.value, std::move(m_entries.value), m_readAt.value};
        return ObjectReader::end();
    }

  private:
    TextReader m_appName;
    TextReader m_bundleID;
    ArrayReader<EntryReader> m_entries;
    DateReader m_readAt;
};

class UsageRecordReader : public ObjectReader {
  public:
    UsageRecord value;

    UsageRecordReader() {
        field("clicked", m_clicked);
        field("lastClicked", m_lastClicked, Need::optional);
        field("lastNudged", m_lastNudged, Need::optional);
        field("practiceRight", m_practiceRight);
        field("practiceWrong", m_practiceWrong);
        field("typed", m_typed);
    }
    bool end() override {
        value = {
            m_clicked.value,
            m_typed.value,
            m_practiceRight.value,
            m_practiceWrong.value,
            date("lastClicked", m_lastClicked),
            date("lastNudged", m_lastNudged)};
        return ObjectReader::end();
    }

  private:
    std::optional<Instant> date(std::string_view name, const DateReader& reader) const {
        return seen(name) ? std::optional(reader.value) : std::nullopt;
    }

    CounterReader m_clicked;
    DateReader m_lastClicked;
    DateReader m_lastNudged;
    CounterReader m_practiceRight;
    CounterReader m_practiceWrong;
    CounterReader m_typed;
};

class AnnotationReader : public ObjectReader {
  public:
    Annotation value;

    AnnotationReader() {
        field("muted", m_muted);
        field("note", m_note);
        field("pinned", m_pinned);
    }
    bool end() override {
        value = {m_pinned.value, m_note.value, m_muted.value};
        return ObjectReader::end();
    }

  private:
    BooleanReader m_muted;
    TextReader m_note;
    BooleanReader m_pinned;
};

/// A book of records by application and entry id, under "apps".
template <class Record, class Book>
class BookReader : public ObjectReader {
  public:
    Book value;

    BookReader() { field("apps", m_apps); }
    bool end() override {
        value.apps = std::move(m_apps.value);
        return ObjectReader::end();
    }

  private:
    MapReader<MapReader<Record>> m_apps;
};

template <class RootReader>
auto decodeWith(std::string_view text) -> std::optional<decltype(RootReader::value)> {
    RootReader root;
    if (!parse(text, root))
        return std::nullopt;
    return std::move(root.value);
}

} // namespace

template <>
std::optional<AppSheet> decode<AppSheet>(std::string_view text) {
    return decodeWith<SheetReader>(text);
}

template <>
std::optional<SheetMap> decode<SheetMap>(std::string_view text) {
    return decodeWith<MapReader<SheetReader>>(text);
}

template <>
std::optional<UsageBook> decode<UsageBook>(std::string_view text) {
    return decodeWith<BookReader<UsageRecordReader, UsageBook>>(text);
}

template <>
std::optional<AnnotationBook> decode<AnnotationBook>(std::string_view text) {
    return decodeWith<BookReader<AnnotationReader, AnnotationBook>>(text);
}

} // namespace quillon::Json
