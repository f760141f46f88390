#include "ZelVerifyStyleSheetWidget.h"

ZelVerifyStyleSheetWidget::ZelVerifyStyleSheetWidget(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("ZelVerifyStyleSheetWidget"));
}

QString ZelVerifyStyleSheetWidget::stylename() const
{
    return stylename_;
}

void ZelVerifyStyleSheetWidget::setStylename(const QString &name)
{
    stylename_ = name;
}

int ZelVerifyStyleSheetWidget::errorLine() const
{
    return errorLine_;
}

void ZelVerifyStyleSheetWidget::setErrorLine(int line)
{
    errorLine_ = line;
}
