#pragma once

#include "app_icon_cache.h"
#include "themed_widget.h"

#include <string>

namespace quillon {

/// An application's icon, or a placeholder square for an unknown one. Decoration: not read aloud.
class AppIconView : public ThemedWidget {
    Q_OBJECT

  public:
    /// `size` is the edge of the icon in logical pixels. `icons` outlives this.
    AppIconView(ThemeSource& themes, AppIconCache& icons, int size, QWidget* parent = nullptr);

    const std::string& bundleID() const { return m_bundleID; }
    void setBundleID(std::string bundleID);
    /// Shows this program's own mark instead of an application's icon.
    void showProductMark();

    QSize sizeHint() const override { return {m_size, m_size}; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    AppIconCache& m_icons;
    int m_size;
    std::string m_bundleID;
    bool m_showsProductMark = false;
};

} // namespace quillon
