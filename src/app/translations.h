#pragma once

#include <QLocale>

namespace vantrix {

/// From now on, texts are shown in the first of the locale's languages that the program has a table for, else in
/// English; numbers follow the locale. Call once the application object exists and before any text is needed. The
/// system's locale is taken from LANGUAGE, LC_ALL, LC_MESSAGES and LANG, in this order; LC_ALL=C means English.
void installTranslations(const QLocale& locale = QLocale::system());

} // namespace vantrix
