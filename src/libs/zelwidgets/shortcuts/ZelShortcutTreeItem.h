#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QCoreApplication>
#include <QString>
#include <QTreeWidgetItem>

/// A row of a tree of shortcuts: the name in column 0, the key in column 1, the default in column
/// 3. Columns 1 and 3 hold the internal text beside the one that users see.
class ZELWIDGETS_EXPORT ZelShortcutTreeItem : public QTreeWidgetItem
{
    Q_DECLARE_TR_FUNCTIONS(ZelShortcutHandler)

public:
    enum Column : int { NameColumn = 0, KeyColumn = 1, DefaultColumn = 3 };
    enum Role : int {
        IdRole = Qt::UserRole,               ///< column 0: id, or prefix of a category
        InternalTextRole = Qt::UserRole + 1, ///< columns 1 and 3
        CategoryRole = Qt::UserRole + 2      ///< column 0: a ZelMouseAction::Category, or 3
    };

    /// A category of the top level.
    ZelShortcutTreeItem(QTreeWidget *tree, const QString &id, const QString &text);
    /// A sub-category or a shortcut.
    ZelShortcutTreeItem(ZelShortcutTreeItem *parent, const QString &id, const QString &text);

    QString id() const;
    QString shortcutInternalText() const;
    QString defaultShortcutInternalText() const;
    QString shortcutPublicText() const;
    /// Internal texts: portable keys or exported gestures.
    void setShortcut(const QString &text);
    void setDefaultShortCut(const QString &text);
    /// The text is shown as displayText() gives it.
    void setItemText(int column, const QString &text);

    /// Whether the row is a shortcut, not a category.
    bool isShortcutItem() const;
    /// Whether the row is a mouse gesture; its ZelMouseAction::Category, if asked for.
    bool isMouseShortcut(int *category = nullptr) const;

    /// A name without mnemonics and trailing dots, so that texts of menus will do.
    static QString displayText(QString text);
    /// What users see of an internal text.
    static QString publicText(const QString &internal);
    /// Keys with their modifiers spelled out, in the order Meta, Alt, Shift, Ctrl.
    static QString convertPortableToLongName(QString text);

private:
    void setInternalText(int column, const QString &text);

    bool isTopLevelCategory_;
};
