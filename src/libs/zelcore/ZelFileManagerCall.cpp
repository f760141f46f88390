#include "ZelFileManagerCall.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QStringList>
#include <QUrl>

void ZelFileManagerCall::showItem(const QDBusConnection &bus, const QString &path,
                                  const std::function<void(const QString &)> &otherwise,
                                  QObject *context)
{
    if (!bus.isConnected()) {
        otherwise(path);
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QString address = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    call << QStringList(address) << QString();
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                     [watcher, path, otherwise] {
                         watcher->deleteLater();
                         if (watcher->isError())
                             otherwise(path);
                     });
}
