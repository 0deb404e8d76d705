#include "popover/cards/program_list.h"

#include <QVBoxLayout>

#include "menubar/preferences.h"
#include "popover/charts/program_row.h"
#include "views/disclosure_button.h"

namespace vantrix {
namespace {

constexpr int programGap = 6;

} // namespace

ProgramList::ProgramList(const CardContext& context, const Kind& kind, MetricCard& card)
    : View(context.theme), context_(context), kind_(kind), programs_(kind.rank),
      button_(new DisclosureButton(context.theme, localizedText(kind.name))) {
    setAccessibleName(localizedText(kind.name));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(programGap);
    for (ProgramRow*& row : rows_) {
        row = new ProgramRow(context.theme);
        column->addWidget(row);
    }
    hide();
    card.addToHeader(*button_);
    card.content().addWidget(this);
    connect(button_, &QAbstractButton::clicked, this, [this] {
        setVisible(button_->isChecked());
        context_.keepUnfolded(kind_.card, button_->isChecked());
    });
}

void ProgramList::showPrograms(const ProcessSample& processes, double whole) {
    const bool isUnfolded = showsPrograms(context_.defaults, kind_.card);
    button_->setChecked(isUnfolded);
    setVisible(isUnfolded);
    if (!isUnfolded)
        return;
    const Units chosen = units(context_.defaults);
    const auto programs = programs_.arranged(processes.*kind_.list);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (i >= programs.size())
            rows_[i]->clear();
        else
            rows_[i]->show(programs[i].name, programs[i].icon, kind_.text(programs[i], chosen),
                           whole > 0.0 ? kind_.rank(programs[i]) / whole : 0.0);
    }
}

void ProgramList::showEvent(QShowEvent*) {
    watch_ = context_.watchPrograms();
}

void ProgramList::hideEvent(QHideEvent*) {
    watch_.reset();
    programs_ = SteadyPrograms(kind_.rank); // those of another time
    for (ProgramRow* row : rows_)
        row->clear();
}

} // namespace vantrix
