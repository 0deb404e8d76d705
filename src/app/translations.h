#pragma once

#include <QLocale>

namespace vantrix {

/// Shows every text from now on in the first of the locale's languages that the program has a table for, else in
/// English; numbers follow the locale. Called once the application object exists, before any text is asked for. The
/// system's locale follows LANGUAGE, LC_ALL, LC_MESSAGES and LANG, in this order; under LC_ALL=C all is English.
void installTranslations(const QLocale& locale = QLocale::system());

} // namespace vantrix
