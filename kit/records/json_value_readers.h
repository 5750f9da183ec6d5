#pragma once

#include "json_form.h"
#include "json_reader.h"

#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

/// Readers of values by their forms. Each gives what it read by `take()`, once after its value is complete.
namespace quillon::Json {

template <class Value>
class ValueReader;

template <>
class ValueReader<bool> : public Reader {
  public:
    bool boolean(bool read) override {
        m_value = read;
        return true;
    }
    bool take() { return m_value; }

  protected:
    std::string expected() const override { return "true or false"; }

  private:
    bool m_value = false;
};

template <>
class ValueReader<std::int64_t> : public Reader {
  public:
    Range range;

    bool integer(std::int64_t read) override {
        m_value = read;
        return read >= range.least && read <= range.most;
    }
    std::int64_t take() { return m_value; }

  protected:
    std::string expected() const override;

  private:
    std::int64_t m_value = 0;
};

template <>
class ValueReader<std::string> : public Reader {
  public:
    bool text(const std::string& read) override {
        m_value = read;
        return true;
    }
    std::string take() { return std::move(m_value); }

  protected:
    std::string expected() const override { return "text"; }

  private:
    std::string m_value;
};

template <class Element>
class ValueReader<std::vector<Element>> : public Reader {
  public:
    bool beginArray() override {
        m_value.clear();
        return true;
    }
    Reader* element() override { return &m_element; }
    void childDone() override { m_value.push_back(m_element.take()); }
    std::vector<Element> take() { return std::move(m_value); }

  protected:
    std::string expected() const override { return "a list"; }

  private:
    std::vector<Element> m_value;
    ValueReader<Element> m_element;
};

/// Of two equal names the later one counts.
template <class Element>
class ValueReader<std::map<std::string, Element, std::less<>>> : public Reader {
  public:
    using Map = std::map<std::string, Element, std::less<>>;

    bool beginObject() override {
        m_value.clear();
        return true;
    }
    Reader* member(const std::string& key) override {
        m_key = key;
        return &m_element;
    }
    void childDone() override {
        // They come in order, unless somebody else wrote them.
        m_value.insert_or_assign(m_value.end(), std::move(m_key), m_element.take());
    }
    Map take() { return std::move(m_value); }

  protected:
    std::string expected() const override { return "an object"; }

  private:
    Map m_value;
    std::string m_key;
    ValueReader<Element> m_element;
};

/// For members that may be missing; those that are there are read like any other.
template <class Value>
class ValueReader<std::optional<Value>> : public ValueReader<Value> {};

template <Record Value>
class ValueReader<Value> : public ObjectReader {
  public:
    ValueReader() {
        forEachMember([this](const auto& member, auto& reader) {
            field(member.name, reader, isOptional<decltype(reader)> ? Need::optional : Need::required);
            if constexpr (requires { reader.range; })
                reader.range = member.range;
        });
    }
    Value take() {
        Value value = blank();
        forEachMember([&](const auto& member, auto& reader) {
            if constexpr (isOptional<decltype(reader)>)
                value.*member.place = seen(member.name) ? std::optional(reader.take()) : std::nullopt;
            else
                value.*member.place = reader.take();
        });
        return value;
    }

  private:
    template <class Owner, class Type>
    static ValueReader<Type> readerOf(const Member<Owner, Type>&);
    template <class... Members>
    static std::tuple<decltype(readerOf(std::declval<Members>()))...>
    readersOf(const std::tuple<Members...>&);

    template <class AnyReader>
    struct Optional : std::false_type {};
    template <class Type>
    struct Optional<ValueReader<std::optional<Type>>> : std::true_type {};
    template <class AnyReader>
    static constexpr bool isOptional = Optional<std::remove_reference_t<AnyReader>>::value;

    static Value blank() {
        if constexpr (requires { Form<Value>::blank(); })
            return Form<Value>::blank();
        else
            return Value();
    }

    template <class Function>
    void forEachMember(Function function) {
        [&]<std::size_t... Place>(std::index_sequence<Place...>) {
            (function(std::get<Place>(Form<Value>::members), std::get<Place>(m_readers)), ...);
        }
        (std::make_index_sequence<std::tuple_size_v<Readers>>());
    }

    using Readers = decltype(readersOf(Form<Value>::members));
    Readers m_readers;
};

template <StoredAsAnother Value>
class ValueReader<Value> : public ValueReader<typename Form<Value>::Stored> {
    using Stored = ValueReader<typename Form<Value>::Stored>;

  public:
    bool boolean(bool read) override { return Stored::boolean(read) && restore(); }
    bool integer(std::int64_t read) override { return Stored::integer(read) && restore(); }
    bool text(const std::string& read) override { return Stored::text(read) && restore(); }
    bool end() override { return Stored::end() && restore(); }
    Value take() { return std::move(*m_value); }

  protected:
    std::string expected() const override { return std::string(Form<Value>::expected); }

  private:
    bool restore() {
        m_value = Form<Value>::restored(Stored::take());
        return m_value.has_value();
    }

    std::optional<Value> m_value;
};

} // namespace quillon::Json
