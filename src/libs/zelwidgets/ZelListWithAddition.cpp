#include "ZelListWithAddition.h"

#include "ZelToolButton.h"

#include <ZelWidgets/ZelStyleIcon>

#include <QLabel>

ZelListWithAddition::ZelListWithAddition(const QString &title, const QString &toolTip,
                                         QWidget *widget)
    : label_(new QLabel(QStringLiteral("<h3>") + title + QStringLiteral("</h3>")))
    , addButton_(new ZelToolButton)
    , widget_(widget)
{
    addButton_->setIcon(ZelStyleIcon(QStringLiteral(":/ui/icons/add")));
    addButton_->setToolTip(toolTip);
    addButton_->setFocusPolicy(Qt::StrongFocus);
    connect(addButton_, &QAbstractButton::clicked, this,
            qOverload<>(&ZelListWithAddition::addItem));

    auto *row = new QHBoxLayout;
    row->addWidget(label_);
    row->addWidget(addButton_);
    addLayout(row);
    addSpacing(4);
    addWidget(widget_);
}
