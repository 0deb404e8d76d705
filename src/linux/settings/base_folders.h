#pragma once

#include <QDir>
#include <QString>

namespace vantrix {

/// The folder that an XDG variable names; `fallback` ("/.config") below the home folder where the variable is unset or,
/// against the rules, relative.
inline QString baseFolder(const char* variable, const QString& fallback) {
    const QString value = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(value) ? value : QDir::homePath() + fallback;
}

} // namespace vantrix
