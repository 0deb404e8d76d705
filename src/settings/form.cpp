#include "settings/form.h"

#include <QPainter>
#include <QVBoxLayout>

#include "settings/controls/drawing.h"
#include "views/focus_ring.h"
#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int sectionGap = 12;
constexpr int headerGap = 5;
constexpr int footerGap = 5;
constexpr int remarkGap = 2;
constexpr int textInset = 4; // of headers and remarks from the group's edge
constexpr double footerPoints = 11.0;

/// The background of a group of rows.
class Group : public View {
  public:
    using View::View;

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().colors().card);
        painter.drawRoundedRect(rect(), FormSection::cornerRadius, FormSection::cornerRadius);
        paintOutline(painter, *this, theme(), rect(), FormSection::cornerRadius);
        bool first = true;
        for (int i = 0; i < layout()->count(); ++i) {
            const QWidget* row = layout()->itemAt(i)->widget();
            if (!row || row->isHidden())
                continue;
            if (!first)
                painter.fillRect(QRectF(FormRow::sidePadding, row->y(), width() - 2 * FormRow::sidePadding, 1.0),
                                 theme().colors().separator);
            first = false;
        }
    }
};

QVBoxLayout* column(QWidget* parent, int spacing) {
    auto* layout = new QVBoxLayout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

QWidget* indented(TextLabel* label) {
    auto* holder = new QWidget;
    auto* layout = column(holder, 0);
    layout->setContentsMargins(textInset, 0, textInset, 0);
    layout->addWidget(label);
    return holder;
}

} // namespace

FormSection::FormSection(const Theme& theme, const QString& header, const QStringList& footers) : View(theme) {
    setAccessibleName(header);
    auto* parts = column(this, 0);
    if (!header.isEmpty()) {
        const TextLabel::Style style{.points = bodyPoints, .weight = QFont::DemiBold, .wraps = true};
        parts->addWidget(indented(new TextLabel(theme, style, header)));
        parts->addSpacing(headerGap);
    }
    auto* group = new Group(theme);
    rows_ = column(group, 0);
    parts->addWidget(group);
    footers_ = new QVBoxLayout;
    footers_->setContentsMargins(0, 0, 0, 0);
    footers_->setSpacing(remarkGap);
    parts->addLayout(footers_);
    for (const QString& footer : footers)
        addFooter(footer);
}

TextLabel& FormSection::addFooter(const QString& text, ColorRole color) {
    auto* label = new TextLabel(theme(), {.points = footerPoints, .color = color, .wraps = true}, text);
    footers_->setContentsMargins(textInset, footerGap, textInset, 0);
    footers_->addWidget(label);
    return *label;
}

void FormSection::add(QWidget* row) {
    rows_->addWidget(row);
}

Form::Form(const Theme& theme) : View(theme), sections_(column(this, sectionGap)) {
    sections_->addStretch(1);
}

FormSection& Form::addSection(const QString& header, const QStringList& footers) {
    auto* section = new FormSection(theme(), header, footers);
    sections_->insertWidget(sections_->count() - 1, section);
    return *section;
}

QWidget* besideEachOther(QWidget* first, QWidget* second) {
    auto* holder = new QWidget;
    auto* row = new QHBoxLayout(holder);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(first, 1);
    row->addSpacing(8);
    row->addWidget(second);
    row->addSpacing(focusMargin); // in line with controls that leave room for a ring
    return holder;
}

} // namespace vantrix
