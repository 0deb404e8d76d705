#pragma once

#include <string_view>

#include "views/view.h"

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

    /// Where the content goes, below the header.
    QVBoxLayout& content() { return *content_; }

    QString accessibleText() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    SymbolView* symbol_;
    TextLabel* title_;
    TextLabel* subtitle_;
    QVBoxLayout* content_;
};

} // namespace vantrix
