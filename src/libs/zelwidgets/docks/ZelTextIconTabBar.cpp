#include "ZelTextIconTabBar.h"

#include "ZelMenu.h"
#include "docks/ZelDockMenu.h"
#include "docks/ZelDockWidgetFromTab.h"
#include "docks/ZelPaneFocus.h"
#include "docks/ZelTextIconTabWidget.h"

#include <QContextMenuEvent>
#include <QPointer>
#include <QStyleOptionTab>
#include <QStylePainter>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int leastTabWidth = 20;
constexpr int textMargin = 10;
constexpr int iconOnlyHeight = 26;
constexpr int topMargin = 2;
constexpr int sideMargin = 6;

/// What an entry of the context menu stands for, in its data; an entry of a window has a weak
/// pointer to the window there.
enum class Entry : int { Text = 1, Icon, Restore, Tab };
constexpr char pageProperty[] = "tabPage";

using Page = QPointer<QWidget>;

QIcon::Mode iconMode(const QStyleOptionTab &option)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return QIcon::Disabled;
    if (option.state.testFlag(QStyle::State_MouseOver))
        return QIcon::Active;
    return option.state.testFlag(QStyle::State_Selected) ? QIcon::Selected : QIcon::Normal;
}

QAction *addCheckable(QAction *action, bool checked, const QVariant &data)
{
    action->setCheckable(true);
    action->setChecked(checked);
    action->setData(data);
    return action;
}

} // namespace

class ZelTextIconTabBarPrivate
{
public:
    int style = ZelTextIconTabBar::TextStyle | ZelTextIconTabBar::IconStyle;
    QList<int> tabWidths;
};

ZelTextIconTabBar::ZelTextIconTabBar(QWidget *parent)
    : QTabBar(parent)
    , d_(std::make_unique<ZelTextIconTabBarPrivate>())
{
    setObjectName(QStringLiteral("ZelTextIconTabBar"));
    setExpanding(true);
    setElideMode(Qt::ElideNone);
    setUsesScrollButtons(false);
}

ZelTextIconTabBar::~ZelTextIconTabBar() = default;

int ZelTextIconTabBar::tabHeaderStyle() const
{
    return d_->style;
}

int ZelTextIconTabBar::minimumWidth() const
{
    return count() * leastTabWidth;
}

void ZelTextIconTabBar::setTabHeaderStyle(int style)
{
    style &= TextStyle | IconStyle;
    d_->style = style == 0 ? int(TextStyle) : style;
    if (count() == 0)
        return;
    resize(width(), tabSizeHint(0).height());
    updateGeometry();
    setTabWidgetWidth(width());
    update();
}

void ZelTextIconTabBar::setTabWidgetWidth(int width)
{
    if (count() == 0)
        return;
    d_->tabWidths.fill(std::max(0, (width - 2) / count()), count());
    QResizeEvent resize(size(), size());
    QCoreApplication::sendEvent(this, &resize);
}

QSize ZelTextIconTabBar::tabSizeHint(int index) const
{
    const int width = index < d_->tabWidths.size() ? d_->tabWidths[index] : leastTabWidth;
    int height = iconOnlyHeight;
    if (d_->style == TextStyle)
        height = fontMetrics().height() + textMargin;
    else if (d_->style != IconStyle)
        height = fontMetrics().height() + textMargin + iconSize().height();
    QStyleOptionTab option;
    option.initFrom(this);
    const QSize least = style()->sizeFromContents(QStyle::CT_TabBarTab, &option, QSize(0, 0), this);
    return {width, std::max(height, least.height())};
}

QSize ZelTextIconTabBar::minimumTabSizeHint(int index) const
{
    return {leastTabWidth, tabSizeHint(index).height()};
}

void ZelTextIconTabBar::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    for (int i = 0; i < count(); ++i) {
        if (i != currentIndex())
            paintTab(&painter, i);
    }
    // The selected one may reach over its neighbours.
    if (currentIndex() >= 0)
        paintTab(&painter, currentIndex());
}

void ZelTextIconTabBar::paintTab(QStylePainter *painter, int index)
{
    QStyleOptionTab option;
    initStyleOption(&option, index);
    if (!isTabVisible(index))
        return;
    painter->drawControl(QStyle::CE_TabBarTabShape, option);
    int top = option.rect.top() + topMargin;
    if ((d_->style & IconStyle) && !tabIcon(index).isNull()) {
        const QRect place(option.rect.left() + (option.rect.width() - iconSize().width()) / 2, top,
                          iconSize().width(), iconSize().height());
        tabIcon(index).paint(painter, place, Qt::AlignCenter, iconMode(option));
        top += iconSize().height() + topMargin;
    }
    if (!(d_->style & TextStyle))
        return;
    const QString text = fontMetrics().elidedText(
        tabText(index), Qt::ElideRight, option.rect.width() - sideMargin, Qt::TextShowMnemonic);
    const QRect place(option.rect.left(), top, option.rect.width(), option.rect.bottom() - top + 1);
    style()->drawItemText(painter, place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextShowMnemonic,
                          option.palette, option.state.testFlag(QStyle::State_Enabled), text,
                          QPalette::WindowText);
}

