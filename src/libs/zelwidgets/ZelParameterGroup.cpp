#include "ZelParameterGroup.h"

#include <ZelWidgets/ZelFlipLabel>

#include <QEvent>
#include <QMetaMethod>
#include <QStyle>
#include <QVBoxLayout>

ZelParameterGroup::ZelParameterGroup(QString const &text, QWidget *parent)
    : QWidget(parent)
    , groupWidget_(new QWidget(this))
    , detailWidget_(new QWidget(this))
    , label_(new ZelFlipLabel(text, false))
    , groupLayout_(new QVBoxLayout(groupWidget_))
    , detailLayout_(new QVBoxLayout(detailWidget_))
{
    groupLayout_->setContentsMargins(0, 0, 0, 0);
    groupLayout_->addWidget(label_);
    indentDetails();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(groupWidget_);
    layout->addWidget(detailWidget_);
    detailWidget_->hide();
    connect(label_, &ZelFlipLabel::clicked, this, &ZelParameterGroup::widgetFlip);
}

void ZelParameterGroup::addDetailWidget(QWidget *widget, int stretch,
                                        QFlags<Qt::AlignmentFlag> alignment)
{
    detailLayout_->addWidget(widget, stretch, alignment);
    relayValueUpdated(widget);
}

void ZelParameterGroup::setGroupWidget(QWidget *widget, int stretch,
                                       QFlags<Qt::AlignmentFlag> alignment)
{
    groupLayout_->addWidget(widget, stretch, alignment);
    relayValueUpdated(widget);
}

void ZelParameterGroup::setOpen(bool open)
{
    detailWidget_->setVisible(open);
    label_->setOpen(open);
}

void ZelParameterGroup::widgetFlip()
{
    setOpen(detailWidget_->isHidden());
}

void ZelParameterGroup::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::StyleChange)
        indentDetails();
}

void ZelParameterGroup::indentDetails()
{
    const int indent = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    const int bottom = style()->pixelMetric(QStyle::PM_LayoutBottomMargin);
    // Flush with the group at the side of the fields.
    detailLayout_->setContentsMargins(isRightToLeft() ? 0 : indent, 0, isRightToLeft() ? indent : 0,
                                      bottom);
}

void ZelParameterGroup::relayValueUpdated(QWidget *widget)
{
    const QMetaMethod relay = QMetaMethod::fromSignal(&ZelParameterGroup::valueUpdated);
    const QMetaObject *type = widget->metaObject();
    for (int i = 0; i < type->methodCount(); ++i) {
        const QMetaMethod method = type->method(i);
        if (method.methodType() == QMetaMethod::Signal && method.name() == relay.name())
            connect(widget, method, this, relay, Qt::UniqueConnection);
    }
}
