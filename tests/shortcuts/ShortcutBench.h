#pragma once

#include "shortcuts/ZelKeyRecorder.h"
#include "shortcuts/ZelShortcutEditorWidget.h"
#include "shortcuts/ZelShortcutTreeItem.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidgetItemIterator>
#include <QtTest>

#include <memory>

using Item = ZelShortcutTreeItem;

inline QString id(const char *text)
{
    return QLatin1String(text);
}

/// An editor in a window of its own, and what a user does with it.
class Bench : public QWidget
{
public:
    Bench()
    {
        editor = std::make_unique<ZelShortcutEditorWidget>(this);
        editor->resize(900, 700);
        resize(900, 700);
        for (auto *recorder : editor->findChildren<ZelKeyRecorder *>())
            recorder->setPause(50);
        show();
        activateWindow();
    }

    Item *row(const char *name) const
    {
        for (QTreeWidgetItemIterator it(editor->tree()); *it; ++it) {
            auto *item = static_cast<Item *>(*it);
            if (item->id() == id(name))
                return item;
        }
        return nullptr;
    }
    QStringList shownIds() const
    {
        QStringList ids;
        for (QTreeWidgetItemIterator it(editor->tree(), QTreeWidgetItemIterator::NotHidden); *it;
             ++it) {
            auto *item = static_cast<Item *>(*it);
            if (item->isShortcutItem())
                ids += item->id();
        }
        return ids;
    }
    template <typename Widget>
    Widget *part(const char *name) const
    {
        return editor->findChild<Widget *>(id(name));
    }
    QPushButton *button(const char *name) const { return part<QPushButton>(name); }
    QString verdict() const { return part<QLabel>("ShortcutVerdict")->text(); }

    void choose(const char *name) const { editor->tree()->setCurrentItem(row(name)); }
    /// Up to the question; one key after another.
    void record(const char *name, const QList<QKeyCombination> &keys) const
    {
        choose(name);
        editor->record();
        for (const QKeyCombination &key : keys) {
            QTest::keyClick(part<QLineEdit>("ShortcutKeyRecorder"), key.key(),
                            key.keyboardModifiers());
        }
    }
    QCheckBox *checkBox(const QString &text) const
    {
        for (auto *box : editor->findChildren<QCheckBox *>()) {
            if (box->text().remove(u'&') == text)
                return box;
        }
        return nullptr;
    }

    std::unique_ptr<ZelShortcutEditorWidget> editor;
};
