#include "ZelToolBar.h"

#include <QAbstractButton>
#include <QActionEvent>
#include <QCoreApplication>
#include <QDebug>
#include <QStyle>
#include <QToolButton>

#include <array>
#include <cstdlib>

namespace {

constexpr std::array<int, 3> iconExtents{16, 24, 32};

int iconExtent(ZelToolBar::IconSizeMode mode)
{
    return iconExtents[size_t(mode - ZelToolBar::SmallIcons)];
}

void polishAnew(QWidget *widget)
{
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->updateGeometry();
    widget->update();
}

} // namespace

ZelToolBar::ZelToolBar(ToolBarBorderMode borderMode, QWidget *parent)
    : QToolBar(parent)
{
    if (borderMode == NoBorder)
        setStyleSheet(QStringLiteral("QToolBar { border: 0px; }"));
    // What does not fit stands behind this button of the base class.
    if (auto *more = findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"))) {
        more->setAccessibleName(tr("More tools"));
        more->setFocusPolicy(Qt::TabFocus);
    }
}

QAction *ZelToolBar::addSpacer()
{
    auto *spacer = new QWidget(this);
    spacer->setObjectName(QStringLiteral("ToolBarSpacer"));
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return addWidget(spacer);
}

ZelToolBar::IconSizeMode ZelToolBar::currentIconSizeMode() const
{
    return iconSizeMode_;
}

bool ZelToolBar::isKnownMode(IconSizeMode mode)
{
    return mode >= SmallIcons && mode <= LargeIcons;
}

void ZelToolBar::setIconSizeMode(IconSizeMode mode)
{
    if (!isKnownMode(mode)) {
        qWarning() << "Unknown icon size mode" << int(mode) << "for tool bar" << objectName();
        return;
    }
    iconSizeMode_ = mode;
    const QSize size(iconExtent(mode), iconExtent(mode));
    const bool wereOff = testAttribute(Qt::WA_ForceUpdatesDisabled);
    setUpdatesEnabled(false);
    setIconSize(size);
    for (QAbstractButton *button : findChildren<QAbstractButton *>())
        button->setIconSize(size);
    if (!wereOff)
        setUpdatesEnabled(true);
}

void ZelToolBar::setBestIconSizeModeFromSize(const QSize &size)
{
    setIconSizeMode(getBestIconSizeModeFromSize(size));
}

ZelToolBar::IconSizeMode ZelToolBar::getBestIconSizeModeFromSize(const QSize &size)
{
    IconSizeMode best = SmallIcons;
    const auto distance = [height = qint64(size.height())](IconSizeMode mode) {
        return std::abs(height - iconExtent(mode));
    };
    for (const IconSizeMode mode : {MediumIcons, LargeIcons}) {
        if (distance(mode) < distance(best))
            best = mode;
    }
    return best;
}

void ZelToolBar::setToolBarStyleName(const QString &name)
{
    constexpr const char *styleNameProperty = "toolBarStyleName";
    if (property(styleNameProperty).toString() == name)
        return;
    setProperty(styleNameProperty, name);
    polishAnew(this);
    // The layout of a tool bar asks for its margins on this event alone.
    QEvent styleChange(QEvent::StyleChange);
    QCoreApplication::sendEvent(this, &styleChange);
    for (QWidget *widget : findChildren<QWidget *>())
        polishAnew(widget);
}

void ZelToolBar::actionEvent(QActionEvent *event)
{
    QToolBar::actionEvent(event);
    if (event->type() != QEvent::ActionAdded)
        return;
    // Qt keeps the buttons of a tool bar away from the keyboard.
    auto *button = qobject_cast<QToolButton *>(widgetForAction(event->action()));
    if (button && button->focusPolicy() == Qt::NoFocus)
        button->setFocusPolicy(Qt::TabFocus);
}
