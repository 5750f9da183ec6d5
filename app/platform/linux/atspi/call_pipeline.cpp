#include "call_pipeline.h"

#include "bus_handles.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <systemd/sd-bus.h>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace quillon::atspi {
namespace {

using namespace std::chrono_literals;

/// Requests in flight before it is known how fast the application answers: so few that one which needs a
/// fifth of a second for each still answers all of them in time.
constexpr std::size_t firstWindow = 4;
/// A request that waited so long has too many others before it; one that waited so little has not.
constexpr auto slowAnswer = 400ms;
constexpr auto fastAnswer = 100ms;

/// Adds one argument to a message; each answers whether it could.
struct ArgumentAppender {
    sd_bus_message* message;

    bool operator()(const char* text) const { return sd_bus_message_append_basic(message, 's', text) >= 0; }
    bool operator()(const std::string& text) const { return (*this)(text.c_str()); }
    bool operator()(std::int32_t number) const {
        return sd_bus_message_append_basic(message, 'i', &number) >= 0;
    }
    bool operator()(std::uint32_t number) const {
        return sd_bus_message_append_basic(message, 'u', &number) >= 0;
    }
    bool operator()(bool flag) const {
        const int value = flag;
        return sd_bus_message_append_basic(message, 'b', &value) >= 0;
    }
    bool operator()(const Call::MatchRule& rule) const {
        using enum Call::MatchRule::Match;
        return sd_bus_message_open_container(message, 'r', "aiia{ss}iaiiasib") >= 0
               && sd_bus_message_append_array(message, 'i', rule.states.data(), sizeof rule.states) >= 0
               && sd_bus_message_append(message, "ia{ss}i", rule.stateMatch, 0, all) >= 0
               && sd_bus_message_append_array(message, 'i', rule.roles.data(), sizeof rule.roles) >= 0
               && sd_bus_message_append(message, "iasib", any, 0, all, 0) >= 0
               && sd_bus_message_close_container(message) >= 0;
    }
};

/// The message of a call; nullptr when the object's name or path cannot be any.
BusMessage messageOf(sd_bus* bus, const Call& call) {
    sd_bus_message* raw = nullptr;
    const int made = sd_bus_message_new_method_call(
        bus, &raw, call.object.busName.c_str(), call.object.path.c_str(), call.interface, call.member);
    BusMessage message(raw);
    if (made < 0)
        return nullptr;
    for (const Call::Argument& argument : call.arguments)
        if (!std::visit(ArgumentAppender{message.get()}, argument))
            return nullptr;
    return message;
}

/// Whether an error means that nobody was there to answer.
bool meansAbsence(sd_bus_message* message) {
    static constexpr std::array absences{
        SD_BUS_ERROR_NO_REPLY, SD_BUS_ERROR_SERVICE_UNKNOWN, SD_BUS_ERROR_NAME_HAS_NO_OWNER,
        SD_BUS_ERROR_DISCONNECTED, SD_BUS_ERROR_TIMEOUT};
    return std::ranges::any_of(
        absences, [message](const char* name) { return sd_bus_message_is_method_error(message, name) > 0; });
}

} // namespace

/// One call in flight.
struct CallPipeline::Pending {
    CallPipeline* owner = nullptr;
    Callback callback;
    Clock::time_point sentAt;
    BusSlot slot;

    static int answered(sd_bus_message* message, void* pending, sd_bus_error*) {
        auto* self = static_cast<Pending*>(pending);
        self->owner->handle(*self, message);
        return 1;
    }
};

CallPipeline::CallPipeline(
    BusConnection connection, const ReadLimits& limits, Clock::time_point deadline, std::stop_token stop)
    : m_connection(std::move(connection)), m_limits(limits), m_deadline(deadline), m_stop(std::move(stop)),
      m_wakeUp(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)), m_window(std::min(firstWindow, limits.inFlight)),
      m_lastArrival(Clock::now()) {
    if (!m_connection) {
        m_disconnected = true;
        giveUp();
    }
}

CallPipeline::~CallPipeline() {
    m_pending.clear(); // before the connection: slots belong to it
}

void CallPipeline::ask(Call call, Callback callback) {
    if (!m_ended)
        m_queue.push_back({std::move(call), std::move(callback)});
}

