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

    /// The user's entry that starts the program, or would.
    QString userFile() const;

  private:
    QString systemFile(const QString& name) const;
    void disable(const QString& name) const;
    bool write(const QString& name, const QByteArray& more) const;

    Places places_;
};

} // namespace vantrix
