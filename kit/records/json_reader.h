#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
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

    /// Stands for "whatever this is, skip it".
    static Reader* ignored();
};

/// Reads an object with known members, in any order. Unknown members are skipped; of two with the same name
/// the later one counts.
class ObjectReader : public Reader {
  public:
    bool beginObject() override;
    Reader* member(const std::string& key) override;
    bool end() override;

  protected:
    enum class Need { required, optional };
    /// Names a member; `reader` lives as long as this object does.
    void field(std::string_view name, Reader& reader, Need need = Need::required);
    /// Whether the object that is being read has the member.
    bool seen(std::string_view name) const;

  private:
    struct Field {
        std::string_view name;
        Reader* reader;
        Need need;
        bool seen = false;
    };
    std::vector<Field> m_fields;
};

/// Reads an array of what `Element` reads into its `value`, anew for every element.
template <class Element>
class ArrayReader : public Reader {
  public:
    std::vector<decltype(Element::value)> value;

    bool beginArray() override {
        value.clear();
        return true;
    }
    Reader* element() override { return &m_element; }
    void childDone() override { value.push_back(std::move(m_element.value)); }

  private:
    Element m_element;
};

/// Reads an object that maps any names to what `Element` reads. Of two equal names the later one counts.
template <class Element>
class MapReader : public Reader {
  public:
    std::map<std::string, decltype(Element::value), std::less<>> value;

    bool beginObject() override {
        value.clear();
        return true;
    }
    Reader* member(const std::string& key) override {
        m_key = key;
        return &m_element;
    }
    void childDone() override { value.insert_or_assign(std::move(m_key), std::move(m_element.value)); }

  private:
    std::string m_key;
    Element m_element;
};

class TextReader : public Reader {
  public:
    std::string value;
    bool text(const std::string& read) override {
        value = read;
        return true;
    }
};

class IntegerReader : public Reader {
  public:
    std::int64_t value = 0;
    bool integer(std::int64_t read) override {
        value = read;
        return true;
    }
};

class BooleanReader : public Reader {
  public:
    bool value = false;
    bool boolean(bool read) override {
        value = read;
        return true;
    }
};

/// Reads `json` with `root`; whether it was well-formed UTF-8 and JSON and of the shape that the reader
/// wants.
bool parse(std::string_view json, Reader& root);

} // namespace quillon::Json
