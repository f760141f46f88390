#include "ZelToolButton.h"

#include "ZelAccessible.h"
#include "ZelFocusFrame.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QResizeEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QToolBar>
#include <QWidgetAction>

#include <algorithm>

namespace {

constexpr char menuArrowProperty[] = "hasMenuArrow";
// Room around the text that is kept at the lower edge.
constexpr int bottomTextSpace = 10;
constexpr int toolBarGrowth = 2;
constexpr int mostPercent = 1000;

QIcon::Mode iconMode(const QStyleOptionToolButton &option)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return QIcon::Disabled;
    const QStyle::State hot = QStyle::State_MouseOver | QStyle::State_AutoRaise;
    return (option.state & hot) == hot ? QIcon::Active : QIcon::Normal;
}

QIcon::State iconState(const QStyleOptionToolButton &option)
{
    return option.state.testFlag(QStyle::State_On) ? QIcon::On : QIcon::Off;
}

QPixmap centredInCell(const QPixmap &pixmap, QSize cell)
{
    QPixmap full(cell);
    full.fill(Qt::transparent);
    QPainter painter(&full);
    QRect place(QPoint(), pixmap.size());
    place.moveCenter(full.rect().center());
    painter.drawPixmap(place.topLeft(), pixmap);
    return full;
}

