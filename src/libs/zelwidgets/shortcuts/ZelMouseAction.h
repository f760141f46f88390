#pragma once

#include <ZelWidgets/ZelMouseShortcut>
#include <ZelWidgets/zelwidgets_export.h>

#include <QObject>

/// A mouse gesture with an id, in the registry of shortcuts: users may bind it to another gesture.
/// Who gets the mouse events asks ZelMouseActionSettings what they mean.
class ZELWIDGETS_EXPORT ZelMouseAction : public QObject
{
    Q_OBJECT

public:
    /// What the action can be bound to.
    enum Category : int {
        OneShot = 0,  ///< a click of any kind
        OneWay = 1,   ///< a movement in one direction: the wheel or a drag
        DragOnly = 2, ///< a drag
    };
    Q_ENUM(Category)

    /// Where the action works; the application gives further bits their meaning.
    enum ScopeInformation : int { DefaultScope = 1 };

    /// Registers at ZelShortcutHandler, which may decide on another gesture.
    ZelMouseAction(const QString &id, QString text, Category category, ZelMouseShortcut shortcut,
                   QObject *parent);
    ~ZelMouseAction() override;

    QString id() const { return id_; }
    QString text() const { return text_; }
    Category getCategory() const { return category_; }
    const ZelMouseShortcut &getShortcut() const { return shortcut_; }
    /// The gesture as ZelMouseShortcut::exportToString() writes it.
    QString internalShortcutTxt() const;
    QString publicShortcutText() const;
    bool enabled() const { return enabled_; }
    /// Whether the scopes of the two have something in common.
    bool hasScopeOverLap(const ZelMouseAction &other) const;

    /// This and setShortcutFromText() leave the registry alone.
    void setShortcut(const ZelMouseShortcut &shortcut);
    void setShortcutFromText(const QString &text);
    /// Const, as the table hands its actions out so. An action that is off is never found.
    void setEnabled(bool enabled) const;
    void setScope(const QFlags<ScopeInformation> &scope);

private:
    void assertIfInvalidShortcut() const;

    QString id_;
    QString text_;
    Category category_;
    mutable bool enabled_ = true;
    ZelMouseShortcut shortcut_;
    QFlags<ScopeInformation> scope_ = DefaultScope;
};
