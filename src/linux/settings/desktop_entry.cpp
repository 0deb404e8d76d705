#include "linux/settings/desktop_entry.h"

#include <algorithm>

#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>

namespace vantrix {
namespace {

constexpr QLatin1StringView quotedOnly("\"`$\\"); // need a backslash between double quotes

/// Undoes the escapes that any value in the file may have.
QString unescaped(const QString& value) {
    static const QHash<QChar, QChar> meanings{
        {u's', u' '}, {u'n', u'\n'}, {u't', u'\t'}, {u'r', u'\r'}, {u'\\', u'\\'}};
    QString result;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const bool escape = value[i] == u'\\' && i + 1 < value.size() && meanings.contains(value[i + 1]);
        result += escape ? meanings.value(value[++i]) : value[i];
    }
    return result;
}

QString escaped(const QString& value) {
    QString result = value;
    result.replace(u'\\', QLatin1StringView("\\\\"));
    result.replace(u'\n', QLatin1StringView("\\n"));
    result.replace(u'\t', QLatin1StringView("\\t"));
    return result.replace(u'\r', QLatin1StringView("\\r"));
}

/// The keys of the file's main group.
QHash<QString, QString> mainGroup(const QByteArray& text) {
    QHash<QString, QString> values;
    bool inside = false;
    for (const QString& line : QString::fromUtf8(text).split(u'\n')) {
        const QString content = line.trimmed();
        if (content.isEmpty() || content.startsWith(u'#'))
            continue;
        if (content.startsWith(u'[')) {
            if (inside)
                break;
            inside = content == QLatin1StringView("[Desktop Entry]");
            continue;
        }
        const qsizetype equals = content.indexOf(u'=');
        if (inside && equals > 0)
            values.insert(content.left(equals).trimmed(), unescaped(content.mid(equals + 1).trimmed()));
    }
    return values;
}

QStringList namesIn(const QString& list) {
    return list.split(u';', Qt::SkipEmptyParts);
}

bool canRun(const QString& program) {
    if (program.isEmpty())
        return false;
    if (!program.startsWith(u'/'))
        return !QStandardPaths::findExecutable(program).isEmpty();
    const QFileInfo file(program);
    return file.isFile() && file.isExecutable();
}

} // namespace

std::optional<DesktopEntry> DesktopEntry::parse(const QByteArray& text) {
    const auto values = mainGroup(text);
    const auto is = [&values](const char* key, const char* value) {
        return values.value(QString::fromLatin1(key)).compare(QLatin1StringView(value), Qt::CaseInsensitive) == 0;
    };
    DesktopEntry entry;
    entry.exec = values.value(QStringLiteral("Exec"));
    entry.tryExec = values.value(QStringLiteral("TryExec"));
    entry.hidden = is("Hidden", "true");
    entry.enabled = !is("X-GNOME-Autostart-enabled", "false");
    entry.onlyShowIn = namesIn(values.value(QStringLiteral("OnlyShowIn")));
    entry.notShowIn = namesIn(values.value(QStringLiteral("NotShowIn")));
    if (!is("Type", "Application") || entry.exec.isEmpty())
        return std::nullopt;
    return entry;
}

bool DesktopEntry::isFor(const QStringList& desktops) const {
    const auto named = [&desktops](const QStringList& names) {
        return std::ranges::any_of(desktops, [&names](const QString& desktop) { return names.contains(desktop); });
    };
    return !named(notShowIn) && (onlyShowIn.isEmpty() || named(onlyShowIn));
}

bool DesktopEntry::startsSomething() const {
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts);
    return !hidden && enabled && isFor(desktops) && canRun(programOf(exec)) && (tryExec.isEmpty() || canRun(tryExec));
}

QString execValue(const QString& program) {
    QString quoted;
    for (const QChar character : program) {
        if (quotedOnly.contains(character))
            quoted += u'\\';
        quoted += character;
        if (character == u'%')
            quoted += u'%'; // a single one would start a field code
    }
    return escaped(u'"' + quoted + u'"');
}

QString programOf(const QString& execValue) {
    QString program;
    bool quoted = false;
    for (qsizetype i = 0; i < execValue.size(); ++i) {
        const QChar character = execValue[i];
        if (character == u'"') {
            quoted = !quoted;
        } else if (character == u' ' && !quoted) {
            break;
        } else if (character == u'\\' && quoted && i + 1 < execValue.size()) {
            program += execValue[++i];
        } else {
            program += character;
        }
    }
    return quoted ? QString() : program.replace(QLatin1StringView("%%"), QLatin1StringView("%"));
}

} // namespace vantrix