ZelToolButton *withSecondaryLook(ZelToolButton *button)
{
    button->setProperty("rank", QStringLiteral("Secondary"));
    button->setProperty("dimension", QStringLiteral("Medium"));
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

class ZelToolButtonPrivate
{
public:
    explicit ZelToolButtonPrivate(const QCursor &cursor)
        : normalCursor(cursor)
    {}

    QVariant userData;
    QCursor normalCursor;
    int iconScalePercentage = 100;
    bool iconOnly = false;
    bool imageSquared = true;
    bool textWidthIgnore = false;
    bool expandIfIconOnly = false;
    bool iconCanScale = false;
    bool paintMenuArrow = true;
    bool forceTextAtBottom = false;
    bool useHandCursorOnMouseOver = false;
};

ZelToolButton::ZelToolButton(BorderStyle style, QWidget *parent)
    : QToolButton(parent)
    , d_(std::make_unique<ZelToolButtonPrivate>(cursor()))
{
    ZelAccessible::installFactory();
    setObjectName(style == Border ? QStringLiteral("BorderButton") : QStringLiteral("FlatButton"));
    setAutoRaise(true);
}

ZelToolButton::ZelToolButton(QAction *action, QWidget *parent)
    : ZelToolButton(Flat, parent)
{
    if (!action)
        return;
    setDefaultAction(action);
    connect(action, &QAction::changed, this, &ZelToolButton::slotActionChanged);
}

ZelToolButton::~ZelToolButton() = default;

ZelToolButton *ZelToolButton::createZelNextToolButton(BorderStyle style, QWidget *parent)
{
    return withSecondaryLook(new ZelToolButton(style, parent));
}

ZelToolButton *ZelToolButton::createZelNextToolButton(QAction *action, QWidget *parent)
{
    return withSecondaryLook(new ZelToolButton(action, parent));
}

bool ZelToolButton::hasSvgIcon() const
{
    const QIcon shown = icon();
    return !shown.isNull() && shown.availableSizes(QIcon::Normal, QIcon::Off).isEmpty();
}

bool ZelToolButton::iconCanScale() const
{
    return d_->iconCanScale;
}

bool ZelToolButton::imageSquared(bool) const
{
    return d_->imageSquared;
}

QVariant ZelToolButton::userData() const
{
    return d_->userData;
}

void ZelToolButton::addToObjectName(const QString &suffix)
{
    if (suffix.isEmpty())
        return;
    setObjectName(objectName() + suffix);
    repolish();
}

void ZelToolButton::setObjectName(const QString &name)
{
    QToolButton::setObjectName(name);
}

void ZelToolButton::setDefaultAction(QAction *action)
{
    QToolButton::setDefaultAction(action);
    if (action)
        setIcon(action->icon());
}

void ZelToolButton::setUserData(const QVariant &data)
{
    d_->userData = data;
}

void ZelToolButton::setIconOnlyMode(bool iconOnly)
{
    if (d_->iconOnly == iconOnly)
        return;
    d_->iconOnly = iconOnly;
    QResizeEvent resize(size(), size());
    resizeEvent(&resize);
    updateGeometry();
    update();
}

void ZelToolButton::setImageSquared(bool squared)
{
    if (d_->imageSquared == squared)
        return;
    d_->imageSquared = squared;
    update();
}

void ZelToolButton::setTextWidthIgnore(bool ignore)
{
    if (d_->textWidthIgnore == ignore)
        return;
    d_->textWidthIgnore = ignore;
    updateGeometry();
    update();
}

void ZelToolButton::setExpandIfIconOnly(bool expand)
{
    if (d_->expandIfIconOnly == expand)
        return;
    d_->expandIfIconOnly = expand;
    update();
}

void ZelToolButton::setIconCanScale(bool canScale)
{
    if (d_->iconCanScale == canScale)
        return;
    d_->iconCanScale = canScale;
    update();
}

void ZelToolButton::setIconScalePercentage(int percentage)
{
    percentage = std::clamp(percentage, 0, mostPercent);
    if (d_->iconScalePercentage == percentage)
        return;
    d_->iconScalePercentage = percentage;
    updateGeometry();
    update();
}

void ZelToolButton::setPaintMenuArrow(bool paint)
{
    d_->paintMenuArrow = paint;
    if (property(menuArrowProperty) == QVariant(paint))
        return;
    setProperty(menuArrowProperty, paint);
    repolish();
    update();
}

void ZelToolButton::setForceTextAtBottom(bool force)
{
    if (d_->forceTextAtBottom == force)
        return;
    d_->forceTextAtBottom = force;
    update();
}

void ZelToolButton::setUseHandCursorOnMouseOver(bool use)
{
    if (d_->useHandCursorOnMouseOver == use)
        return;
    d_->useHandCursorOnMouseOver = use;
    if (!use)
        setCursor(d_->normalCursor);
}

void ZelToolButton::setVisible(bool visible)
{
    if (visible && d_->paintMenuArrow && menu() && !property(menuArrowProperty).toBool()) {
        setProperty(menuArrowProperty, true);
        repolish();
    }
    QToolButton::setVisible(visible);
}

void ZelToolButton::repolish()
{
    // Before the first polish the sheet hasn't looked at the button.
    if (!testAttribute(Qt::WA_WState_Polished))
        return;
    style()->unpolish(this);
    style()->polish(this);
    // Qt keeps the size hint until this event.
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(this, &change);
}

void ZelToolButton::slotActionChanged()
{
    const auto *action = qobject_cast<QAction *>(sender());
    if (!action)
        return;
    setIcon(action->icon());
    if (const auto *bar = qobject_cast<QToolBar *>(parentWidget())) {
        const auto entries =
            bar->findChildren<QWidgetAction *>(QString(), Qt::FindDirectChildrenOnly);
        const auto entry = std::find_if(entries.begin(), entries.end(), [this](QWidgetAction *a) {
            return a->defaultWidget() == this;
        });
        if (entry != entries.end())
            (*entry)->setVisible(action->isVisible());
        return;
    }
    // A button that has no place yet must not come up as a window of its own.
    if (isWindow() && !testAttribute(Qt::WA_WState_ExplicitShowHide) && action->isVisible())
        return;
    setVisible(action->isVisible());
}

QSize ZelToolButton::initStyleOptionInternal(QStyleOptionToolButton *option) const
{
    initStyleOption(option);
    const QSize fullSize = option->iconSize;
    const double scale = d_->iconScalePercentage / 100.0;
    option->iconSize = QSize(qRound(fullSize.width() * scale), qRound(fullSize.height() * scale));
    if (!d_->paintMenuArrow)
        option->features = QStyleOptionToolButton::None;
    return fullSize;
}

bool ZelToolButton::isSqueezed(const QStyleOptionToolButton &option) const
{
    return d_->iconScalePercentage != 100 && option.toolButtonStyle == Qt::ToolButtonTextUnderIcon;
}

bool ZelToolButton::event(QEvent *event)
{
    if (d_->useHandCursorOnMouseOver) {
        if (event->type() == QEvent::Enter)
            setCursor(Qt::PointingHandCursor);
        else if (event->type() == QEvent::Leave)
            setCursor(d_->normalCursor);
    }
    return QToolButton::event(event);
}

void ZelToolButton::keyPressEvent(QKeyEvent *event)
{
    const bool opensMenu = event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier;
    if (opensMenu && menu())
        showMenu();
    else
        QToolButton::keyPressEvent(event);
}

void ZelToolButton::paintEvent(QPaintEvent *)
{
    QStyleOptionToolButton option;
    QSize cell = initStyleOptionInternal(&option);
    if (d_->textWidthIgnore)
        option.text = option.fontMetrics.elidedText(option.text, Qt::ElideRight, cell.width());
    if (d_->iconOnly) {
        paintIconOnly(option);
        if (option.state.testFlag(QStyle::State_HasFocus))
            ZelFocusFrame::paint(this);
        return;
    }
    const bool atBottom =
        d_->forceTextAtBottom && option.toolButtonStyle == Qt::ToolButtonTextUnderIcon;
    const bool isPlain =
        (d_->iconCanScale || hasSvgIcon()) && !isSqueezed(option) && !d_->forceTextAtBottom;
    if (!isPlain && !option.icon.isNull()) {
        if (atBottom)
            cell.setHeight(std::max(1, height() - option.fontMetrics.height() - bottomTextSpace));
        option.icon = drawnIcon(option, atBottom || isSqueezed(option) ? cell : QSize());
        const QList<QSize> sizes = option.icon.availableSizes(iconMode(option), iconState(option));
        if (!sizes.isEmpty())
            option.iconSize = sizes.first() / devicePixelRatioF();
    }
    QStylePainter(this).drawComplexControl(QStyle::CC_ToolButton, option);
}

QIcon ZelToolButton::drawnIcon(const QStyleOptionToolButton &option, QSize cell) const
{
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap = hasSvgIcon() ? option.icon.pixmap(option.iconSize * ratio, 1.0,
                                                       iconMode(option), iconState(option))
                                  : lookupPixmap(option, option.iconSize);
    pixmap.setDevicePixelRatio(1.0);
    if (!cell.isEmpty())
        pixmap = centredInCell(pixmap, cell * ratio);
    pixmap.setDevicePixelRatio(ratio);
    // Entered as what the style will ask for, so that it greys nothing a second time.
    QIcon icon;
    icon.addPixmap(pixmap, iconMode(option), iconState(option));
    return icon;
}

void ZelToolButton::paintIconOnly(const QStyleOptionToolButton &option)
{
    QSize size = d_->expandIfIconOnly ? this->size() : option.iconSize;
    if (d_->imageSquared) {
        const int side = std::min(size.width(), size.height());
        size = QSize(side, side);
    }
    const QPixmap pixmap = lookupPixmap(option, size);
    if (pixmap.isNull())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, rect()), pixmap);
}

