#pragma once

#include <ZelWidgets/GlobalShortcutSettings>
#include <ZelWidgets/zelwidgets_export.h>

#include <QCoreApplication>
#include <QKeySequence>
#include <QList>
#include <QString>

#include <memory>
#include <optional>

class QAction;
class QObject;
class QShortcut;
class QTreeWidget;
class QWidget;
class ZelAction;
class ZelMouseAction;
class ZelShortcut;
class ZelShortcutHandlerPrivate;
namespace ViewCtrl {
class Settings;
}

/// How one of several objects with the same key stands to a press of it.
struct ZelConflictStanding
{
    QString id;
    QString text;
    /// The distance from the focus, the lowest is meant; none where the key doesn't reach it.
    std::optional<int> score;
    bool isEnabled;
    bool isMeant;
};

/// The registry of every keyboard and mouse shortcut of the application.
///
/// Each shortcut has an id of the form "category.name". Objects announce the key that they wish at
/// construction and receive the one that the registry decides on: the user's, if there is one. Key
/// texts are in QKeySequence's portable form; gestures in that of ZelMouseShortcut.
///
///     ZelShortcutHandler::prepareInstance();
///     ... build actions and shortcuts ...
///     ZelShortcutHandler::instance()->restoreSettings();
///     ZelShortcutHandler::instance()->setSystemInitialized(&mainWindow);
///
/// For the GUI thread only.
class ZELWIDGETS_EXPORT ZelShortcutHandler
{
    Q_DECLARE_TR_FUNCTIONS(ZelShortcutHandler)

public:
    /// Makes the registry, if there is none, and registers the ids of views that come up later.
    /// Call it before the first action is built.
    static void prepareInstance();
    /// The registry; makes it, with a warning, if nobody prepared it.
    static ZelShortcutHandler *instance();
    static void destroy();
    /// Fills the categories and fixed names.
    static void init(GlobalShortcutSettings &settings);
    static bool isConflictHandler(const QShortcut *shortcut);

    void registerKeyShortcut(QString id, QString text, QKeySequence key);
    /// The key in force for the id. A new id is entered with this key as its default, but Escape
    /// becomes no key; an id without a dot or of an unknown category isn't entered, and keeps the
    /// key that it asks for. While the application starts, the longest text of an id is kept.
    QString registerShortcut(QString id, QString text, QString key);
    /// These enter a live object, or enter it again, and give it the key in force.
    void registerActionOrSetShortcut(ZelAction &action);
    void registerOrChangeShortcut(ZelShortcut &shortcut);
    void registerOrChangeMouseAction(ZelMouseAction &action);

    /// The first live object of the id, a ZelAction with an action, a ZelShortcut or a
    /// ZelMouseAction; null if there is none.
    QObject *findShortcut(QString id) const;
    /// The key in force. An unknown id is entered, without a key.
    QString getShortcutInfo(const QString &id);
    /// Whether the key in force is the default; false for an unknown id.
    bool hasDefaultShortcut(const QString &id) const;
    /// Whether a live ZelShortcut has the id of the action.
    bool isLivingZelShortcut(const QAction &action) const;

    bool systemInitialized() const;
    /// The start is over: from here on conflicts are looked for as objects come. The main widget
    /// is the root of searches and the parent of conflict handlers; not owned.
    void setSystemInitialized(QWidget *mainWidget);
    /// Gives every live object the key in force and looks for conflicts anew.
    void applyCurrentSettingsToShortcuts();

    /// Whether live objects of the two ids work in a common window.
    bool hasScopeConflictKey(QString idA, QString idB) const;
    /// Whether the gestures of the two ids work in a common scope.
    bool hasScopeConflictMouse(QString idA, QString idB) const;
    /// Does what a press of the key does where several objects have it, for those who have eaten
    /// the key event; false if there are no such objects.
    bool activateConflictHandlerShortcut(const QKeySequence &key);
    /// The objects that share the key, the nearest to the focus first; none of them is meant where
    /// two are equally near. Empty if at most one object has the key.
    QList<ZelConflictStanding> conflictStandings(const QKeySequence &key) const;

    /// Settings group "shortcutSettings": one key for each id.
    void storeSettings();
    /// Takes the stored keys over; undo and redo are never left without one.
    void restoreSettings();
    /// All entries as an indented JSON document, those of the editor's tree as it shows them;
    /// nothing of the tree is stored.
    QString exportShortcuts(QTreeWidget *editor);
    /// True if the document looks like one of exportShortcuts(): at least two entries were taken
    /// over, and more than failed. With an editor its tree shows the result and no entry, key or
    /// live object is changed until it is applied; without one the keys are in force at once. The
    /// document's view mode is in force at once in both cases. A document without entries changes
    /// nothing.
    bool importShortcuts(const QString &json, QTreeWidget *editor);

    void resetAllOnlyCallThisFromAutoTests();

private:
    friend class ZelShortcutGuiHelper;
    friend class ZelHotKeyMaterials;
    friend class ZelShortcutConflictHandler;
    friend class ViewCtrl::Settings;
    friend class ZelShortcutHandlerPrivate;
    friend class ZelShortcutScopes;
    friend class ZelCommand;
    friend struct std::default_delete<ZelShortcutHandler>;

    ZelShortcutHandler();
    ~ZelShortcutHandler();
    static void make();
    void initLaterCreatedShortcuts();
    bool changeShortcut(QString id, QString key, bool apply);
    void restoreMaterials();

    std::unique_ptr<ZelShortcutHandlerPrivate> d_;
};
