#include <gtest/gtest.h>

#include "fuzz/targets.h"
#include "linux/settings/desktop_entry.h"

namespace vantrix::fuzz {

/// An entry that is found; and the path of a program, which the entry that is made for it starts.
void desktopEntry(std::string_view input) {
    const QByteArray text(input.data(), static_cast<qsizetype>(input.size()));
    const DesktopEntry found = DesktopEntry::parse(text).value_or(DesktopEntry());
    found.isFor({QStringLiteral("KDE")});
    programOf(found.exec);
    const QString program = QString::fromUtf8(text).remove(QChar()).prepend(u'/');
    const auto made = DesktopEntry::parse("[Desktop Entry]\nType=Application\nExec=" + execValue(program).toUtf8());
    ASSERT_TRUE(made);
    EXPECT_EQ(programOf(made->exec).toStdString(), program.toStdString());
}

} // namespace vantrix::fuzz
