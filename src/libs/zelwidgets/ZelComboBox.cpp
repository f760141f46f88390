#include "ZelComboBox.h"

#include <QAbstractItemView>
#include <QStyle>
#include <QWheelEvent>

#include <memory>

ZelComboBox::ZelComboBox(QWidget *parent)
    : QComboBox(parent)
{
    QWidget *popup = view()->window();
    popup->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    popup->setAttribute(Qt::WA_TranslucentBackground);
}

QSize ZelComboBox::sizeHint() const
{
    QSize hint = QComboBox::sizeHint();
    hint.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return hint;
}

void ZelComboBox::showPopup()
{
    Q_EMIT aboutToPopup();
    QComboBox::showPopup();
}

void ZelComboBox::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        event->ignore();
        return;
    }
    const std::unique_ptr<QWheelEvent> plain(event->clone());
    plain->setModifiers(Qt::NoModifier);
    QComboBox::wheelEvent(plain.get());
    event->setAccepted(plain->isAccepted());
}
