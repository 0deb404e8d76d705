#pragma once

#include <optional>

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace vantrix {

/// The parts of a desktop entry file that decide whether a session starts its program.
struct DesktopEntry {
    QString exec;
    QString tryExec;
    bool hidden = false;
    bool enabled = true; ///< GNOME's own switch
    QStringList onlyShowIn;
    QStringList notShowIn;

    /// Absent when the text is no desktop entry of an application.
    static std::optional<DesktopEntry> parse(const QByteArray& text);

    /// True when the entry is for one of these desktops.
    bool isFor(const QStringList& desktops) const;
    /// True when a session would start a program by this entry.
    bool startsSomething() const;
};

/// The value of an Exec key that runs `program` without arguments, whatever characters its path has.
QString execValue(const QString& program);

/// The program that the value of an Exec key runs; empty where the quoting is broken.
QString programOf(const QString& execValue);

} // namespace vantrix
