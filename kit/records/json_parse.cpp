#include "json_reader.h"

#include <nlohmann/json.hpp>

#include <limits>

namespace quillon::Json {

namespace {

using Events = nlohmann::json_sax<nlohmann::json>;

/// Carries the parser's events to the reader whose turn it is. The text is foreign: everything is bounded by
/// its length, and nesting by `maxDepth`.
class EventCarrier : public Events {
  public:
    explicit EventCarrier(Reader& root) : m_root(root) {}

    bool null() override {
        return take([](Reader&) { return false; });
    }
    bool boolean(bool value) override {
        return take([value](Reader& reader) { return reader.boolean(value); });
    }
    bool number_integer(number_integer_t value) override {
        return take([value](Reader& reader) { return reader.integer(value); });
    }
    bool number_unsigned(number_unsigned_t value) override {
        constexpr number_unsigned_t largest = std::numeric_limits<std::int64_t>::max();
        return take([value](Reader& reader) {
            return value <= largest && reader.integer(static_cast<std::int64_t>(value));
        });
    }
    bool number_float(number_float_t, const string_t&) override {
        return take([](Reader&) { return false; });
    }
    bool string(string_t& value) override {
        return take([&value](Reader& reader) { return reader.text(value); });
    }
    bool binary(binary_t&) override { return false; }

    bool start_object(std::size_t) override {
        return begin([](Reader& reader) { return reader.beginObject(); }, Kind::object);
    }
    bool start_array(std::size_t) override {
        return begin([](Reader& reader) { return reader.beginArray(); }, Kind::array);
    }
    bool key(string_t& name) override {
        if (m_skippedDepth == 0)
            m_member = m_open.back().reader->member(name);
        return m_skippedDepth > 0 || m_member;
    }
    bool end_object() override { return end(); }
    bool end_array() override { return end(); }

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
        return false;
    }

  private:
    /// The deepest stored form, the key of a shortcut in the map of sheets, has eight levels; the rest is
    /// leeway for members that a later version may add.
    static constexpr std::size_t maxDepth = 64;

    enum class Kind { object, array };
    struct Open {
        Reader* reader;
        Kind kind;
    };

    /// Whose turn it is; nullptr when no value may stand here.
    Reader* next() {
        if (m_open.empty())
            return &m_root;
        const Open& open = m_open.back();
        return open.kind == Kind::array ? open.reader->element() : m_member;
    }

    void done() {
        if (!m_open.empty())
            m_open.back().reader->childDone();
    }

    template <class Give>
    bool take(Give give) {
        if (m_skippedDepth > 0)
            return true;
        Reader* const reader = next();
        if (reader == Reader::ignored())
            return true;
        if (!reader || !give(*reader))
            return false;
        done();
        return true;
    }

    template <class Give>
    bool begin(Give give, Kind kind) {
        if (m_open.size() + m_skippedDepth >= maxDepth)
            return false;
        Reader* const reader = m_skippedDepth > 0 ? Reader::ignored() : next();
        if (reader == Reader::ignored()) {
            ++m_skippedDepth;
            return true;
        }
        if (!reader || !give(*reader))
            return false;
        m_open.push_back({reader, kind});
        return true;
    }

    bool end() {
        if (m_skippedDepth > 0) {
            --m_skippedDepth;
            return true;
        }
        if (!m_open.back().reader->end())
            return false;
        m_open.pop_back();
        done();
        return true;
    }

    Reader& m_root;
    std::vector<Open> m_open;
    Reader* m_member = nullptr;
    std::size_t m_skippedDepth = 0;
};

} // namespace

bool parse(std::string_view json, Reader& root) {
    // The library takes one for the end of the text, whatever stands behind it.
    if (json.find('\0') != std::string_view::npos)
        return false;
    EventCarrier carrier(root);
    return nlohmann::json::sax_parse(json.data(), json.data() + json.size(), &carrier);
}

} // namespace quillon::Json
