#include "iso_date.h"
#include "json_codec.h"
#include "json_writer.h"

#include <quillon/kit/shortcut/shortcut.h>

#include <utility>

// In every object the keys are named in sorted order, as the files want them.
namespace quillon::Json {

namespace {

void write(JsonWriter& json, const Key& key) {
    const SpecialKey* const special = key.asSpecial();
    json.beginObject();
    json.key(special ? "special" : "char");
    json.beginObject();
    json.key("_0");
    json.text(special ? rawValue(*special) : std::string_view(*key.asCharacter()));
    json.endObject();
    json.endObject();
}

void write(JsonWriter& json, const Shortcut& shortcut) {
    json.beginObject();
    json.key("key");
    write(json, shortcut.key);
    json.key("modifiers");
    json.integer(shortcut.modifiers.rawValue());
    json.endObject();
}

void write(JsonWriter& json, const MenuEntry& entry) {
    json.beginObject();
    json.key("enabled");
    json.boolean(entry.enabled);
    json.key("path");
    json.beginArray();
    for (const std::string& title : entry.path)
        json.text(title);
    json.endArray();
    json.key("shortcut");
    write(json, entry.shortcut);
    json.endObject();
}

void write(JsonWriter& json, const AppSheet& sheet) {
    json.beginObject();
    json.key("appName");
    json.text(sheet.appName);
    json.key("bundleID");
    json.text(sheet.bundleID);
    json.key("entries");
    json.beginArray();
    for (const MenuEntry& entry : sheet.entries)
        write(json, entry);
    json.endArray();
    json.key("readAt");
    json.text(isoDate(sheet.readAt));
    json.endObject();
}

void writeDate(JsonWriter& json, std::string_view name, const std::optional<Instant>& instant) {
    if (!instant)
        return;
    json.key(name);
    json.text(isoDate(*instant));
}

void write(JsonWriter& json, const UsageRecord& record) {
    json.beginObject();
    json.key("clicked");
    json.integer(record.clicked);
    writeDate(json, "lastClicked", record.lastClicked);
    writeDate(json, "lastNudged", record.lastNudged);
    json.key("practiceRight");
    json.integer(record.practiceRight);
    json.key("practiceWrong");
    json.integer(record.practiceWrong);
    json.key("typed");
    json.integer(record.typed);
    json.endObject();
}

void write(JsonWriter& json, const Annotation& annotation) {
    json.beginObject();
    json.key("muted");
    json.boolean(annotation.muted);
    json.key("note");
    json.text(annotation.note);
    json.key("pinned");
    json.boolean(annotation.pinned);
    json.endObject();
}

/// Maps are sorted by their keys already.
template <class Value>
void write(JsonWriter& json, const std::map<std::string, Value, std::less<>>& map) {
    json.beginObject();
    for (const auto& [name, value] : map) {
        json.key(name);
        write(json, value);
    }
    json.endObject();
}

template <class Book>
std::optional<std::string> encodeBook(const Book& book) {
    JsonWriter json;
    json.beginObject();
    json.key("apps");
    write(json, book.apps);
    json.endObject();
    return std::move(json).take();
}

template <class Value>
std::optional<std::string> encodeValue(const Value& value) {
    JsonWriter json;
    write(json, value);
    return std::move(json).take();
}

} // namespace

std::optional<std::string> encode(const AppSheet& sheet) {
    return encodeValue(sheet);
}

std::optional<std::string> encode(const SheetMap& sheets) {
    return encodeValue(sheets);
}

std::optional<std::string> encode(const UsageBook& book) {
    return encodeBook(book);
}

std::optional<std::string> encode(const AnnotationBook& book) {
    return encodeBook(book);
}

} // namespace quillon::Json
