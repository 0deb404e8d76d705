#include "views/view.h"

#include <cmath>

#include <QAccessibleWidget>
#include <QTextDocument>

#include "support/localization.h"
#include "views/theme.h"

namespace vantrix {
namespace {

/// A view as assistive programs see it.
class ViewInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit ViewInterface(View* view) : QAccessibleWidget(view, view->accessibleRole()) {}

    QAccessible::Role role() const override { return view().accessibleRole(); }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const QAccessible::Role role = view().accessibleRole();
        // Decoration: the text beside it says the same.
        if (role == QAccessible::Graphic || role == QAccessible::Separator || role == QAccessible::NoRole)
            state.invisible = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return view().accessibleText();
        if (kind == QAccessible::Value && view().accessibleFraction())
            return QStringLiteral("%1%").arg(std::lround(*view().accessibleFraction() * 100.0));
        return QAccessibleWidget::text(kind);
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface && view().accessibleFraction())
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return view().accessibleFraction().value_or(0.0); }
    void setCurrentValue(const QVariant&) override {}
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return 1.0; }
    QVariant minimumStepSize() const override { return 0.01; }

  private:
    const View& view() const { return *static_cast<const View*>(widget()); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* view = qobject_cast<View*>(object);
    return view ? new ViewInterface(view) : nullptr;
}

} // namespace

View::View(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
    static const bool installed = (QAccessible::installFactory(makeInterface), true);
    Q_UNUSED(installed);
    connect(&theme, &Theme::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void View::tellInToolTip(const QString& text) {
    const QString shown = Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
    if (toolTip() != shown)
        setToolTip(shown);
}

void View::announceChange() {
    if (!QAccessible::isActive() || !isVisible())
        return;
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
    if (const auto fraction = accessibleFraction()) {
        QAccessibleValueChangeEvent changed(this, *fraction);
        QAccessible::updateAccessibility(&changed);
    }
}

QString localizedText(std::string_view english) {
    return QString::fromStdString(localized(english));
}

QString localizedText(std::string_view english, const QString& value) {
    return QString::fromStdString(formatted(localized(english), {value.toStdString()}));
}

} // namespace vantrix
