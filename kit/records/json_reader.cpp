#include "json_reader.h"

#include <algorithm>

namespace quillon::Json {

Reader* Reader::member(const std::string&) {
    return nullptr;
}

Reader* Reader::ignored() {
    static Reader reader;
    return &reader;
}

void ObjectReader::field(std::string_view name, Reader& reader, Need need) {
    m_fields.push_back({name, &reader, need});
}

bool ObjectReader::beginObject() {
    m_missing = {};
    for (Field& field : m_fields)
        field.seen = false;
    return true;
}

Reader* ObjectReader::member(const std::string& key) {
    const auto field = std::ranges::find(m_fields, key, &Field::name);
    if (field == m_fields.end())
        return ignored();
    field->seen = true;
    m_current = field->name;
    return field->reader;
}

bool ObjectReader::seen(std::string_view name) const {
    return std::ranges::any_of(
        m_fields, [name](const Field& field) { return field.seen && field.name == name; });
}

bool ObjectReader::end() {
    const auto missing = std::ranges::find_if(
        m_fields, [](const Field& field) { return !field.seen && field.need == Need::required; });
    if (missing == m_fields.end())
        return true;
    m_missing = missing->name;
    return false;
}

std::string ObjectReader::complaint() const {
    return m_missing.empty() ? Reader::complaint() : "lacks \"" + std::string(m_missing) + '"';
}

} // namespace quillon::Json
