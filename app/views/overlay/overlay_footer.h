#pragma once

#include <quillon/components/keys_view.h>
#include <quillon/components/symbol_view.h>
#include <quillon/components/themed_label.h>
#include <quillon/components/themed_widget.h>

#include <optional>

namespace quillon {

/// How the overlay is closed, and the command that its user clicks most.
class OverlayFooter : public ThemedWidget {
    Q_OBJECT

  public:
    explicit OverlayFooter(ThemeSource& themes, QWidget* parent = nullptr);

    struct MostClicked {
        QString title;
        Shortcut shortcut;

        bool operator==(const MostClicked&) const = default;
    };

    void setHint(const QString& hint);
    void setMostClicked(const std::optional<MostClicked>& command);

  protected:
    void themeChanged() override;

  private:
    void follow();

    ThemedLabel* m_hint;
    ThemedLabel* m_mostClicked;
    ThemedLabel* m_command;
    KeysView* m_keys;
};

} // namespace quillon
