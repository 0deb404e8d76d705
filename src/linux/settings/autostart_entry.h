#pragma once

#include <QString>
#include <QStringList>

#include "platform/login_item.h"

namespace vantrix {

/// The login item of Linux desktops: an entry of the XDG autostart folders that starts this program.
class AutostartEntry : public LoginItem {
  public:
    struct Places {
        QString userFolder;        ///< "$XDG_CONFIG_HOME/autostart"; made when it is needed
        QStringList systemFolders; ///< "…/autostart" of $XDG_CONFIG_DIRS, most important first
        QString program;           ///< the absolute path of the program to start

        /// Those of this session and this program.
        static Places standard();
    };

    explicit AutostartEntry(Places places);

    bool isEnabled() const override;
    void setEnabled(bool enabled) override;

  private:
    QString userFile() const;
    /// The first one there is; empty without any.
    QString systemFile() const;
    bool write(const QByteArray& contents) const;

    Places places_;
};

} // namespace vantrix
