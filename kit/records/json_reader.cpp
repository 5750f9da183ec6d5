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
    for (Field& field : m_fields)
        field.seen = false;
    return true;
}

Reader* ObjectReader::member(const std::string& key) {
    for (Field& field : m_fields) {
        if (field.name == key) {
            field.seen = true;
            return field.reader;
        }
    }
    return ignored();
}

bool ObjectReader::seen(std::string_view name) const {
    return std::any_of(m_fields.begin(), m_fields.end(), [name](const Field& field) {
        return field.seen && field.name == name;
    });
}

bool ObjectReader::end() {
    return std::all_of(m_fields.begin(), m_fields.end(), [](const Field& field) {
        return field.seen || field.need == Need::optional;
    });
}

} // namespace quillon::Json
