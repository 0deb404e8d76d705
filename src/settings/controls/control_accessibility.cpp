#include "settings/controls/control_accessibility.h"

#include <cmath>

#include <QAccessibleWidget>

#include "settings/controls/picker.h"
#include "settings/controls/slider.h"
#include "settings/controls/tab_button.h"

namespace vantrix {
namespace {

class SliderInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit SliderInterface(Slider* slider) : QAccessibleWidget(slider, QAccessible::Slider) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value)
            return slider().valueText ? slider().valueText()
                                      : QStringLiteral("%1%").arg(std::lround(slider().fraction() * 100.0));
        return QAccessibleWidget::text(kind);
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return slider().fraction(); }
    void setCurrentValue(const QVariant& value) override {
        const double share = (value.toDouble() - slider().leastFraction()) / step();
        slider().setValue(static_cast<int>(std::lround(share)));
    }
    QVariant minimumValue() const override { return slider().leastFraction(); }
    QVariant maximumValue() const override { return slider().mostFraction(); }
    QVariant minimumStepSize() const override { return step(); }

  private:
    Slider& slider() const { return *static_cast<Slider*>(widget()); }
    double step() const { return (slider().mostFraction() - slider().leastFraction()) / slider().maximum(); }
};

class TabInterface final : public QAccessibleWidget {
  public:
    explicit TabInterface(TabButton* tab) : QAccessibleWidget(tab, QAccessible::PageTab) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? tab().text() : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = true;
        state.selected = tab().isChecked();
        return state;
    }

    QStringList actionNames() const override { return QStringList{pressAction()} + QAccessibleWidget::actionNames(); }

    void doAction(const QString& name) override {
        if (name == pressAction())
            tab().click();
        else
            QAccessibleWidget::doAction(name);
    }

  private:
    TabButton& tab() const { return *static_cast<TabButton*>(widget()); }
};

/// The toolkit's own gives the present entry as the name, and so never says what is being picked.
class PickerInterface final : public QAccessibleWidget {
  public:
    explicit PickerInterface(Picker* picker) : QAccessibleWidget(picker, QAccessible::ComboBox) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value || kind == QAccessible::Description)
            return picker().currentText();
        return QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.hasPopup = true;
        return state;
    }

    QStringList actionNames() const override {
        return QStringList{showMenuAction(), increaseAction(), decreaseAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name == showMenuAction())
            picker().showPopup();
        else if (name == increaseAction())
            picker().pick(picker().currentIndex() + 1);
        else if (name == decreaseAction())
            picker().pick(picker().currentIndex() - 1);
        else
            QAccessibleWidget::doAction(name);
    }

  private:
    Picker& picker() const { return *static_cast<Picker*>(widget()); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    if (auto* slider = qobject_cast<Slider*>(object))
        return new SliderInterface(slider);
    if (auto* tab = qobject_cast<TabButton*>(object))
        return new TabInterface(tab);
    if (auto* picker = qobject_cast<Picker*>(object))
        return new PickerInterface(picker);
    return nullptr;
}

} // namespace

void installControlAccessibility() {
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(installed);
}

} // namespace vantrix
