#include "app/translations.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <vector>

#include <QFile>
#include <QGuiApplication>
#include <QTranslator>

#include "support/localization.h"

using namespace Qt::StringLiterals;

namespace vantrix {
namespace {

constexpr auto english = "en"_L1;

std::vector<std::unique_ptr<QTranslator>> tables; // the first that has a text wins

QString fileOf(const QString& table) {
    return u":/translations/"_s + table + u".qm"_s;
}

/// The table for a locale such as "pt-BR" or "zh-Hant-TW"; empty where there is none. A table for one script
/// ("zh_Hans") is not used for another.
QString tableFor(const QLocale& spoken) {
    const QString language = QLocale::languageToCode(spoken.language());
    QString ofScript = language + u'_' + QLocale::scriptToCode(spoken.script());
    if (QFile::exists(fileOf(ofScript)))
        return ofScript;
    return QFile::exists(fileOf(language)) ? language : QString();
}

QString chosenTable(const QLocale& locale) {
    if (locale.language() == QLocale::C)
        return english; // LC_ALL=C asks for English, whatever LANGUAGE says
    for (const QString& tag : locale.uiLanguages())
        if (QString table = tableFor(QLocale(tag)); !table.isEmpty())
            return table;
    return english;
}

void load(const QString& table) {
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(fileOf(table)))
        tables.push_back(std::move(translator));
}

void addTables(const QString& language) {
    load(u"platform/"_s + language); // first: it corrects the common one
    load(language);
}

std::string translated(std::string_view text, std::optional<long long> count) {
    constexpr long long most = std::numeric_limits<int>::max();
    std::string source(text);
    const int number = count ? static_cast<int>(std::clamp(*count, 0LL, most)) : -1;
    for (const auto& table : tables)
        if (const QString found = table->translate("", source.c_str(), nullptr, number); !found.isEmpty())
            return found.toStdString();
    return source;
}

/// No digits of another script: the words around them would be English, and percentages always have Western digits.
QLocale numberLocale(const QLocale& locale) {
    return locale.zeroDigit() == u"0"_s ? locale : QLocale(QLocale::English);
}

} // namespace

void installTranslations(const QLocale& locale) {
    const QString language = chosenTable(locale);
    tables.clear();
    addTables(language);
    if (language != english)
        addTables(english);
    installTranslator(translated);
    QLocale::setDefault(numberLocale(locale));
    // Follows the language, not the locale: an English interface is read from the left everywhere.
    if (QLocale(language).textDirection() == Qt::RightToLeft)
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
}

} // namespace vantrix
