#pragma once

#include <QStringList>

#include "settings/form_row.h"

class QVBoxLayout;

namespace vantrix {

/// A group of rows on a rounded background, hairlines between them, with a header above and remarks below.
class FormSection : public View {
  public:
    static constexpr double cornerRadius = 10.0; ///< of the background, in points

    /// `header` may be empty.
    FormSection(const Theme& theme, const QString& header = {}, const QStringList& footers = {});

    /// Takes ownership of the row.
    template<typename Row>
    Row& addRow(Row* row) {
        add(row);
        return *row;
    }
    FormRow& addRow(const FormRow::Content& content) { return addRow(new FormRow(theme(), content)); }
    /// A remark below those before it; may be hidden.
    TextLabel& addFooter(const QString& text, ColorRole color = &ThemeColors::secondary);

  private:
    void add(QWidget* row);

    QVBoxLayout* rows_;
    QVBoxLayout* footers_;
};

/// The sections of one tab, one below the other.
class Form : public View {
  public:
    explicit Form(const Theme& theme);

    FormSection& addSection(const QString& header = {}, const QStringList& footers = {});

  private:
    QVBoxLayout* sections_;
};

/// Two controls side by side as one; the second gets the width it wants.
QWidget* besideEachOther(QWidget* first, QWidget* second);

} // namespace vantrix
