// The tables of resources/translations against each other and against the texts that the program asks for.

#include <map>
#include <ostream>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

#include "menubar/display_choices.h"

namespace vantrix {
namespace {

using namespace Qt::StringLiterals;

const QString tablesFolder = QStringLiteral(SOURCE_TREE "/resources/translations/");

// A language missing here fails, which reminds whoever adds it to look its number of plural forms up.
const std::map<QString, int> pluralForms = {{u"en"_s, 2}, {u"it"_s, 2}, {u"de"_s, 2},     {u"fr"_s, 2},
                                            {u"es"_s, 2}, {u"ja"_s, 1}, {u"zh_Hans"_s, 1}};

struct Message {
    bool numerus = false;
    bool unfinished = false;
    QStringList forms;
};

using Table = std::map<QString, Message>;

QString contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

Table tableAt(const QString& path) {
    Table table;
    QString source;
    QXmlStreamReader xml(contents(path));
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"message"_s) {
            const bool numerus = xml.attributes().value(u"numerus"_s) == u"yes"_s;
            xml.readNextStartElement();
            source = xml.readElementText();
            EXPECT_FALSE(table.contains(source)) << path.toStdString() << " twice: " << source.toStdString();
            table[source].numerus = numerus;
        } else if (xml.name() == u"translation"_s) {
            table[source].unfinished = xml.attributes().hasAttribute(u"type"_s);
            if (!table[source].numerus)
                table[source].forms << xml.readElementText();
        } else if (xml.name() == u"numerusform"_s) {
            table[source].forms << xml.readElementText();
        }
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return table;
}

/// Each mark with the position of its value, sorted: alike for texts that take the same values in any order.
QStringList marksOf(const QString& text) {
    static const QRegularExpression mark(u"%(?:(\\d)\\$)?(lld|@)"_s);
    QStringList marks;
    for (auto found = mark.globalMatch(text); found.hasNext();) {
        const auto match = found.next();
        const QString position = match.captured(1).isEmpty() ? QString::number(marks.size() + 1) : match.captured(1);
        marks << position + match.captured(2);
    }
    marks.sort();
    if (text.count(u'%') != marks.size())
        marks << u"and a stray percent sign"_s;
    return marks;
}

void checkMessage(const QString& source, const Message& message, int forms) {
    EXPECT_FALSE(message.unfinished);
    EXPECT_EQ(message.forms.size(), message.numerus ? forms : 1);
    for (const QString& form : message.forms) {
        EXPECT_FALSE(form.trimmed().isEmpty());
        EXPECT_EQ(marksOf(form), marksOf(source)) << form.toStdString();
    }
}

/// Every text that the Italian table has, whether it has plural forms.
std::map<QString, bool> textsOf(const Table& table) {
    std::map<QString, bool> texts;
    for (const auto& [source, message] : table)
        texts[source] = message.numerus;
    return texts;
}

/// The table folders, common to all systems or of one.
struct TranslationTables : ::testing::TestWithParam<const char*> {
    const QString folder = tablesFolder + QLatin1StringView(GetParam());
};

TEST_P(TranslationTables, AreWholeAndCarryTheMarksOfTheirSources) {
    EXPECT_EQ(QDir(folder).entryList({u"*.ts"_s}).size(), qsizetype(pluralForms.size())) << "a language has no number";
    const auto expected = textsOf(tableAt(folder + u"/it.ts"_s));
    for (const auto& [language, forms] : pluralForms) {
        const Table table = tableAt(folder + u'/' + language + u".ts"_s);
        const bool onlyPlurals = language == u"en"_s && folder == tablesFolder;
        if (!onlyPlurals) {
            EXPECT_EQ(textsOf(table), expected) << language.toStdString();
        }
        for (const auto& [source, message] : table) {
            SCOPED_TRACE(language.toStdString() + ": " + source.toStdString());
            checkMessage(source, message, forms);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Folders, TranslationTables, ::testing::Values("", "linux", "macos"),
                         [](const auto& tested) { return *tested.param ? tested.param : "common"; });

// Finds every string literal within the arguments of the look-up functions.
TEST(TranslatedTexts, AreInTheTables) {
    static const QRegularExpression call(uR"re(\blocalized(\w*)(\((?:[^()"]|"(?:[^"\\]|\\.)*"|(?2))*\)))re"_s);
    static const QRegularExpression literal(uR"re("((?:[^"\\]|\\.|"\s*")*)")re"_s); // adjacent ones are one
    static const QRegularExpression seam(uR"re("\s*")re"_s);
    const auto known = textsOf(tableAt(tablesFolder + u"it.ts"_s));
    int count = 0;
    QDirIterator files(QStringLiteral(SOURCE_TREE "/src"), {u"*.h"_s, u"*.cpp"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString code = contents(files.next());
        for (auto calls = call.globalMatch(code); calls.hasNext();) {
            const auto found = calls.next();
            for (auto literals = literal.globalMatch(found.captured(2)); literals.hasNext(); ++count) {
                const QString text = literals.next().captured(1).remove(seam);
                SCOPED_TRACE('"' + text.toStdString() + "\" in " + files.fileName().toStdString());
                const auto translated = known.find(text);
                ASSERT_NE(translated, known.end()) << "no translation";
                EXPECT_EQ(translated->second, found.captured(1) == u"Count"_s) << "has plural forms";
            }
        }
    }
    EXPECT_GT(count, 10);
}

TEST(TranslatedTexts, NameEveryChoice) {
    const auto known = textsOf(tableAt(tablesFolder + u"it.ts"_s));
    const auto expectTitles = [&known](const auto& choices) {
        for (const auto& choice : choices)
            EXPECT_TRUE(known.contains(QString::fromUtf8(choice.title.data(), qsizetype(choice.title.size()))))
                << choice.title;
    };
    expectTitles(menuBarModules);
    expectTitles(menuBarStyles);
    expectTitles(popoverCards);
    expectTitles(settingsTabs);
    expectTitles(temperatureUnits);
    expectTitles(networkUnits);
    expectTitles(memoryUnits);
    expectTitles(diskModuleContents);
    expectTitles(temperatureModuleContents);
}

} // namespace
} // namespace vantrix
