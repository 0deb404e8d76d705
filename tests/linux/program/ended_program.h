#pragma once

#include <initializer_list>
#include <string>

#include <QProcess>

#include <gmock/gmock.h>

namespace vantrix {

/// A run of the program that ended by itself, without a display, a bus or settings, in another language and time zone
/// than those of tests.
struct EndedProgram {
    explicit EndedProgram(std::initializer_list<std::string> arguments, const std::string& home = "/nonexistent") {
        QProcess program;
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_CONFIG_HOME"})
            environment.remove(QLatin1StringView(variable));
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("disabled:"));
        environment.insert(QStringLiteral("HOME"), QString::fromStdString(home));
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("it"));
        environment.insert(QStringLiteral("TZ"), QStringLiteral("Asia/Tokyo"));
        program.setProcessEnvironment(environment);
        QStringList list;
        for (const std::string& argument : arguments)
            list << QString::fromStdString(argument);
        program.start(QStringLiteral(VANTRIX_PROGRAM), list);
        EXPECT_TRUE(program.waitForFinished());
        status = program.exitCode();
        output = program.readAllStandardOutput().toStdString();
        errors = program.readAllStandardError().toStdString();
    }

    int status = -1;
    std::string output;
    std::string errors;
};

} // namespace vantrix
