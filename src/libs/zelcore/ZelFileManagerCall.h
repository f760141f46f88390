#pragma once

#include <QDBusConnection>
#include <QString>

#include <functional>

/// The call to the desktop's file manager on a bus.
namespace ZelFileManagerCall {

/// Asks the file manager to show the item. If there is no bus or no file manager, otherwise gets
/// the path; after an answer only while the context lives. Returns at once.
void showItem(const QDBusConnection &bus, const QString &path,
              const std::function<void(const QString &)> &otherwise, QObject *context);

} // namespace ZelFileManagerCall
