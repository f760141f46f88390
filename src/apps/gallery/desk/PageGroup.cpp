#include "PageGroup.h"

#include "GalleryPage.h"
#include "LookControls.h"
#include "PageCatalog.h"
#include "PageGroups.h"

#include <ZelWidgets/ZelTabKeyOrder>

#include <QComboBox>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int leastLetters = 12;

} // namespace

PageGroup::PageGroup(const PageGroupEntry &entry, QWidget *parent)
    : QWidget(parent)
    , chooser_(new QComboBox(this))
    , pages_(new QTabWidget(this))
{
    setObjectName(entry.id);
    chooser_->setAccessibleName(tr("Page of %1").arg(entry.title));
    chooser_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    chooser_->setMinimumContentsLength(leastLetters);
    pages_->setObjectName(entry.id + QStringLiteral("Stack"));
    pages_->setAccessibleName(entry.title);
    pages_->setDocumentMode(true);
    pages_->tabBar()->hide();
    // It would hand the focus to its hidden bar, and the Tab key would get no further.
    pages_->setFocusPolicy(Qt::NoFocus);
    for (const QString &id : entry.pages) {
        const int index = pageIndex(id);
        const PageEntry &page = pageCatalog()[index];
        indices_.append(index);
        chooser_->addItem(LookControls::icon(page.icon), page.title);
        chooser_->setItemData(chooser_->count() - 1, page.purpose, Qt::ToolTipRole);
        auto *area = new QScrollArea(pages_);
        area->setAccessibleName(page.title);
        area->setWidgetResizable(true);
        area->setFrameShape(QFrame::NoFrame);
        pages_->addTab(area, page.title);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->setSpacing(6);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(8, 0, 8, 0);
    row->addWidget(chooser_);
    layout->addLayout(row);
    layout->addWidget(pages_, 1);
    connect(chooser_, &QComboBox::currentIndexChanged, pages_, &QTabWidget::setCurrentIndex);
    connect(pages_, &QTabWidget::currentChanged, chooser_, &QComboBox::setCurrentIndex);
    connect(pages_, &QTabWidget::currentChanged, this, [this] {
        if (isVisible())
            createShown();
    });
}

int PageGroup::currentIndex() const
{
    return indices_.value(pages_->currentIndex(), -1);
}

GalleryPage *PageGroup::page(int catalogIndex) const
{
    const auto *area =
        qobject_cast<QScrollArea *>(pages_->widget(int(indices_.indexOf(catalogIndex))));
    return area ? qobject_cast<GalleryPage *>(area->widget()) : nullptr;
}

void PageGroup::showPage(int catalogIndex)
{
    if (!has(catalogIndex))
        return;
    pages_->setCurrentIndex(int(indices_.indexOf(catalogIndex)));
    createShown();
}

void PageGroup::createShown()
{
    auto *area = qobject_cast<QScrollArea *>(pages_->currentWidget());
    if (!area || area->widget())
        return;
    GalleryPage *page = pageCatalog()[currentIndex()].create();
    connect(page, &GalleryPage::logged, this, &PageGroup::logged);
    page->leaveWheelToScrolling();
    area->setWidget(page);
    // It comes later than what stands behind it.
    placeInTabOrder(page, area);
}

void PageGroup::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    createShown();
}
