#pragma once

#include <quillon/app/views/components/app_icon_view.h>
#include <quillon/app/views/components/search_box.h>
#include <quillon/app/views/components/themed_label.h>

#include <QWidget>

#include <string>

namespace quillon {

/// Whose shortcuts these are and how many, and the search field.
class OverlayHeader : public QWidget {
    Q_OBJECT

  public:
    OverlayHeader(ThemeSource& themes, AppIconCache& icons, QWidget* parent = nullptr);

    /// The application that the shortcuts are of.
    void setApp(const std::string& bundleID, const QString& name);
    /// No application: the program's own name and mark.
    void setNoApp();
    /// Empty for no line.
    void setCount(const QString& line);
    SearchBox& search() { return *m_search; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    AppIconView* m_icon;
    ThemedLabel* m_name;
    ThemedLabel* m_count;
    SearchBox* m_search;
};

} // namespace quillon
