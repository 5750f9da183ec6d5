#pragma once

#include "json_fault.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::Json {

/// Takes in one JSON value as it is read, event by event. What a reader does not want is answered with false
/// (or nullptr), and the whole text is then refused.
class Reader {
  public:
    Reader() = default;
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    virtual ~Reader() = default;

    virtual bool boolean(bool) { return false; }
    virtual bool integer(std::int64_t) { return false; }
    virtual bool text(const std::string&) { return false; }
    virtual bool beginObject() { return false; }
    virtual bool beginArray() { return false; }

    /// The reader of the member `key` of the object that was begun; `ignored()` where any value will do.
    virtual Reader* member(const std::string& key);
    /// The reader of the next element of the array that was begun.
    virtual Reader* element() { return nullptr; }
    /// The value that was last asked a reader for is complete.
    virtual void childDone() {}
    /// The object or array is complete; false when it lacks something.
    virtual bool end() { return true; }

    /// What was wrong with the value that was just refused: "must be text".
    virtual std::string complaint() const { return "must be " + expected(); }
    /// The member whose value is being read, if it is one that every such object has; else empty.
    virtual std::string_view currentMember() const { return {}; }

    /// Stands for "whatever this is, skip it".
    static Reader* ignored();

  protected:
    virtual std::string expected() const { return {}; }
};

/// Reads an object with known members, in any order. Unknown members are skipped; of two with the same name
/// the later one counts.
class ObjectReader : public Reader {
  public:
    bool beginObject() override;
    Reader* member(const std::string& key) override;
    bool end() override;
    std::string complaint() const override;
    std::string_view currentMember() const override { return m_current; }

  protected:
    enum class Need { required, optional };
    /// Names a member; `reader` lives as long as this object does.
    void field(std::string_view name, Reader& reader, Need need);
    /// Whether the object that is being read has the member.
    bool seen(std::string_view name) const;
    std::string expected() const override { return "an object"; }

  private:
    struct Field {
        std::string_view name;
        Reader* reader;
        Need need;
        bool seen = false;
    };
    std::vector<Field> m_fields;
    std::string_view m_current;
    std::string_view m_missing;
};

/// Reads `json` with `root`. Absent when it was well-formed UTF-8 and JSON and of the shape that the reader
/// wants; else what is wrong with it.
std::optional<Fault> parse(std::string_view json, Reader& root);

} // namespace quillon::Json
