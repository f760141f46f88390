#pragma once

#include "TestCase.h"

#include <ZelWidgets/ViewCtrl>
#include <ZelWidgets/ZelMouseActionSettings>
#include <ZelWidgets/ZelShortcutGuiHelper>
#include <ZelWidgets/ZelShortcutHandler>
#include <ZelWidgets/ZelShortcutTreeItem>

#include <QMap>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

/// What an editor's tree shows of an id.
struct ShownShortcut
{
    QString text;
    QString key;
    QString defaultKey;
    int category = -1;

    friend bool operator==(const ShownShortcut &, const ShownShortcut &) = default;
};

/// Base of tests that start with the registry of an application that just came up.
class RegistryTestCase : public TestCase
{
    Q_OBJECT

protected:
    static ZelShortcutHandler &registry() { return *ZelShortcutHandler::instance(); }

    /// The registry of a new process that has the same settings.
    static void restart()
    {
        ZelShortcutHandler::destroy();
        ViewCtrl::Settings::instance()->setDollyZoomInMode(ViewCtrl::DollyMouseMode::Mode0);
        ZelShortcutHandler::prepareInstance();
        ZelMouseActionSettings::instance();
        ViewCtrl::Settings::instance()->setViewMode(ViewCtrl::ViewMode::Mode0);
    }

    static QMap<QString, ShownShortcut> shown(const QTreeWidget &tree)
    {
        QMap<QString, ShownShortcut> shown;
        for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(&tree)); *it; ++it) {
            const auto &item = *static_cast<ZelShortcutTreeItem *>(*it);
            if (!item.isShortcutItem())
                continue;
            shown.insert(item.id(), {item.text(0), item.shortcutInternalText(),
                                     item.defaultShortcutInternalText(),
                                     item.data(0, ZelShortcutTreeItem::CategoryRole).toInt()});
        }
        return shown;
    }

    /// The registry, as an editor shows it.
    static QMap<QString, ShownShortcut> entries()
    {
        QTreeWidget tree;
        ZelShortcutGuiHelper::buildTree(&tree);
        return shown(tree);
    }

    static ZelShortcutTreeItem *itemOf(const QTreeWidget &tree, const QString &id)
    {
        for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(&tree)); *it; ++it) {
            auto *item = static_cast<ZelShortcutTreeItem *>(*it);
            if (item->id() == id)
                return item;
        }
        return nullptr;
    }

protected Q_SLOTS:
    void init()
    {
        TestCase::init();
        restart();
    }
    void cleanup()
    {
        ZelShortcutHandler::destroy();
        TestCase::cleanup();
    }
};
