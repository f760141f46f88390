#include "ZelHiddenPolish.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTimerEvent>

#include <algorithm>
#include <iterator>

namespace {
constexpr qint64 sliceMs = 4;
} // namespace

ZelHiddenPolish &ZelHiddenPolish::instance()
{
    auto *object = qApp->findChild<ZelHiddenPolish *>(QString(), Qt::FindDirectChildrenOnly);
    return object ? *object : *new ZelHiddenPolish(qApp);
}

ZelHiddenPolish::ZelHiddenPolish(QObject *parent)
    : QObject(parent)
{}

void ZelHiddenPolish::take(std::vector<Page> pages)
{
    forget();
    pages_ = std::move(pages);
    // The idle work takes pages from the end.
    std::reverse(pages_.begin(), pages_.end());
    for (Page &page : pages_)
        page.root->installEventFilter(this);
    if (!pages_.empty())
        idle_.start(0, this);
}

void ZelHiddenPolish::finish()
{
    while (!pages_.empty())
        finishPage(std::prev(pages_.end()));
    idle_.stop();
}

void ZelHiddenPolish::forget()
{
    for (const Page &page : pages_) {
        if (page.root)
            page.root->removeEventFilter(this);
    }
    pages_.clear();
    idle_.stop();
}

// Polishing runs code of the widgets, which may change the pages; so the page is taken out first.
void ZelHiddenPolish::finishPage(std::vector<Page>::iterator position)
{
    Page page = std::move(*position);
    pages_.erase(position);
    if (page.root)
        page.root->removeEventFilter(this);
    while (page.next < page.widgets.size())
        ZelWidgetPolish::polish(page.widgets[page.next++]);
}

bool ZelHiddenPolish::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Paint) {
        const auto found = std::find_if(pages_.begin(), pages_.end(), [object](const Page &page) {
            return page.root.data() == object;
        });
        if (found != pages_.end())
            finishPage(found);
    }
    return QObject::eventFilter(object, event);
}

void ZelHiddenPolish::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != idle_.timerId())
        return QObject::timerEvent(event);
    QElapsedTimer clock;
    clock.start();
    while (!pages_.empty() && !clock.hasExpired(sliceMs)) {
        Page &page = pages_.back();
        if (page.next == page.widgets.size())
            finishPage(std::prev(pages_.end()));
        else
            ZelWidgetPolish::polish(page.widgets[page.next++]);
    }
    if (pages_.empty())
        idle_.stop();
}
