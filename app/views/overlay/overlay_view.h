#pragma once

#include "overlay_footer.h"
#include "overlay_header.h"
#include "overlay_state.h"
#include "shortcut_area.h"

#include <quillon/app/core/app_model.h>
#include <quillon/app/views/components/message_view.h>
#include <quillon/app/views/components/rounded_background.h>
#include <quillon/app/views/sheet/searched_sheet.h>

#include <QTimer>

#include <vector>

namespace quillon {

/// The shortcuts of the model's current sheet, grouped by menu and searchable. The content of the overlay's
/// panel; in `showcase` mode an example of it. While it is hidden it does no work.
class OverlayView : public ThemedWidget {
    Q_OBJECT

  public:
    using Mode = OverlayMode;

    /// All of them outlive the view.
    OverlayView(
        AppModel& model, ThemeSource& themes, AppIconCache& icons, Mode mode, QWidget* parent = nullptr);

    /// Brings a hidden view up to date ahead of being shown.
    void prepare() { refresh(); }

    OverlayState state() const { return m_state; }
    ShortcutArea& area() { return *m_area; }
    SearchBox& search() { return m_header->search(); }

    /// Of the rounded background, in logical pixels.
    static constexpr double cornerRadius = 16;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void layOut();
    void connectParts();
    const PreparedSheet& sheet() const { return *m_sheet.prepared(); }
    void modelChanged(ModelField field);
    void recordChanged(const RecordChange& change);
    void refresh();
    void refreshSheet();
    void refreshState();
    void refreshHeader();
    void refreshMain();
    void refreshShortcuts();
    void refreshFooter();
    void showInMain(QWidget* page);
    QString triggerLabel() const;
    bool keepOpen();

    AppModel& m_model;
    Mode m_mode;
    OverlayHeader* m_header;
    MessageView* m_message;
    ShortcutArea* m_area;
    OverlayFooter* m_footer;
    QTimer m_prepareSearch;
    Subscription m_modelChange;
    Subscription m_recordChange;
    RoundedBackground m_background{cornerRadius};

    SearchedSheet m_sheet;
    std::vector<std::size_t> m_matches;
    OverlayState m_state = OverlayState::noSheet;
};

} // namespace quillon
