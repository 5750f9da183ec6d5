#pragma once

#include "bus_connection.h"
#include "object_ref.h"
#include "read_limits.h"

#include <quillon/kit/base/file_descriptor.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>
#include <stop_token>
#include <string>
#include <variant>
#include <vector>

struct sd_bus_message;

namespace quillon::atspi {

/// A method call. The texts of interface and member must be literals.
struct Call {
    /// Which objects a search is for, `(aiia{ss}iaiiasib)`: those that have all bits of `states`, or none of
    /// them, and, when `roles` has any, one of its roles.
    struct MatchRule {
        enum Match : std::int32_t { all = 1, any = 2, none = 3 };

        Match stateMatch = all;
        std::array<std::int32_t, 2> states{};
        std::array<std::int32_t, 4> roles{};
    };
    using Argument = std::variant<const char*, bool, std::int32_t, std::uint32_t, std::string, MatchRule>;

    ObjectRef object;
    const char* interface = nullptr;
    const char* member = nullptr;
    std::vector<Argument> arguments;
};

/// What became of a call.
enum class Answer {
    value,   ///< it was answered
    refused, ///< it was answered with an error
    missing, ///< it was not answered in time, or nobody was there to answer
};

/// Many calls over one connection that do not wait for each other. Calls go out in the order in which they
/// were asked for, a bounded number at a time; `run` waits for their answers and hands them over. It gives
/// up, for good, when the time is over, nothing arrives any more, the connection or the application is gone,
/// or stopping is requested. Of one thread.
class CallPipeline {
  public:
    using Clock = std::chrono::steady_clock;
    /// `message` is the answer for `Answer::value`, else nullptr; valid during the callback.
    using Callback = std::function<void(Answer, sd_bus_message* message)>;

    /// `deadline` ends everything. All referred objects must outlive the pipeline.
    CallPipeline(
        BusConnection connection, const ReadLimits& limits, Clock::time_point deadline, std::stop_token stop);
    ~CallPipeline();
    CallPipeline(const CallPipeline&) = delete;
    CallPipeline& operator=(const CallPipeline&) = delete;

    /// Asks for a call. May be used from callbacks; nothing happens once the pipeline gave up.
    void ask(Call call, Callback callback);
    /// Waits until every call is answered, those that callbacks ask for included. False when it gave up;
    /// calls without an answer are then dropped without a callback.
    bool run();

    /// Whether it gave up.
    bool hasEnded() const { return m_ended; }
    /// Whether the connection itself broke.
    bool isDisconnected() const { return m_disconnected; }
    /// Whether any call was answered with `Answer::missing`, or dropped.
    bool missedAnswers() const { return m_missed; }

  private:
    struct Pending;
    struct Request {
        Call call;
        Callback callback;
    };

    void handle(Pending& pending, sd_bus_message* message);
    void adaptWindow(Clock::duration latency);
    void sendQueued();
    void send(Request request);
    Pending& freePending();
    void waitForInput();
    bool isTimeOver() const;
    void giveUp();

    BusConnection m_connection;
    ReadLimits m_limits;
    Clock::time_point m_deadline;
    std::stop_token m_stop;
    FileDescriptor m_wakeUp; ///< event descriptor that a stop request makes readable
    std::deque<Request> m_queue;
    std::vector<std::unique_ptr<Pending>> m_pending; ///< grows to the window's size, then is used again
    std::vector<Pending*> m_free;
    std::size_t m_inFlight = 0;
    std::size_t m_window; ///< how many may be in flight now
    Clock::time_point m_lastArrival;
    bool m_ended = false;
    bool m_disconnected = false;
    bool m_missed = false;
};

} // namespace quillon::atspi
