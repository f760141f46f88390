#include "ZelNumberFieldMenu.h"

#include <QAbstractSpinBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QValidator>

namespace ZelNumberFieldMenu {

namespace {

QString label(const char *source)
{
    return QCoreApplication::translate("ZelNumberFieldMenu", source);
}

bool isEditable(const QAbstractSpinBox *field)
{
    return field->isEnabled() && !field->isReadOnly();
}

void addReset(QMenu *menu, QAbstractSpinBox *field, const Reset &reset)
{
    QAction *action = menu->addAction(label("&Reset"), field, reset);
    action->setObjectName(QStringLiteral("reset"));
    action->setEnabled(isEditable(field));
}

/// Whether stepping in this direction would change anything.
bool canStep(QAbstractSpinBox *field, const char *limit)
{
    return isEditable(field) &&
           (field->wrapping() || field->property("value") != field->property(limit));
}

/// The text without the field's prefix and suffix.
QString withoutUnit(const QAbstractSpinBox *field, QString text)
{
    const QString prefix = field->property("prefix").toString();
    const QString suffix = field->property("suffix").toString();
    if (!prefix.isEmpty() && text.startsWith(prefix))
        text.remove(0, prefix.size());
    if (!suffix.isEmpty() && text.endsWith(suffix))
        text.chop(suffix.size());
    return text.trimmed();
}

} // namespace

QMenu *forField(QAbstractSpinBox *field, const Reset &reset)
{
    auto *line = field->findChild<QLineEdit *>();
    if (!line->hasSelectedText())
        field->selectAll();
    QMenu *menu = line->createStandardContextMenu();
    menu->addSeparator();
    QAction *up = menu->addAction(label("Step &up"), field, &QAbstractSpinBox::stepUp);
    up->setEnabled(canStep(field, "maximum"));
    QAction *down = menu->addAction(label("Step &down"), field, &QAbstractSpinBox::stepDown);
    down->setEnabled(canStep(field, "minimum"));
    menu->addSeparator();
    addReset(menu, field, reset);
    return menu;
}

QMenu *forRow(QWidget *row, QAbstractSpinBox *field, const Reset &reset)
{
    auto *menu = new QMenu(row);
    addReset(menu, field, reset);
    menu->addSeparator();
    QAction *copy = menu->addAction(label("&Copy"), field, [field] { copyNumber(field); });
    copy->setObjectName(QStringLiteral("copy"));
    QAction *paste = menu->addAction(label("&Paste"), field, [field] { pasteNumber(field); });
    paste->setObjectName(QStringLiteral("paste"));
    paste->setEnabled(isEditable(field) && !QGuiApplication::clipboard()->text().isEmpty());
    return menu;
}

void show(QMenu *menu, QContextMenuEvent *event)
{
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event->globalPos());
    event->accept();
}

void copyNumber(QAbstractSpinBox *field)
{
    QGuiApplication::clipboard()->setText(withoutUnit(field, field->text()));
}

void pasteNumber(QAbstractSpinBox *field)
{
    const QString number = withoutUnit(field, QGuiApplication::clipboard()->text().trimmed());
    QString checked = number;
    int cursor = 0;
    if (!isEditable(field) || number.isEmpty() ||
        field->validate(checked, cursor) == QValidator::Invalid)
        return;
    field->selectAll();
    field->findChild<QLineEdit *>()->insert(number);
    field->interpretText();
}

} // namespace ZelNumberFieldMenu
