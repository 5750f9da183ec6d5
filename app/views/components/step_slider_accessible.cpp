#include "step_slider_accessible.h"

#include "step_slider.h"

#include <QAccessibleWidget>

#include <cmath>

namespace quillon {

namespace {

class StepSliderAccessible final : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit StepSliderAccessible(StepSlider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider), m_slider(*slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? m_slider.wording() : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return m_slider.number(); }
    void setCurrentValue(const QVariant& value) override {
        const double number = value.toDouble();
        if (std::isfinite(number) && std::abs(number) < 1000)
            m_slider.setSliderPosition(static_cast<int>(std::lround(number * 10)));
    }
    QVariant minimumValue() const override { return m_slider.minimum() / 10.0; }
    QVariant maximumValue() const override { return m_slider.maximum() / 10.0; }
    QVariant minimumStepSize() const override { return 0.1; }

  private:
    StepSlider& m_slider;
};

QAccessibleInterface* accessibleFor(const QString&, QObject* object) {
    auto* slider = qobject_cast<StepSlider*>(object);
    return slider ? new StepSliderAccessible(slider) : nullptr;
}

} // namespace

void installStepSliderAccessible() {
    QAccessible::installFactory(accessibleFor);
}

} // namespace quillon
