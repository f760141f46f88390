#include "ZelDialogTextCopier.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QTextDocumentFragment>
#include <QTextEdit>

namespace {

QString plainText(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

QString withoutMnemonics(QString text)
{
    for (qsizetype i = text.indexOf(u'&'); i >= 0; i = text.indexOf(u'&', i + 1))
        text.remove(i, 1);
    return text;
}

QStringList textsOf(const QDialog *dialog)
{
    QStringList texts;
    if (const auto *box = qobject_cast<const QMessageBox *>(dialog)) {
        texts = {box->text(), box->informativeText()};
    } else {
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            texts.append(label->text());
    }
    texts.removeAll(QString());
    for (QString &text : texts)
        text = plainText(text);
    return texts;
}

} // namespace

ZelDialogTextCopier::ZelDialogTextCopier(QDialog *dialog)
    : QObject(dialog)
    , dialog_(dialog)
{
    dialog->installEventFilter(this);
}

QString ZelDialogTextCopier::textOf(const QDialog *dialog)
{
    const QString rule = QStringLiteral("---------------------------");
    QStringList lines{rule, dialog->windowTitle(), rule};
    lines += textsOf(dialog);
    lines.append(rule);
    if (const auto *buttons = dialog->findChild<QDialogButtonBox *>()) {
        QStringList names;
        for (const QAbstractButton *button : buttons->buttons())
            names.append(withoutMnemonics(button->text()));
        lines << names.join(QStringLiteral("   ")) << rule;
    }
    const auto *box = qobject_cast<const QMessageBox *>(dialog);
    if (box && !box->detailedText().isEmpty())
        lines << box->detailedText() << rule;
    return lines.join(u'\n') + u'\n';
}

bool ZelDialogTextCopier::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey =
        event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (!isKey || !static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy))
        return QObject::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        copy();
    event->accept();
    return true;
}

void ZelDialogTextCopier::copy() const
{
    for (QTextEdit *details : dialog_->findChildren<QTextEdit *>()) {
        if (details->isVisible() && details->textCursor().hasSelection()) {
            details->copy();
            return;
        }
    }
    QGuiApplication::clipboard()->setText(textOf(dialog_));
}