void ZelTextIconTabBar::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

ZelTextIconTabWidget *ZelTextIconTabBar::tabWidget() const
{
    return qobject_cast<ZelTextIconTabWidget *>(parentWidget());
}

void ZelTextIconTabBar::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const int under = byKey ? -1 : tabAt(event->pos());
    const int tab = under < 0 ? currentIndex() : under;
    QMenu *menu = createContextMenu(tab);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(byKey ? mapToGlobal(tabRect(tab).bottomLeft()) : event->globalPos());
    event->accept();
}

void ZelTextIconTabBar::keyPressEvent(QKeyEvent *event)
{
    if (!ZelPaneFocus::openMenuByKey(event))
        QTabBar::keyPressEvent(event);
}

void ZelTextIconTabBar::mouseReleaseEvent(QMouseEvent *event)
{
    QTabBar::mouseReleaseEvent(event);
    ZelTextIconTabWidget *tabs = tabWidget();
    if (tabs && ZelPaneFocus::isClickOnCurrent(this, event))
        ZelPaneFocus::enter(tabs->currentWidget());
}

QMenu *ZelTextIconTabBar::createContextMenu(int tab)
{
    auto *menu = new ZelMenu(this);
    addCheckable(menu->addAction(tr("Text")), d_->style & TextStyle, int(Entry::Text));
    addCheckable(menu->addAction(tr("Icon")), d_->style & IconStyle, int(Entry::Icon));
    if (ZelTextIconTabWidget *tabs = tabWidget()) {
        if (tabs->hasChildrenDialogs())
            menu->addAction(tr("Restore Tabs"))->setData(int(Entry::Restore));
        else if (tabs->hasReorderedDialogs())
            menu->addAction(tr("Restore Tab Order"))->setData(int(Entry::Restore));
        if (tabs->dockMode()) {
            addTabEntries(menu, tabs);
            if (QWidget *page = tabs->widget(tab < 0 ? currentIndex() : tab))
                ZelDockMenu::addTabEntries(menu, tabs, page);
        }
    }
    connect(menu, &QMenu::triggered, this, &ZelTextIconTabBar::handleContextMenuAction);
    return menu;
}

void ZelTextIconTabBar::addTabEntries(QMenu *menu, ZelTextIconTabWidget *tabs)
{
    auto *zelMenu = static_cast<ZelMenu *>(menu);
    menu->addSeparator();
    for (int i = 0; i < count(); ++i) {
        QAction *entry = zelMenu->addNotHideAction(tabText(i));
        addCheckable(entry, true, int(Entry::Tab));
        entry->setProperty(pageProperty, QVariant::fromValue(Page(tabs->widget(i))));
    }
    for (ZelDockWidgetFromTab *child : tabs->getChildren()) {
        const QString prefix = tabs->dockHeaderPrefix();
        const QString title = child->windowTitle();
        QAction *entry =
            zelMenu->addNotHideAction(title.startsWith(prefix) ? title.mid(prefix.size()) : title);
        addCheckable(entry, false, QVariant::fromValue(Page(child)));
        entry->setProperty(pageProperty, QVariant::fromValue(Page(child->page())));
    }
}

void ZelTextIconTabBar::handleContextMenuAction(QAction *action)
{
    ZelTextIconTabWidget *tabs = tabWidget();
    const auto page = action->property(pageProperty).value<Page>();
    if (tabs && page) {
        // The menu stays open: what was a tab may be a window by now, and the other way round.
        const int tab = tabs->indexOf(page);
        if (!action->isChecked() && tab >= 0) {
            if (!ZelDocking::isEnabled() || !tabs->changeTab2Window(tab))
                action->setChecked(true);
        } else if (action->isChecked() && tab < 0) {
            for (ZelDockWidgetFromTab *child : tabs->getChildren()) {
                if (child->page() == page)
                    child->forceRestoreInView();
            }
        }
        return;
    }
    const int entry = action->data().toInt();
    if (entry == int(Entry::Text))
        chooseStyle(TextStyle, action->isChecked());
    else if (entry == int(Entry::Icon))
        chooseStyle(IconStyle, action->isChecked());
    else if (entry == int(Entry::Restore) && tabs)
        tabs->restoreDocked2Tabs();
}

void ZelTextIconTabBar::chooseStyle(int bit, bool on)
{
    setTabHeaderStyle(on ? d_->style | bit : d_->style & ~bit);
    Q_EMIT tabHeaderStyleUpdated(d_->style);
}
