#pragma once

#include <string_view>

#include "views/view.h"

class QHBoxLayout;
class QVBoxLayout;

namespace vantrix {

class SymbolView;
class TextLabel;

/// The frame that every card of the popover has: a soft background and a header with symbol, title and subtitle.
class MetricCard : public View {
  public:
    MetricCard(const Theme& theme, const QString& title, std::string_view symbol);

    void setSymbol(std::string_view symbol);
    /// Empty for none.
    void setSubtitle(const QString& subtitle);

    /// A control at the end of the header, which may be taller than that.
    void addToHeader(QWidget& control);

    /// Where the content goes, below the header.
    QVBoxLayout& content() { return *content_; }

    QString accessibleText() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    SymbolView* symbol_;
    TextLabel* title_;
    TextLabel* subtitle_;
    QHBoxLayout* header_;
    QWidget* control_ = nullptr;
    QVBoxLayout* content_;
};

} // namespace vantrix
