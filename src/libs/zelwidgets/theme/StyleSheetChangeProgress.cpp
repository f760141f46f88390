#include "StyleSheetChangeProgress.h"

#include "GlobalEventFilter.h"
#include "SimpleProgressBar.h"
#include "ZelWindowPlacement.h"

#include <QCoreApplication>
#include <QLabel>
#include <QThread>
#include <QVBoxLayout>

namespace {
constexpr int gap = 10;
constexpr unsigned long settleMs = 20;
} // namespace

StyleSheetChangeProgress::StyleSheetChangeProgress(const QString &newSheet)
    : bar_(new SimpleProgressBar(this))
{
    GlobalEventFilter *filter = GlobalEventFilter::instance();
    setStyleSheet(newSheet);
    setAutoFillBackground(true);
    setWindowFlags(Qt::CustomizeWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowTitleHint);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(gap, gap, gap, gap);
    layout->addWidget(new QLabel(tr("Updating Style"), this));
    layout->setSpacing(gap);
    layout->addWidget(bar_);
    bar_->setTextVisible(false);
    bar_->setMaximum(filter->estiamteOnThemeChangeProgressObjects());

    centerWidgetOnScreen(this, nullptr);
    show();
    connect(filter, &GlobalEventFilter::themeChangedProgress, this,
            &StyleSheetChangeProgress::showCount);

    // The window has to be on the screen before the long synchronous work begins.
    QThread::msleep(settleMs);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void StyleSheetChangeProgress::showCount()
{
    bar_->setValue(GlobalEventFilter::instance()->changeThemeProgressCount());
    repaint();
}
