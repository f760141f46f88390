#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPointer>
#include <QShortcut>
#include <QString>

class QAction;
class ZelAction;

/// A QShortcut with an id in the registry of shortcuts; users may give it another key.
class ZELWIDGETS_EXPORT ZelShortcut : public QShortcut
{
    Q_OBJECT

public:
    /// The members are slots of the parent, as SLOT() names them; null for none.
    ZelShortcut(const QString &id, QString text, const QKeySequence &key, QWidget *parent,
                const char *member = nullptr, const char *ambiguousMember = nullptr);
    /// Text and key are the action's. The action gets a ZelAction of the id, owned by the shortcut.
    /// Where the action could take the key as well, the shortcut is the one to be activated.
    ZelShortcut(const QString &id, QAction *action, QWidget *parent, const char *member = nullptr);
    /// Id, text and key are the action's.
    ZelShortcut(ZelAction *action, QWidget *parent, const char *member = nullptr);
    /// The id is the one of the ZelAction that wraps the action. Without one the shortcut isn't
    /// registered and remains a plain one; a debug message tells.
    ZelShortcut(QAction *action, QWidget *parent, const char *member = nullptr);
    ~ZelShortcut() override;

    QString id() const { return id_; }
    QString text() const { return text_; }
    void setText(QString text);
    /// The widget that the shortcut belongs to when keys are in conflict; the parent without one.
    QWidget *scope() const;
    /// Not owned.
    void setScope(QWidget *scope);
    /// The action that it was made for together with a ZelAction; null otherwise.
    QAction *ownAction() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class ZelHotKeyMaterials;
    void hardChangeId(QString id);
    void enroll();

    QString id_;
    QString text_;
    QPointer<QWidget> scope_;
    QPointer<QAction> ownAction_;
};
