#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

struct sd_bus;
struct sd_bus_message;

namespace quillon {

/// The calls that reached one application while something was done, kept to be made again.
class CapturedCalls {
  public:
    /// Does `work` and captures the calls that it makes to the connections of the process `pid`, as the
    /// accessibility bus at `address` saw them.
    static CapturedCalls during(const std::string& address, long pid, const std::function<void()>& work);

    std::size_t size() const { return m_calls.size(); }
    /// Makes them all again, none waiting for the answer of another, and waits for all answers: how long the
    /// application needs to answer them, with nothing to think about in between.
    std::chrono::duration<double, std::milli> repeat(const std::string& address) const;

  private:
    struct Unref {
        void operator()(sd_bus_message* message) const;
    };
    std::vector<std::unique_ptr<sd_bus_message, Unref>> m_calls;
};

} // namespace quillon
