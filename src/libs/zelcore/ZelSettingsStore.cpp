#include "ZelSettingsStore.h"

#include "ZelSettingsFormat.h"
#include "ZelSettingsValue.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QEvent>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <QThread>

namespace {

QString defaultPath()
{
    const QString wanted = qEnvironmentVariable("ZEL_SETTINGS");
    if (!wanted.isEmpty())
        return wanted;
    const bool isNamed = !QCoreApplication::applicationName().isEmpty();
    const auto place =
        isNamed ? QStandardPaths::AppConfigLocation : QStandardPaths::GenericConfigLocation;
    const QString folder = QStandardPaths::writableLocation(place);
    return folder + QLatin1String(isNamed ? "/settings.json" : "/zelmora/settings.json");
}

constexpr int abandonedAfterMs = 3000;
constexpr int givenUpAfterMs = 10000;
constexpr int pollMs = 5;

// A process that is killed just when it makes its lock file leaves an empty one behind, which would
// be respected for half a minute; whoever lives fills his within microseconds, on a machine with
// too much to do within a second. A lock that is filled is none of our business, however long it is
// held: to challenge it could take the next one away from whoever has it.
void clearAbandonedLock(const QString &path)
{
    QFileInfo lockFile(path);
    const QDateTime made = lockFile.lastModified();
    QElapsedTimer waited;
    waited.start();
    while (lockFile.isFile() && lockFile.size() == 0 && lockFile.lastModified() == made) {
        const bool isAbandoned = waited.hasExpired(abandonedAfterMs) ||
                                 made.msecsTo(QDateTime::currentDateTime()) > abandonedAfterMs;
        if (isAbandoned) {
            QLockFile lock(path);
            lock.setStaleLockTime(abandonedAfterMs);
            lock.tryLock(0);
            return;
        }
        QThread::msleep(pollMs);
        lockFile.refresh();
    }
}

/// Keeps the other processes of this library from the file while one of them reads or writes it.
/// QSettings locks for its writing only: what it reads while another one writes, it can take for
/// the newer content, and its next writing would then undo what the other one wrote.
class ProcessGuard
{
public:
    explicit ProcessGuard(const QString &path)
        : lock_(path + QLatin1String(".guard"))
    {
        QElapsedTimer waited;
        waited.start();
        while (!lock_.tryLock(0) && lock_.error() == QLockFile::LockFailedError &&
               !waited.hasExpired(givenUpAfterMs)) {
            clearAbandonedLock(lock_.fileName());
            QThread::msleep(pollMs);
        }
        clearAbandonedLock(path + QLatin1String(".lock"));
    }

private:
    QLockFile lock_;
};

struct CloseAtExit
{
    ~CloseAtExit() { ZelSettingsStore::instance().close(); }
};

} // namespace

/// Holds the lock; tells the problems of the operation when it has let go of it.
class ZelSettingsStore::Access
{
public:
    explicit Access(ZelSettingsStore &store)
        : lock_(&store.mutex_)
    {}

    ~Access()
    {
        lock_.unlock();
        problems_ += ZelSettingsFormat::takeProblems();
        for (const QString &problem : std::as_const(problems_))
            qWarning().noquote() << problem;
    }

    void tell(const QString &problem) { problems_.append(problem); }

private:
    QMutexLocker<QMutex> lock_;
    QStringList problems_;
};

/// Writes what is pending when control returns to the event loop of its thread.
class ZelSettingsStore::File : public QSettings
{
public:
    File(ZelSettingsStore &store, const QString &path)
        : QSettings(path, ZelSettingsFormat::format())
        , store_(store)
    {}

    bool event(QEvent *event) override
    {
        if (event->type() != QEvent::UpdateRequest)
            return QSettings::event(event);
        store_.save();
        return true;
    }

private:
    ZelSettingsStore &store_;
};

ZelSettingsStore &ZelSettingsStore::instance()
{
    // Never destroyed: settings may be used while other static objects die.
    static auto *store = new ZelSettingsStore;
    return *store;
}

QString ZelSettingsStore::chosenPath()
{
    if (path_.isEmpty())
        path_ = QFileInfo(defaultPath()).absoluteFilePath();
    return path_;
}

