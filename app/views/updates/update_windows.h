#pragma once

#include <quillon/app/core/updates/update_notices.h>
#include <quillon/app/ports/foreground.h>
#include <quillon/app/ports/software_pages.h>
#include <quillon/app/views/components/theme_source.h>

#include <QPointer>
#include <QString>

#include <functional>
#include <string>

namespace quillon {

class ReleaseWindow;
class UpdateWindow;
namespace UpdateTexts {
struct Message;
}

/// The windows that tell of updates: one message and one release at a time.
class UpdateWindows final : public UpdateNotices {
  public:
    struct Needs {
        ThemeSource& themes;
        Foreground& foreground;
        SoftwarePages& pages;
        std::string version; ///< this program's
        /// The user has seen this release and closed its window, whatever was pressed in it.
        std::function<void(const std::string& version)> dismissed;
    };
    /// What `needs` refers to outlives it.
    explicit UpdateWindows(Needs needs);
    ~UpdateWindows() override;

    void tell(UpdateNotice notice) override;
    void offer(const Release& release, Occasion occasion) override;

  private:
    UpdateWindow& makeMessage(const UpdateTexts::Message& message);
    ReleaseWindow& makeReleaseWindow(const Release& release);
    void present(UpdateWindow& window);
    void tellFailure(const UpdateTexts::Message& message);

    Needs m_needs;
    QString m_version;
    QPointer<UpdateWindow> m_message;
    QPointer<ReleaseWindow> m_release;
};

} // namespace quillon
