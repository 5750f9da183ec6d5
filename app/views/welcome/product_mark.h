#pragma once

#include <quillon/app/views/components/themed_widget.h>

namespace quillon {

/// The program's mark, as decoration.
class ProductMark : public ThemedWidget {
    Q_OBJECT

  public:
    /// `size` in logical pixels.
    ProductMark(ThemeSource& themes, int size, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
