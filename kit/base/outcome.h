#pragma once

#include <optional>
#include <utility>
#include <variant>

namespace quillon {

/// A value, or why there is none: two different types.
template <class Value, class Failure>
class [[nodiscard]] Outcome {
  public:
    Outcome(Value value) : m_either(std::in_place_index<0>, std::move(value)) {}
    Outcome(Failure failure) : m_either(std::in_place_index<1>, std::move(failure)) {}

    explicit operator bool() const { return m_either.index() == 0; }

    /// Only where there is one.
    const Value& operator*() const& { return std::get<0>(m_either); }
    Value&& operator*() && { return std::get<0>(std::move(m_either)); }
    const Value* operator->() const { return &std::get<0>(m_either); }

    /// nullptr where there is a value.
    const Failure* failure() const { return std::get_if<1>(&m_either); }

    /// The value alone, for those who do not ask why.
    std::optional<Value> value() && {
        return *this ? std::optional(std::get<0>(std::move(m_either))) : std::nullopt;
    }

    bool operator==(const Outcome&) const = default;

  private:
    std::variant<Value, Failure> m_either;
};

} // namespace quillon
