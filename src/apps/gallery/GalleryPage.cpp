#include "GalleryPage.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

GalleryPage::GalleryPage(QWidget *parent)
    : QWidget(parent)
    , layout_(new QVBoxLayout(this))
{
    layout_->setContentsMargins(16, 12, 16, 16);
    layout_->setSpacing(12);
}

QVBoxLayout *GalleryPage::addSection(const QString &title, const QString &explanation)
{
    auto *group = new QGroupBox(title, this);
    auto *content = new QVBoxLayout(group);
    content->setSpacing(8);
    if (!explanation.isEmpty()) {
        auto *label = new QLabel(explanation, group);
        label->setWordWrap(true);
        label->setProperty("dim", true);
        content->addWidget(label);
    }
    layout_->addWidget(group);
    return content;
}

void GalleryPage::leaveWheelToScrolling()
{
    for (QWidget *widget : findChildren<QWidget *>()) {
        const bool isTurnedByWheel =
            qobject_cast<QAbstractSpinBox *>(widget) || qobject_cast<QComboBox *>(widget) ||
            (qobject_cast<QAbstractSlider *>(widget) && !qobject_cast<QScrollBar *>(widget));
        if (!isTurnedByWheel)
            continue;
        if (widget->focusPolicy() == Qt::WheelFocus)
            widget->setFocusPolicy(Qt::StrongFocus);
        widget->installEventFilter(this);
    }
}

bool GalleryPage::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() != QEvent::Wheel || !widget || widget->hasFocus())
        return QWidget::eventFilter(watched, event);
    // With Control the wheel turns what it is over; the library's own editors decide by themselves.
    if (static_cast<QWheelEvent *>(event)->modifiers().testFlag(Qt::ControlModifier))
        return QWidget::eventFilter(watched, event);
    event->ignore();
    return true;
}

void GalleryPage::addStretch()
{
    layout_->addStretch(1);
}

QString GalleryPage::describe(const QObject *object)
{
    const auto *widget = qobject_cast<const QWidget *>(object);
    QString name = widget ? widget->accessibleName() : object->objectName();
    if (name.isEmpty())
        name = object->objectName();
    if (name.isEmpty()) {
        const auto *button = qobject_cast<const QAbstractButton *>(object);
        name = button ? button->text().remove(u'&') : QString();
    }
    const QString type = QString::fromLatin1(object->metaObject()->className());
    return name.isEmpty() ? type : type + u' ' + name;
}
