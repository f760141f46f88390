#include "ZelShortcutTreeItem.h"

#include "ZelMouseAction.h"
#include "ZelShortcutHandler_p.h"

#include <QKeySequence>

#include <array>

namespace {

/// The platform's name of the control key.
QString nativeControl()
{
    return QKeySequence(Qt::CTRL | Qt::Key_K)
        .toString(QKeySequence::NativeText)
        .remove(u'K')
        .remove(u'+');
}

struct Modifier
{
    Qt::KeyboardModifier modifier;
    const char *text;
};
constexpr std::array longNames{
    Modifier{Qt::MetaModifier, QT_TRANSLATE_NOOP("ZelShortcutHandler", "Meta+")},
    Modifier{Qt::AltModifier, QT_TRANSLATE_NOOP("ZelShortcutHandler", "Alt+")},
    Modifier{Qt::ShiftModifier, QT_TRANSLATE_NOOP("ZelShortcutHandler", "Shift+")},
    Modifier{Qt::ControlModifier, QT_TRANSLATE_NOOP("ZelShortcutHandler", "Ctrl+")},
};

} // namespace

ZelShortcutTreeItem::ZelShortcutTreeItem(QTreeWidget *tree, const QString &id, const QString &text)
    : QTreeWidgetItem(tree)
    , isTopLevelCategory_(true)
{
    setData(NameColumn, IdRole, id);
    setItemText(NameColumn, text);
}

ZelShortcutTreeItem::ZelShortcutTreeItem(ZelShortcutTreeItem *parent, const QString &id,
                                         const QString &text)
    : QTreeWidgetItem(parent)
    , isTopLevelCategory_(false)
{
    setData(NameColumn, IdRole, id);
    setItemText(NameColumn, text);
}

QString ZelShortcutTreeItem::id() const
{
    return data(NameColumn, IdRole).toString();
}

QString ZelShortcutTreeItem::shortcutInternalText() const
{
    return data(KeyColumn, InternalTextRole).toString();
}

QString ZelShortcutTreeItem::defaultShortcutInternalText() const
{
    return data(DefaultColumn, InternalTextRole).toString();
}

QString ZelShortcutTreeItem::shortcutPublicText() const
{
    return text(KeyColumn);
}

void ZelShortcutTreeItem::setShortcut(const QString &text)
{
    setInternalText(KeyColumn, text);
}

void ZelShortcutTreeItem::setDefaultShortCut(const QString &text)
{
    setInternalText(DefaultColumn, text);
}

void ZelShortcutTreeItem::setInternalText(int column, const QString &text)
{
    setData(column, InternalTextRole, text);
    QTreeWidgetItem::setText(column, publicText(text));
}

void ZelShortcutTreeItem::setItemText(int column, const QString &text)
{
    QTreeWidgetItem::setText(column, displayText(text));
}

bool ZelShortcutTreeItem::isShortcutItem() const
{
    // Ids of categories have no dot, also those of sub-categories without a row.
    return !isTopLevelCategory_ && childCount() == 0 && id().contains(u'.');
}

bool ZelShortcutTreeItem::isMouseShortcut(int *category) const
{
    const QVariant stored = data(NameColumn, CategoryRole);
    if (!isShortcutItem() || !stored.isValid())
        return false;
    const int value = stored.toInt();
    if (value < ZelMouseAction::OneShot || value > ZelMouseAction::DragOnly)
        return false;
    if (category)
        *category = value;
    return true;
}

QString ZelShortcutTreeItem::displayText(QString text)
{
    const QLatin1String placeholder("!#AND_REPLACEMENT#!");
    return text.remove(QLatin1String("..."))
        .replace(QLatin1String("&&"), placeholder)
        .remove(u'&')
        .replace(placeholder, QLatin1String("&"));
}

QString ZelShortcutTreeItem::publicText(const QString &internal)
{
    if (ZelMouseShortcut::isMouseShortcut(internal))
        return ZelMouseShortcut::buildFromExportedString(internal).publicShortcutText();
    const auto sequence = QKeySequence::fromString(internal, QKeySequence::PortableText);
    const QString portable = sequence.toString(QKeySequence::PortableText);
    if (portable.compare(internal, Qt::CaseInsensitive) == 0)
        return sequence.toString(QKeySequence::NativeText);
    const QString control = nativeControl();
    QString text = internal;
    // The first replacement may bring the word in again.
    const QString marked = QString(QChar(QChar::ObjectReplacementCharacter));
    return text.replace(QLatin1String("Ctrl"), marked).replace(marked, control);
}

QString ZelShortcutTreeItem::convertPortableToLongName(QString text)
{
    const auto sequence = QKeySequence::fromString(text, QKeySequence::PortableText);
    QStringList names;
    for (int i = 0; i < sequence.count(); ++i) {
        const QKeyCombination key = sequence[static_cast<uint>(i)];
        QString name;
        for (const Modifier &modifier : longNames) {
            if (key.keyboardModifiers().testFlag(modifier.modifier))
                name += tr(modifier.text);
        }
        names += name + QKeySequence(key.key()).toString(QKeySequence::PortableText);
    }
    return names.join(QStringLiteral(", "));
}
