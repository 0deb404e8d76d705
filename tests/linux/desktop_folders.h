#pragma once

#include <map>

#include <QByteArray>

#include "linux/temporary_folder.h"

namespace vantrix {

/// Stands in for the user's desktop: its name, and its folders for configuration (`own`, before `session`) and data.
class DesktopFolders : public TemporaryFolder {
  public:
    explicit DesktopFolders(const QByteArray& desktop = {}) {
        set("XDG_CURRENT_DESKTOP", desktop);
        for (const auto& [variable, place] :
             {std::pair("XDG_CONFIG_HOME", "own"), {"XDG_CONFIG_DIRS", "session"}, {"XDG_DATA_HOME", "data"}})
            set(variable, QByteArray::fromStdString(path(place)));
    }
    ~DesktopFolders() {
        for (const auto& [variable, value] : usual_)
            value.isNull() ? qunsetenv(variable) : qputenv(variable, value);
    }

  private:
    void set(const char* variable, const QByteArray& value) {
        usual_[variable] = qgetenv(variable);
        qputenv(variable, value);
    }

    std::map<const char*, QByteArray> usual_;
};

} // namespace vantrix
