#pragma once

#include "activation_history.h"
#include "active_window.h"
#include "window_survey.h"

#include <quillon/app/platform/linux/applications/app_identifier.h>
#include <quillon/app/ports/app_icons.h>
#include <quillon/app/ports/front_application.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// The application of the active X11 window, named by its desktop entry. Absent until these have been read.
class X11FrontApplication final : public FrontApplication {
  public:
    /// Is given the pixels that an application without a desktop entry shows in its windows' frames.
    using NoteIcon = std::function<void(const std::string& bundleID, IconPixels icon)>;

    /// `identifier` must outlive this object.
    X11FrontApplication(
        std::shared_ptr<X11Connection> x11, AppIdentifier& identifier, NoteIcon noteIcon = {});

    /// Asks the server for the windows' titles anew; gives those that were known before when it does not
    /// answer in time.
    std::optional<RunningApp> current() const override;
    Subscription onActivated(std::function<void(const RunningApp&)> callback) override;

  private:
    /// A window and what it was found to belong to.
    struct Named {
        SurveyedWindow window;
        AppIdentity app;
    };

    void seedHistory();
    void activeChanged();
    /// Absent when there is nothing to tell or not all of it can be asked for now.
    std::optional<RunningApp> describe() const;
    std::vector<Named> ownersOf(const SurveyedWindow& window) const;
    AppIdentity identityOf(const Named& window, const std::vector<Named>& owners) const;
    std::vector<Named> name(const std::vector<xcb_window_t>& windows) const;
    void noteIconOf(const RunningApp& app);

    std::shared_ptr<X11Connection> m_x11;
    AppIdentifier& m_identifier;
    NoteIcon m_noteIcon;
    ActiveWindow m_active;
    ActivationHistory m_history;
    mutable std::optional<RunningApp> m_last;
    bool m_isToldOf = false; ///< the active window's activation was told
    Event<const RunningApp&> m_activated;
    Subscription m_changes;
    Subscription m_entries;
    Subscription m_caughtUp;
};

} // namespace quillon
