#include "ZelEditableLabel.h"

#include "ZelAccessible.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

ZelEditableLabel::ZelEditableLabel(QWidget *parent)
    : QStackedWidget(parent)
    , label_(new QLabel(this))
    , edit_(new QLineEdit(this))
{
    ZelAccessible::installFactory();
    setStyleSheet(QStringLiteral("background-color: transparent"));
    edit_->setStyleSheet(QStringLiteral("border: none; color: black"));
    edit_->setAccessibleName(tr("Text"));
    label_->setTextFormat(Qt::PlainText);
    addWidget(label_);
    addWidget(edit_);
    setFocusPolicy(Qt::TabFocus);
    edit_->installEventFilter(this);
    connect(edit_, &QLineEdit::editingFinished, this, &ZelEditableLabel::stopEdit);
}

// The line edit loses the focus when it goes, and must not find half of its owner then.
ZelEditableLabel::~ZelEditableLabel()
{
    edit_->removeEventFilter(this);
    disconnect(edit_, nullptr, this, nullptr);
}

QString ZelEditableLabel::getText() const
{
    return label_->text();
}

bool ZelEditableLabel::isEditable() const
{
    return isEditable_;
}

void ZelEditableLabel::setText(const QString &text)
{
    label_->setText(text);
    if (isEditing_)
        edit_->setText(text);
}

void ZelEditableLabel::setEditable(bool editable)
{
    isEditable_ = editable;
    setFocusPolicy(editable ? Qt::TabFocus : Qt::NoFocus);
}

void ZelEditableLabel::setValidator(const QValidator *validator)
{
    edit_->setValidator(validator);
}

void ZelEditableLabel::startEdit()
{
    if (!isEditable_ || isEditing_)
        return;
    isEditing_ = true;
    edit_->setText(label_->text());
    setCurrentWidget(edit_);
    edit_->selectAll();
    QTimer::singleShot(0, edit_, [this] {
        if (isEditing_)
            edit_->setFocus();
    });
}

void ZelEditableLabel::stopEdit()
{
    if (!isEditing_)
        return;
    label_->setText(edit_->text());
    leaveEdit();
    Q_EMIT editingFinished();
}

void ZelEditableLabel::leaveEdit()
{
    // First of all: the line edit says that it is finished once more when it loses the focus.
    isEditing_ = false;
    const bool hadFocus = edit_->hasFocus();
    setCurrentWidget(label_);
    if (!hadFocus)
        return;
    // Later, as the key that ended the edit is still on its way through here.
    QTimer::singleShot(0, this, [this] {
        if (!isEditing_ && (!window()->focusWidget() || isAncestorOf(window()->focusWidget())))
            setFocus();
    });
}

bool ZelEditableLabel::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (watched != edit_ || !isKey || !isEditing_ ||
        static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return QStackedWidget::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        leaveEdit();
    return true;
}

// While one edits, the dark text of the line edit stands on white in every theme.
void ZelEditableLabel::paintEvent(QPaintEvent *event)
{
    QStackedWidget::paintEvent(event);
    QPainter painter(this);
    if (isEditing_)
        painter.fillRect(rect(), Qt::white);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Active, QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void ZelEditableLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && isEditable_)
        startEdit();
    else
        QStackedWidget::mouseDoubleClickEvent(event);
}

void ZelEditableLabel::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if ((isEnter || event->key() == Qt::Key_F2) && isEditable_ && hasFocus())
        startEdit();
    else if (!isEnter || hasFocus())
        QStackedWidget::keyPressEvent(event);
}

void ZelEditableLabel::focusInEvent(QFocusEvent *event)
{
    QStackedWidget::focusInEvent(event);
    update();
}

void ZelEditableLabel::focusOutEvent(QFocusEvent *event)
{
    QStackedWidget::focusOutEvent(event);
    update();
}
