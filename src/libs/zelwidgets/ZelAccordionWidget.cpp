#include "ZelAccordionWidget.h"

#include "ZelAccordionButton.h"
#include "ZelAccordionContentContainer.h"

#include <QVBoxLayout>

#include <algorithm>

ZelAccordionWidget::ZelAccordionWidget(const QString &text, const QString &settingsKey,
                                       Accordion::State state)
    : button_(new ZelAccordionButton(text, settingsKey, state == Accordion::Open))
    , container_(new ZelAccordionContentContainer(this))
    , contentLayout_(new QVBoxLayout(container_))
{
    setObjectName(QStringLiteral("ZelAccordionWidget"));
    setContentsMargins(0, 0, 0, 0);
    container_->setContentsMargins(0, 0, 0, 0);
    container_->hide();
    contentLayout_->setContentsMargins(16, 5, 10, 5);

    connect(button_, &ZelAccordionButton::widgetVisible, container_, &QWidget::setVisible);
    connect(button_, &ZelAccordionButton::widgetVisible, this, &ZelAccordionWidget::widgetVisible);
    connect(container_, &ZelAccordionContentContainer::visibilityChanged, this, [this](bool shown) {
        updateGeometry();
        Q_EMIT visibilityChanged(shown);
    });

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(button_);
    layout->addWidget(container_);
}

void ZelAccordionWidget::addLayout(QLayout *layout)
{
    contentLayout_->addLayout(layout);
}

void ZelAccordionWidget::addSpacing(int size)
{
    contentLayout_->addSpacing(size);
}

void ZelAccordionWidget::addWidget(QWidget *widget, int stretch, Qt::Alignment alignment)
{
    contentLayout_->addWidget(widget, stretch, alignment);
}

void ZelAccordionWidget::setSpacing(int spacing)
{
    contentLayout_->setSpacing(spacing);
}

QVBoxLayout *ZelAccordionWidget::getLayout() const
{
    return contentLayout_;
}

ZelAccordionButton *ZelAccordionWidget::button() const
{
    return button_;
}

void ZelAccordionWidget::open()
{
    button_->setOpen(true);
}

void ZelAccordionWidget::close()
{
    button_->setOpen(false);
}

void ZelAccordionWidget::setEnableWidget(bool enabled)
{
    button_->setEnabled(enabled);
}

void ZelAccordionWidget::setTitle(const QString &title)
{
    button_->setText(title);
}

QSize ZelAccordionWidget::sizeHint() const
{
    return QWidget::sizeHint();
}

QSize ZelAccordionWidget::minimumSizeHint() const
{
    QSize size = QWidget::minimumSizeHint();
    size.setWidth(std::max(size.width(), contentLayout_->totalMinimumSize().width()));
    return size;
}

ZelAnimationAccordionWidget::ZelAnimationAccordionWidget(const QString &text,
                                                         const QString &settingsKey, bool unused,
                                                         bool open)
    : ZelAccordionWidget(text, settingsKey, open ? Accordion::Open : Accordion::Closed)
{
    Q_UNUSED(unused)
}

void ZelAnimationAccordionWidget::animationUpdated(ZelAnimationEdit *edit, uint id, bool allowMerge)
{
    Q_EMIT updateAnimation(edit, id, allowMerge);
}
