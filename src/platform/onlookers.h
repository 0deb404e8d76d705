#pragma once

#include <memory>

#include <QObject>

namespace vantrix {

/// Tells whether somebody may be looking at the screen. Never waits for the system and never asks it twice: it tells by
/// itself. Main thread only.
class Onlookers : public QObject {
    Q_OBJECT
  public:
    /// False only while the system says that the session is locked or the display off; true where nothing tells.
    virtual bool somebodyLooks() const = 0;

  Q_SIGNALS:
    /// `somebodyLooks` has another answer.
    void changed();
};

/// The onlookers of this session. Made after the application object.
std::unique_ptr<Onlookers> makeOnlookers();

} // namespace vantrix