QPixmap ZelToolButton::lookupPixmap(const QStyleOptionToolButton &option, QSize size) const
{
    const qreal ratio = devicePixelRatioF();
    QPixmap pixmap = option.icon.pixmap(findBestIconMatchSize(size * ratio), 1.0, iconMode(option),
                                        iconState(option));
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

QSize ZelToolButton::findBestIconMatchSize(QSize wanted) const
{
    QSize found = wanted;
    int best = 10000;
    for (const QSize &size : icon().availableSizes(QIcon::Normal, QIcon::Off)) {
        const QSize rest = wanted - size;
        if (rest.width() < 0 || rest.height() < 0 || rest.width() + rest.height() >= best)
            continue;
        best = rest.width() + rest.height();
        found = size;
    }
    return found;
}

QSize ZelToolButton::sizeHint() const
{
    QStyleOptionToolButton option;
    const QSize fullSize = initStyleOptionInternal(&option);
    if (d_->iconOnly && !d_->textWidthIgnore)
        return option.iconSize;
    if (!d_->textWidthIgnore)
        return correctedSizeHint(option, fullSize);
    QSize hint = QToolButton::sizeHint();
    hint.setWidth(fullSize.width());
    hint.setWidth(style()->sizeFromContents(QStyle::CT_ToolButton, &option, hint, this).width());
    return hint;
}

QSize ZelToolButton::correctedSizeHint(const QStyleOptionToolButton &option, QSize fullSize) const
{
    QSize hint = QToolButton::sizeHint();
    const QSize change = option.iconSize - fullSize;
    const bool isUnder = option.toolButtonStyle == Qt::ToolButtonTextUnderIcon;
    const bool isBeside = option.toolButtonStyle == Qt::ToolButtonTextBesideIcon;
    const bool squeezed = isSqueezed(option);
    if (isUnder || squeezed)
        hint.rheight() -= change.height();
    if (isBeside || squeezed)
        hint.rwidth() -= change.width();
    if (isBeside && !squeezed) {
        const int text = option.fontMetrics.size(Qt::TextShowMnemonic, option.text).height() + 2;
        hint.setHeight(std::max(text, hint.height() - change.height()));
    }
    if (option.toolButtonStyle == Qt::ToolButtonIconOnly &&
        qobject_cast<QToolBar *>(parentWidget()))
        hint += QSize(toolBarGrowth, toolBarGrowth);
    if (menu() && !squeezed)
        hint.rwidth() += option.fontMetrics.horizontalAdvance(QStringLiteral("Wx"));
    return hint;
}

QSize ZelToolButton::minimumSizeHint() const
{
    return sizeHint();
}