bool CallPipeline::run() {
    const std::stop_callback wakeUp(m_stop, [this] { eventfd_write(m_wakeUp.get(), 1); });
    m_lastArrival = Clock::now();
    while (!m_ended) {
        sendQueued();
        if (m_inFlight == 0 && m_queue.empty())
            return !m_ended;
        const int progress = sd_bus_process(m_connection.get(), nullptr);
        if (progress < 0) {
            m_disconnected = true;
            giveUp();
        } else if (isTimeOver()) {
            giveUp();
        } else if (progress == 0) {
            waitForInput();
        }
    }
    return false;
}

void CallPipeline::handle(Pending& pending, sd_bus_message* message) {
    const Clock::time_point now = Clock::now();
    const Clock::duration latency = now - pending.sentAt;
    pending.slot.reset();
    const Callback callback = std::exchange(pending.callback, nullptr);
    m_free.push_back(&pending);
    --m_inFlight;

    const bool isError = sd_bus_message_is_method_error(message, nullptr) > 0;
    const bool isMissing = isError && meansAbsence(message);
    if (latency < m_limits.call || !isMissing)
        m_lastArrival = now;
    adaptWindow(latency);
    m_missed = m_missed || isMissing;
    const Answer answer = isMissing ? Answer::missing : isError ? Answer::refused : Answer::value;
    callback(answer, answer == Answer::value ? message : nullptr);
}

void CallPipeline::adaptWindow(Clock::duration latency) {
    if (latency > slowAnswer)
        m_window = std::max<std::size_t>(1, m_window / 2);
    else if (latency < fastAnswer)
        m_window = std::min(m_window + 1, m_limits.inFlight);
}

void CallPipeline::sendQueued() {
    while (!m_ended && m_inFlight < m_window && !m_queue.empty()) {
        Request request = std::move(m_queue.front());
        m_queue.pop_front();
        send(std::move(request));
    }
}

void CallPipeline::send(Request request) {
    sd_bus* bus = m_connection.get();
    const BusMessage message = messageOf(bus, request.call);
    if (!message) {
        request.callback(Answer::refused, nullptr);
        return;
    }
    Pending& pending = freePending();
    const auto limit = std::chrono::microseconds(m_limits.call).count();
    sd_bus_slot* slot = nullptr;
    const int sent = sd_bus_call_async(
        bus, &slot, message.get(), &Pending::answered, &pending, static_cast<std::uint64_t>(limit));
    pending.slot.reset(slot);
    if (sent < 0) {
        m_free.push_back(&pending);
        m_disconnected = true;
        giveUp();
        return;
    }
    pending.callback = std::move(request.callback);
    pending.sentAt = Clock::now();
    ++m_inFlight;
}

CallPipeline::Pending& CallPipeline::freePending() {
    if (m_free.empty()) {
        m_pending.push_back(std::make_unique<Pending>());
        m_pending.back()->owner = this;
        return *m_pending.back();
    }
    Pending& pending = *m_free.back();
    m_free.pop_back();
    return pending;
}

void CallPipeline::waitForInput() {
    sd_bus* bus = m_connection.get();
    const int events = sd_bus_get_events(bus);
    if (events < 0)
        return; // the connection is closing; processing it tells
    std::array<pollfd, 2> descriptors{
        {{sd_bus_get_fd(bus), static_cast<short>(events), 0}, {m_wakeUp.get(), POLLIN, 0}}};

    Clock::time_point until = std::min(m_deadline, m_lastArrival + m_limits.silence);
    std::uint64_t callTimeout = 0; // of the monotonic clock, in microseconds
    if (sd_bus_get_timeout(bus, &callTimeout) >= 0 && callTimeout != UINT64_MAX)
        until = std::min(until, Clock::time_point(std::chrono::microseconds(callTimeout)));
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now());
    poll(descriptors.data(), descriptors.size(), static_cast<int>(std::max(left, 0ms).count()));
}

bool CallPipeline::isTimeOver() const {
    const Clock::time_point now = Clock::now();
    return m_stop.stop_requested() || now >= m_deadline || now >= m_lastArrival + m_limits.silence;
}

void CallPipeline::giveUp() {
    m_ended = true;
    m_missed = true;
    m_queue.clear();
}

} // namespace quillon::atspi
