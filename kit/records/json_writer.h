#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// Writes one JSON value as one line without blanks. Text is written as it is but for what must be escaped,
/// and "/", which is too. (The JSON library that reads the files cannot be told to escape "/".) Keys come out
/// in the order of the calls: whoever writes an object names them sorted.
class JsonWriter {
  public:
    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }

    void key(std::string_view name);
    void text(std::string_view value);
    void integer(std::int64_t value);
    void boolean(bool value);

    /// What was written; absent when a text was not UTF-8.
    std::optional<std::string> take() &&;

  private:
    void open(char bracket);
    void close(char bracket);
    void separate();
    void quoted(std::string_view value);

    std::string m_json;
    bool m_valid = true;
};

} // namespace quillon
