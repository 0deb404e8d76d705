#pragma once

#include <atomic>

#include <QImage>
#include <QString>

namespace vantrix {

/// What a screenshot export tells of its steps, on standard error and in "export.log" in its folder, and how it saves
/// its pictures. Its words are kept in Italian: scripts look for them. Any thread may log.
class ExportLog {
  public:
    /// The first line replaces the log of an earlier run.
    explicit ExportLog(QString folder) : folder_(std::move(folder)) {}

    const QString& folder() const { return folder_; }
    void log(const QString& message);
    /// Writes `image` to NAME.png, replacing an older one. A failure is logged; the run goes on.
    void save(const QString& name, const QImage& image);

  private:
    QString folder_;
    std::atomic<bool> isFirst_ = true;
};

} // namespace vantrix
