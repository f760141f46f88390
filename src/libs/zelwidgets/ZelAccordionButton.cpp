#include "ZelAccordionButton.h"

#include "ZelAccessible.h"
#include "ZelStoredValue.h"

#include <QAccessible>
#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>

namespace {

constexpr int iconSide = 8;
constexpr int textInset = 10;
constexpr int iconInsetOpen = 11;
constexpr int iconInsetClosed = 12;
constexpr int heightMargin = 6;

void addArrow(ZelCombinedIcon &icon, const QString &file, QIcon::State state)
{
    const ZelStyleIcon arrow(file);
    icon.addIconForMode(arrow.hover(), QIcon::Active, state);
    icon.addIconForMode(arrow.inactive(), QIcon::Normal, state);
    icon.addIconForMode(arrow.disabled(), QIcon::Disabled, state);
}

} // namespace

ZelAccordionButton::ZelAccordionButton(const QString &text, const QString &settingsKey, bool open)
    : QPushButton(text)
    , settingsKey_(settingsKey)
{
    ZelAccessible::installFactory();
    setObjectName(QStringLiteral("ZelAccordionButton"));
    setCheckable(true);
    setChecked(storedValue(ZelSettings(), settingsKey_, open));
    setAutoDefault(false);
    setDefault(false);
    initIcon();
    connect(this, &QAbstractButton::clicked, this, &ZelAccordionButton::setOpen);
    connect(this, &QAbstractButton::toggled, this, &ZelAccordionButton::announceState);
}

void ZelAccordionButton::initIcon()
{
    icon_ = ZelCombinedIcon();
    const QString closedArrow = isRightToLeft()
                                    ? QStringLiteral(":/ui/widgetIcons/arrow_left.zelsvg")
                                    : QStringLiteral(":/ui/widgetIcons/arrow_right.zelsvg");
    addArrow(icon_, closedArrow, QIcon::Off);
    addArrow(icon_, QStringLiteral(":/ui/widgetIcons/arrow_down.zelsvg"), QIcon::On);
}

void ZelAccordionButton::addCustomCheckBox()
{
    if (customCheckBox_)
        return;
    customCheckBox_ = new QCheckBox(text(), this);
    customCheckBox_->setObjectName(objectName());
    setAccessibleName(text());
    setText(QString());
    connect(customCheckBox_, &QAbstractButton::clicked, this,
            &ZelAccordionButton::customCheckBoxClicked);
    QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
}

void ZelAccordionButton::customCheckBoxClicked(bool checked)
{
    Q_EMIT customChecked(checked);
    if (checked && !isChecked()) {
        setChecked(true);
        setOpen(true);
    }
}

QCheckBox *ZelAccordionButton::customCheckBox() const
{
    return customCheckBox_;
}

bool ZelAccordionButton::isCustomChecked() const
{
    return customCheckBox_ && customCheckBox_->isChecked();
}

void ZelAccordionButton::setCustomChecked(bool checked)
{
    if (customCheckBox_)
        customCheckBox_->setChecked(checked);
}

void ZelAccordionButton::setEnableCustomCheckBox(bool enabled)
{
    if (customCheckBox_)
        customCheckBox_->setEnabled(enabled);
}

bool ZelAccordionButton::isOpen() const
{
    return isChecked();
}

void ZelAccordionButton::setOpen(bool open)
{
    // The arrow follows whoever opens the section.
    setChecked(open);
    Q_EMIT widgetVisible(open);
    if (!settingsKey_.isEmpty())
        ZelSettings().setValue(settingsKey_, open);
}

void ZelAccordionButton::announceState()
{
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

QString ZelAccordionButton::shownText() const
{
    return text().isEmpty() && customCheckBox_ ? customCheckBox_->text() : text();
}

QSize ZelAccordionButton::sizeHint() const
{
    return {-1, fontMetrics().boundingRect(shownText()).height() + heightMargin};
}

void ZelAccordionButton::placeCustomCheckBox()
{
    customCheckBox_->adjustSize();
    const int x = isRightToLeft() ? width() - customCheckBox_->width() : 0;
    customCheckBox_->move(x, (height() - customCheckBox_->height()) / 2);
}

bool ZelAccordionButton::event(QEvent *event)
{
    switch (event->type()) {
    case QEvent::StyleChange:
    case QEvent::FontChange:
        if (customCheckBox_)
            QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
        break;
    case QEvent::LayoutRequest:
    case QEvent::Resize:
        if (customCheckBox_)
            placeCustomCheckBox();
        break;
    case QEvent::Polish:
        // What comes before the first show.
        if (firstShow_ && !isVisible()) {
            firstShow_ = false;
            Q_EMIT widgetVisible(isChecked());
        }
        break;
    default:
        break;
    }
    return QPushButton::event(event);
}

void ZelAccordionButton::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

void ZelAccordionButton::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        initIcon();
    QPushButton::changeEvent(event);
}

void ZelAccordionButton::setVisible(bool visible)
{
    QPushButton::setVisible(visible);
    if (!visible || !customCheckBox_)
        return;
    const int y = (height() - customCheckBox_->height()) / 2;
    if (customCheckBox_->y() != y)
        customCheckBox_->move(customCheckBox_->x(), y + 1);
}

void ZelAccordionButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    const bool hovered = option.state & QStyle::State_MouseOver;
    const QIcon::Mode mode =
        !isEnabled() ? QIcon::Disabled : (hovered ? QIcon::Active : QIcon::Normal);
    const QPixmap arrow = icon_.pixmap(QSize(iconSide, iconSide), devicePixelRatioF(), mode,
                                       isChecked() ? QIcon::On : QIcon::Off);
    const QRect iconArea =
        option.rect.adjusted(0, 0, isChecked() ? -iconInsetOpen : -iconInsetClosed, 0);
    style()->drawItemPixmap(
        &painter, QStyle::visualRect(layoutDirection(), option.rect, iconArea),
        QStyle::visualAlignment(layoutDirection(), Qt::AlignRight) | Qt::AlignVCenter, arrow);

    const QRect textArea = option.rect.adjusted(textInset, 0, 0, 0);
    style()->drawItemText(&painter, QStyle::visualRect(layoutDirection(), option.rect, textArea),
                          QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) |
                              Qt::AlignVCenter | Qt::TextShowMnemonic,
                          option.palette, isEnabled(), text(), QPalette::ButtonText);
}