// Opens the file at first use. Null when the process ends.
ZelSettingsStore::File *ZelSettingsStore::file(Access &access)
{
    if (!file_ && !isClosed_) {
        const ProcessGuard guard(chosenPath());
        file_ = std::make_unique<File>(*this, chosenPath());
        if (QCoreApplication *application = QCoreApplication::instance())
            file_->moveToThread(application->thread());
        if (file_->status() == QSettings::AccessError)
            tellFailure(access);
        // Made when the statics of QSettings exist, so that it goes before them.
        static const CloseAtExit closeAtExit;
    }
    return file_.get();
}

QVariant ZelSettingsStore::value(const QString &key, const QVariant &defaultValue)
{
    Access access(*this);
    const File *settings = file(access);
    return settings ? settings->value(ZelSettingsFormat::encodedKey(key), defaultValue)
                    : defaultValue;
}

void ZelSettingsStore::setValue(const QString &key, const QVariant &value, const QString &comment)
{
    const std::optional<QVariant> kept = ZelSettingsValue::storable(value);
    Access access(*this);
    if (!kept) {
        access.tell(QStringLiteral("The settings can't keep a value of type %1 for the key \"%2\".")
                        .arg(QLatin1String(value.typeName()), key));
    } else if (File *settings = file(access)) {
        const QString encoded = ZelSettingsFormat::encodedKey(key);
        settings->setValue(encoded, *kept);
        if (!comment.isEmpty())
            settings->setValue(ZelSettingsFormat::commentKey(encoded), comment);
    }
}

bool ZelSettingsStore::contains(const QString &key)
{
    Access access(*this);
    const File *settings = file(access);
    return settings && settings->contains(ZelSettingsFormat::encodedKey(key));
}

void ZelSettingsStore::remove(const QString &key)
{
    Access access(*this);
    File *settings = file(access);
    if (!settings)
        return;
    const QString encoded = ZelSettingsFormat::encodedKey(key);
    const QString below = ZelSettingsFormat::encodedKey(key + QLatin1Char('.'));
    const QStringList allKeys = settings->allKeys();
    for (const QString &present : allKeys) {
        if (present == encoded || present == ZelSettingsFormat::commentKey(encoded) ||
            present.startsWith(below))
            settings->remove(present);
    }
}

QStringList ZelSettingsStore::keys()
{
    Access access(*this);
    QStringList found;
    if (const File *settings = file(access)) {
        const QStringList allKeys = settings->allKeys();
        for (const QString &key : allKeys) {
            if (!ZelSettingsFormat::isCommentKey(key))
                found.append(ZelSettingsFormat::decodedKey(key));
        }
    }
    return found;
}

void ZelSettingsStore::tellFailure(Access &access)
{
    if (!isFailureTold_) {
        access.tell(QStringLiteral("The settings file \"%1\" can't be read or written; the "
                                   "settings live on in memory only.")
                        .arg(chosenPath()));
    }
    isFailureTold_ = true;
}

// Takes up what other processes wrote and writes what is pending.
bool ZelSettingsStore::sync(Access &access)
{
    const ProcessGuard guard(chosenPath());
    file_->sync();
    // The status keeps the first error; a second object on the same file shares what is pending,
    // tries again and tells how things stand now.
    const bool done = file_->status() == QSettings::NoError ||
                      File(*this, chosenPath()).status() != QSettings::AccessError;
    if (done)
        isFailureTold_ = false;
    else
        tellFailure(access);
    return done;
}

bool ZelSettingsStore::save()
{
    Access access(*this);
    return file(access) && sync(access);
}

void ZelSettingsStore::letGo(Access &access)
{
    if (!file_)
        return;
    sync(access);
    if (file_->thread() == QThread::currentThread())
        file_.reset();
    else
        file_.release()->deleteLater();
}

void ZelSettingsStore::setPath(const QString &path)
{
    Access access(*this);
    letGo(access);
    path_ = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
    isFailureTold_ = false;
}

QString ZelSettingsStore::path()
{
    const Access access(*this);
    return chosenPath();
}

void ZelSettingsStore::close()
{
    Access access(*this);
    letGo(access);
    isClosed_ = true;
}
