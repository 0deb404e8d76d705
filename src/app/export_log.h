#pragma once

#include <atomic>

#include <QImage>
#include <QString>

namespace vantrix {

/// Reports the steps of a screenshot export on standard error and in "export.log" in its folder, and saves its
/// pictures. The messages are in Italian because scripts look for them. Any thread may log.
class ExportLog {
  public:
    /// The first line replaces the log of an earlier run.
    explicit ExportLog(QString folder) : folder_(std::move(folder)) {}

    void log(const QString& message);
    /// Writes `image` to NAME.png, replacing an older one. A failure is logged; the run goes on.
    void save(const QString& name, const QImage& image);
    /// Logs that a picture could not be made.
    void lose(const QString& message);
    bool hasLostPictures() const { return hasLostPictures_; }

  private:
    QString folder_;
    bool hasLostPictures_ = false;
    std::atomic<bool> isFirst_ = true;
};

} // namespace vantrix
