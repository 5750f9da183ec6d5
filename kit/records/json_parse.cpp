#include "json_reader.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <utility>

namespace quillon::Json {

namespace {

using Events = nlohmann::json_sax<nlohmann::json>;

/// How far the parser has come.
struct Progress {
    const char* at;
    const char* end;
    bool ended = false; ///< it wanted more than there is
};

/// Walks through the text, telling its progress; the parser itself tells none. A second one stands for the
/// end.
class Watched {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    explicit Watched(Progress& progress) : m_progress(&progress) {}

    reference operator*() const { return *m_progress->at; }
    Watched& operator++() {
        ++m_progress->at;
        return *this;
    }
    bool operator==(const Watched&) const {
        if (m_progress->at != m_progress->end)
            return false;
        m_progress->ended = true;
        return true;
    }

  private:
    Progress* m_progress;
};

/// Carries the parser's events to the reader whose turn it is. The text is foreign: everything is bounded by
/// its length, and nesting by `maxDepth`.
class EventCarrier : public Events {
  public:
    EventCarrier(std::string_view json, Reader& root)
        : m_json(json), m_progress{json.data(), json.data() + json.size()}, m_root(root) {}

    /// What is wrong with the text; absent as long as nothing is.
    std::optional<Fault> run() {
        nlohmann::json::sax_parse(Watched(m_progress), Watched(m_progress), this);
        return std::move(m_fault);
    }

    bool null() override {
        return take([](Reader&) { return false; });
    }
    bool boolean(bool value) override {
        return take([value](Reader& reader) { return reader.boolean(value); });
    }
    bool number_integer(number_integer_t value) override {
        return takeNumber([value](Reader& reader) { return reader.integer(value); });
    }
    bool number_unsigned(number_unsigned_t value) override {
        constexpr number_unsigned_t largest = std::numeric_limits<std::int64_t>::max();
        return takeNumber([value](Reader& reader) {
            return value <= largest && reader.integer(static_cast<std::int64_t>(value));
        });
    }
    bool number_float(number_float_t, const string_t&) override {
        return takeNumber([](Reader&) { return false; });
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
        m_tokenEnd = read();
        return true;
    }
    bool end_object() override { return end(); }
    bool end_array() override { return end(); }

    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& error) override {
        if (error.id == outOfRange)
            return refuse(tokenBegin(), "the number is too large");
        if (m_progress.ended)
            return refuse(m_json.size(), "the text ends too early");
        return refuse(tokenBegin(), "the text is not JSON from here on");
    }

  private:
    /// The deepest stored form, the key of a shortcut in the map of sheets, has eight levels; the rest is
    /// leeway for members that a later version may add.
    static constexpr std::size_t maxDepth = 64;

    /// How the library names numbers that no floating-point number holds.
    static constexpr int outOfRange = 406;

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

    std::size_t read() const { return static_cast<std::size_t>(m_progress.at - m_json.data()); }

    /// Where the token stands that was read after the last one that was taken.
    std::size_t tokenBegin() const {
        return std::min(m_json.find_first_not_of(" \t\r\n,:", m_tokenEnd), m_json.size());
    }

    bool refuse(std::size_t offset, std::string reason) {
        m_fault = Fault{offset, std::move(reason)};
        return false;
    }

    /// The value whose reader is at `depth` is not as it must be.
    bool refuseValue(const Reader* reader, std::size_t depth) {
        const std::string_view member = depth > 0 ? m_open[depth - 1].reader->currentMember() : "";
        std::string reason = depth == 0 ? "the whole" : member.empty() ? "an element" : "";
        if (!member.empty())
            reason.append("\"").append(member).append("\"");
        return refuse(tokenBegin(), reason + ' ' + (reader ? reader->complaint() : "has no place here"));
    }

    template <class Give>
    bool takeNumber(Give give) {
        // Where a number ends is known from the byte behind it, if there is one.
        return take(give, m_progress.ended ? read() : read() - 1);
    }

    template <class Give>
    bool take(Give give) {
        return take(give, read());
    }

    template <class Give>
    bool take(Give give, std::size_t tokenEnd) {
        if (m_skippedDepth == 0) {
            Reader* const reader = next();
            if (reader != Reader::ignored()) {
                if (!reader || !give(*reader))
                    return refuseValue(reader, m_open.size());
                done();
            }
        }
        m_tokenEnd = tokenEnd;
        return true;
    }

    template <class Give>
    bool begin(Give give, Kind kind) {
        if (m_open.size() + m_skippedDepth >= maxDepth)
            return refuse(tokenBegin(), "the text is nested too deeply");
        Reader* const reader = m_skippedDepth > 0 ? Reader::ignored() : next();
        if (reader == Reader::ignored())
            ++m_skippedDepth;
        else if (!reader || !give(*reader))
            return refuseValue(reader, m_open.size());
        else
            m_open.push_back({reader, kind});
        m_tokenEnd = read();
        return true;
    }

    bool end() {
        if (m_skippedDepth > 0) {
            --m_skippedDepth;
        } else {
            if (!m_open.back().reader->end())
                return refuseValue(m_open.back().reader, m_open.size() - 1);
            m_open.pop_back();
            done();
        }
        m_tokenEnd = read();
        return true;
    }

    std::string_view m_json;
    Progress m_progress;
    std::size_t m_tokenEnd = 0; ///< of the last token that was taken
    std::optional<Fault> m_fault;
    Reader& m_root;
    std::vector<Open> m_open;
    Reader* m_member = nullptr;
    std::size_t m_skippedDepth = 0;
};

} // namespace

std::optional<Fault> parse(std::string_view json, Reader& root) {
    // The library takes one for the end of the text, whatever stands behind it.
    if (const std::size_t zero = json.find('\0'); zero != std::string_view::npos)
        return Fault{zero, "the text is not JSON from here on"};
    return EventCarrier(json, root).run();
}

std::string Fault::message() const {
    return "byte " + std::to_string(offset) + ": " + reason;
}

} // namespace quillon::Json
