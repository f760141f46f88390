#pragma once

#include <QMutex>
#include <QString>
#include <QVariant>

#include <memory>

/// The file behind all ZelSettings of the process. Keys are physical: group, dot, key.
///
/// Safe from any thread. Messages are written after the lock is given back, so that a message
/// handler may use the settings.
class ZelSettingsStore
{
public:
    static ZelSettingsStore &instance();

    QVariant value(const QString &key, const QVariant &defaultValue);
    void setValue(const QString &key, const QVariant &value, const QString &comment);
    bool contains(const QString &key);
    void remove(const QString &key);
    QStringList keys();

    bool save();
    void setPath(const QString &path);
    QString path();
    /// Saves for good; what is stored afterwards is lost.
    void close();

private:
    class Access;
    class File;

    ZelSettingsStore() = default;
    ~ZelSettingsStore() = default;
    QString chosenPath();
    File *file(Access &access);
    bool sync(Access &access);
    void tellFailure(Access &access);
    void letGo(Access &access);

    QMutex mutex_;
    std::unique_ptr<File> file_;
    QString path_;
    bool isClosed_ = false;
    bool isFailureTold_ = false;
};
