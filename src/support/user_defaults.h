#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

namespace vantrix {

/// Where the settings of one domain are kept. Values are booleans, doubles or strings.
class DefaultsStore {
  public:
    virtual ~DefaultsStore() = default;
    /// The stored value; invalid when the key is not stored.
    virtual QVariant value(const QString& key) const = 0;
    /// Stores the value, or removes the key when `value` is invalid.
    virtual void setValue(const QString& key, const QVariant& value) = 0;
    /// Writes at once what is still waiting to be written.
    virtual void flush() {}
    /// Called when something other than this program has changed stored values. Set once, by the owner.
    std::function<void()> changedOutside;
};

/// The user's settings: what is stored, over what was registered as default. Nothing is cached: each read sees the
/// latest value. Main thread only.
class UserDefaults : public QObject {
    Q_OBJECT
  public:
    explicit UserDefaults(std::unique_ptr<DefaultsStore> store);

    /// Registered values are never stored. They stand in for keys that are not stored, and for stored values that
    /// cannot be read as the kind asked for.
    void registerDefaults(const QHash<QString, QVariant>& defaults);

    /// Absent when neither stored nor registered. A number reads as its decimal text; a boolean is no text.
    std::optional<QString> string(const QString& key) const;
    /// A number, or a text that is one; else the registered value, else 0. Always finite; a boolean is no number.
    double number(const QString& key) const;
    /// A boolean, a number other than 0, or "true"/"yes"/"1" and their opposites in any letter case; else the
    /// registered value, else false.
    bool boolean(const QString& key) const;

    /// Stores a boolean, a finite number or a text, and announces it; any other value is ignored. Setting what is
    /// already stored does nothing.
    void set(const QString& key, const QVariant& value);
    /// Back to the registered value.
    void remove(const QString& key);
    /// Writes at once what is still waiting to be written.
    void synchronize() { store_->flush(); }

  Q_SIGNALS:
    /// Some value may have changed, here or from outside.
    void changed();

  private:
    template<typename Kind>
    std::optional<Kind> firstUsable(const QString& key, std::optional<Kind> (*read)(const QVariant&)) const;

    std::unique_ptr<DefaultsStore> store_;
    QHash<QString, QVariant> registered_;
};

} // namespace vantrix
