#pragma once

#include <QColor>
#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantMap>

#include <functional>

class QDBusMessage;

/// Picks a colour by the desktop portal on a bus (PickColor of org.freedesktop.portal.Screenshot).
/// The calls to the desktop are asynchronous.
class ZelPortalColorPicker : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(const QColor &)>;

    explicit ZelPortalColorPicker(const QDBusConnection &bus, QObject *parent = nullptr);
    /// Tells the desktop to end a pick that is under way.
    ~ZelPortalColorPicker() override;

    /// Whether there is a portal, or the bus can start one; false once it has refused to pick.
    /// Asks the bus itself, which answers at once.
    bool isAvailable() const;
    /// The answer comes once, while the context lives; an invalid colour is none.
    void pick(const QString &window, QObject *context, const Answer &answer);

    /// The colour of a response; invalid if there is none, or if it isn't one.
    static QColor colorOf(const QVariantMap &results);

private Q_SLOTS:
    void response(uint code, const QVariantMap &results, const QDBusMessage &message);

private:
    void called(const QDBusMessage &reply, const QString &request);
    void listenTo(const QString &request);
    void close();
    void finish(const QColor &color);

    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;
    bool isRefused_ = false;
    int picks_ = 0;
    QString request_;
    QPointer<QObject> context_;
    Answer answer_;
};
