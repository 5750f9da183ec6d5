#include "window_survey.h"

#include "x11_property.h"
#include "x11_queries.h"

#include <quillon/kit/base/unicode.h>

#include <optional>

namespace quillon {

namespace {

constexpr std::uint32_t titleLimit = 1024;
constexpr std::uint32_t nameLimit = 256;
constexpr std::uint32_t one = 4;

/// What was asked about one window.
class Question {
  public:
    Question(X11Connection& x11, xcb_window_t window)
        : m_window(window), m_class(X11Property::ask(x11, window, XCB_ATOM_WM_CLASS, 2 * nameLimit)),
          m_title(X11Property::ask(x11, window, x11.atom(X11Name::netWmName), titleLimit)),
          m_oldTitle(X11Property::ask(x11, window, XCB_ATOM_WM_NAME, titleLimit)),
          m_transientFor(X11Property::ask(x11, window, XCB_ATOM_WM_TRANSIENT_FOR, one)),
          m_gtkID(X11Property::ask(x11, window, x11.atom(X11Name::gtkApplicationID), nameLimit)),
          m_ownPid(X11Property::ask(x11, window, x11.atom(X11Name::netWmPid), one)),
          m_clientPid(ClientPid::ask(x11, window)) {}

    std::optional<SurveyedWindow> receive(X11Connection& x11) {
        for (X11Property* property : {&m_class, &m_title, &m_oldTitle, &m_transientFor, &m_gtkID, &m_ownPid})
            property->receive(x11);
        const auto clientPid = m_clientPid.receive(x11);
        if (!m_ownPid.isAnswered())
            return std::nullopt;
        SurveyedWindow result;
        result.id = m_window;
        result.title = title(x11);
        result.transientFor = m_transientFor.number().value_or(XCB_NONE);
        if (result.transientFor == x11.root())
            result.transientFor = XCB_NONE;
        result.facts = facts();
        result.facts.pid = clientPid.value_or(m_ownPid.number().value_or(0));
        return result;
    }

  private:
    std::string title(const X11Connection& x11) const {
        const std::string modern = m_title.text();
        if (!modern.empty())
            return unicode::repaired(modern);
        if (m_oldTitle.type() == x11.atom(X11Name::utf8String))
            return unicode::repaired(m_oldTitle.text());
        // Other types, such as COMPOUND_TEXT, change their encoding as they go.
        return m_oldTitle.type() == XCB_ATOM_STRING ? latin1ToUtf8(m_oldTitle.text()) : std::string();
    }

    WindowFacts facts() const {
        WindowFacts facts;
        const std::string both = m_class.text();
        facts.instance = unicode::repaired(both.c_str());
        if (facts.instance.size() < both.size())
            facts.className = unicode::repaired(both.c_str() + both.find('\0') + 1);
        facts.gtkApplicationID = unicode::repaired(m_gtkID.text());
        return facts;
    }

    xcb_window_t m_window;
    X11Property m_class;
    X11Property m_title;
    X11Property m_oldTitle;
    X11Property m_transientFor;
    X11Property m_gtkID;
    X11Property m_ownPid;
    ClientPid m_clientPid;
};

} // namespace

std::vector<SurveyedWindow> surveyWindows(X11Connection& x11, std::span<const xcb_window_t> windows) {
    std::vector<Question> questions;
    for (const xcb_window_t window : windows)
        questions.emplace_back(x11, window);
    std::vector<SurveyedWindow> result;
    for (Question& question : questions) {
        if (auto window = question.receive(x11))
            result.push_back(*std::move(window));
    }
    return result;
}

} // namespace quillon
