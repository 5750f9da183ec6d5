#pragma once

#include "annotations.h"
#include "json_form.h"
#include "usage.h"
#include "weeks.h"
#include <quillon/kit/base/instant.h>
#include <quillon/kit/menu/app_sheet.h>
#include <quillon/kit/shortcut/shortcut.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace quillon {

/// The sheets read so far, by bundle identifier.
using SheetMap = std::map<std::string, AppSheet, std::less<>>;

} // namespace quillon

/// The forms of the kit's own values.
namespace quillon::Json {

/// "2024-05-01T09:30:00Z": ISO 8601, whole seconds; written in UTC, read with any offset.
template <>
struct Form<Instant> {
    using Stored = std::string;
    static constexpr std::string_view expected = "a date as in 2024-05-01T09:30:00Z";
    static Stored stored(Instant instant);
    static std::optional<Instant> restored(std::string_view text);
};

/// By its raw value: "returnKey".
template <>
struct Form<SpecialKey> {
    using Stored = std::string;
    static constexpr std::string_view expected = "the name of a key";
    static std::string_view stored(SpecialKey key);
    static std::optional<SpecialKey> restored(std::string_view rawValue);
};

/// The bare bits.
template <>
struct Form<Modifiers> {
    using Stored = std::int64_t;
    static constexpr std::string_view expected = "a whole number";
    static Stored stored(Modifiers modifiers) { return modifiers.rawValue(); }
    static std::optional<Modifiers> restored(Stored rawValue) { return Modifiers(rawValue); }
};

/// What an alternative of a `StoredKey` holds.
template <class Value>
struct StoredPayload {
    Value value;
};

template <class Value>
struct Form<StoredPayload<Value>> {
    static constexpr auto members = std::tuple(member("_0", &StoredPayload<Value>::value));
    static StoredPayload<Value> blank() { return {}; }
};

/// Exactly one of the two.
struct StoredKey {
    std::optional<StoredPayload<std::string>> character = {};
    std::optional<StoredPayload<SpecialKey>> special = {};
};

template <>
struct Form<StoredKey> {
    static constexpr auto members =
        std::tuple(member("char", &StoredKey::character), member("special", &StoredKey::special));
};

/// `{"char":{"_0":"S"}}` or `{"special":{"_0":"returnKey"}}`.
template <>
struct Form<Key> {
    using Stored = StoredKey;
    static constexpr std::string_view expected = "an object with either \"char\" or \"special\"";
    static Stored stored(const Key& key);
    static std::optional<Key> restored(const Stored& stored);
};

template <>
struct Form<Shortcut> {
    static constexpr auto members =
        std::tuple(member("key", &Shortcut::key), member("modifiers", &Shortcut::modifiers));
    static Shortcut blank() { return {{}, Key::character({})}; }
};

template <>
struct Form<MenuEntry> {
    static constexpr auto members = std::tuple(
        member("enabled", &MenuEntry::enabled), member("path", &MenuEntry::path),
        member("shortcut", &MenuEntry::shortcut));
    static MenuEntry blank() { return {{}, Form<Shortcut>::blank(), true}; }
};

template <>
struct Form<AppSheet> {
    static constexpr auto members = std::tuple(
        member("appName", &AppSheet::appName), member("bundleID", &AppSheet::bundleID),
        member("entries", &AppSheet::entries), member("readAt", &AppSheet::readAt));
};

template <>
struct Form<UsageRecord> {
    static constexpr Range counted{0, largestStoredCount};
    static constexpr auto members = std::tuple(
        member("clicked", &UsageRecord::clicked, counted), member("lastClicked", &UsageRecord::lastClicked),
        member("lastNudged", &UsageRecord::lastNudged),
        member("practiceRight", &UsageRecord::practiceRight, counted),
        member("practiceWrong", &UsageRecord::practiceWrong, counted),
        member("typed", &UsageRecord::typed, counted));
};

template <>
struct Form<UsageBook> {
    static constexpr auto members = std::tuple(member("apps", &UsageBook::apps));
};

template <>
struct Form<Annotation> {
    static constexpr auto members = std::tuple(
        member("muted", &Annotation::muted), member("note", &Annotation::note),
        member("pinned", &Annotation::pinned));
};

template <>
struct Form<WeekSum> {
    static constexpr Range counted{0, largestStoredCount};
    static constexpr auto members =
        std::tuple(member("clicked", &WeekSum::clicked, counted), member("typed", &WeekSum::typed, counted));
};

template <>
struct Form<WeekBook> {
    static constexpr auto members = std::tuple(member("apps", &WeekBook::apps));
};

template <>
struct Form<AnnotationBook> {
    static constexpr auto members = std::tuple(member("apps", &AnnotationBook::apps));
};

} // namespace quillon::Json
