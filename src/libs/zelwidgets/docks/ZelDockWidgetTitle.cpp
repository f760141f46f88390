#include "ZelDockWidgetTitle.h"

#include "ZelToolButton.h"
#include "docks/ZelDockAccessible.h"
#include "docks/ZelDocking.h"
#include "theme/ZelStyleIcon.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int smallGap = 5;
constexpr int wideGap = 8;
constexpr int iconSide = 12;
constexpr int leastWidth = 100;
constexpr int leastHeight = 20;

ZelToolButton *makeButton(ZelDockWidgetTitle *title, const QString &icon, const QString &tip)
{
    auto *button = new ZelToolButton(ZelToolButton::Flat, title);
    button->setAutoRaise(true);
    button->setIconSize(QSize(iconSide, iconSide));
    button->setIcon(ZelStyleIcon(icon));
    button->setToolTip(tip);
    return button;
}

} // namespace

class ZelDockWidgetTitlePrivate
{
public:
    explicit ZelDockWidgetTitlePrivate(ZelDockWidgetTitle *title, bool showDockButton)
        : close(
              makeButton(title, QStringLiteral(":ui/icons/close"), ZelDockWidgetTitle::tr("Close")))
        , floating(makeButton(title, QStringLiteral(":ui/icons/window_undock"),
                              ZelDockWidgetTitle::tr("Float")))
        , dock(makeButton(title, QStringLiteral(":ui/icons/window_dock"),
                          ZelDockWidgetTitle::tr("Dock")))
        , showDockButton(showDockButton)
    {
        dock->hide();
    }

    ZelToolButton *close;
    ZelToolButton *floating;
    ZelToolButton *dock;
    QString groupName;
    QString headerTitle;
    QDockWidget::DockWidgetFeatures features = QDockWidget::DockWidgetClosable |
                                               QDockWidget::DockWidgetMovable |
                                               QDockWidget::DockWidgetFloatable;
    bool showDockButton;
    bool isFloating = false;
    int leftOfButtons = 0;
};

ZelDockWidgetTitle::ZelDockWidgetTitle(bool showDockButton, QWidget *parent)
    : QWidget(parent)
    , d_(std::make_unique<ZelDockWidgetTitlePrivate>(this, showDockButton))
{
    ZelDockAccessible::installFactory();
    setObjectName(QStringLiteral("ZelDockWidgetTitle"));
    connect(d_->close, &QToolButton::clicked, this, &ZelDockWidgetTitle::closeClicked);
    connect(d_->floating, &QToolButton::clicked, this, &ZelDockWidgetTitle::toggleFloating);
    connect(d_->dock, &QToolButton::clicked, this, &ZelDockWidgetTitle::toggleFloating);
    showButtons();
}

ZelDockWidgetTitle::~ZelDockWidgetTitle() = default;

QString ZelDockWidgetTitle::groupName() const
{
    return d_->groupName;
}

QString ZelDockWidgetTitle::headerTitle() const
{
    return d_->headerTitle;
}

void ZelDockWidgetTitle::setGroupName(const QString &name)
{
    d_->groupName = name;
    update();
}

void ZelDockWidgetTitle::setHeaderTitle(const QString &title)
{
    d_->headerTitle = title;
    update();
}

QWidget *ZelDockWidgetTitle::lastTabStop() const
{
    return d_->dock;
}

QSize ZelDockWidgetTitle::sizeHint() const
{
    return {leastWidth, std::max(leastHeight, fontMetrics().height() * 105 / 100)};
}

QSize ZelDockWidgetTitle::minimumSizeHint() const
{
    int width = wideGap + smallGap;
    for (const ZelToolButton *button : {d_->dock, d_->floating, d_->close}) {
        if (!button->isHidden())
            width += iconSide + wideGap;
    }
    return {width, sizeHint().height()};
}

void ZelDockWidgetTitle::setFeatures(QDockWidget::DockWidgetFeatures features)
{
    d_->features = features;
    updateGeometry();
    showButtons();
}

void ZelDockWidgetTitle::floatingChanged(bool floating)
{
    d_->isFloating = floating;
    updateGeometry();
    showButtons();
}

void ZelDockWidgetTitle::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
        showButtons();
    }
}

void ZelDockWidgetTitle::mouseDoubleClickEvent(QMouseEvent *event)
{
    // The dock itself is not to toggle as well.
    event->accept();
    if (event->button() == Qt::LeftButton &&
        d_->features.testFlag(QDockWidget::DockWidgetFloatable))
        Q_EMIT toggleFloating();
}

void ZelDockWidgetTitle::mousePressEvent(QMouseEvent *event)
{
    // An ignored press goes on to the dock, which begins its drag with it.
    event->setAccepted(!ZelDocking::isEnabled());
    ZelDocking::suspendGroupedDragging(ZelDocking::mainWindowOf(this));
    if (rect().contains(event->position().toPoint()))
        Q_EMIT titleBarPressed();
}

void ZelDockWidgetTitle::mouseReleaseEvent(QMouseEvent *event)
{
    event->ignore();
    if (rect().contains(event->position().toPoint()))
        Q_EMIT titleBarReleased();
}

void ZelDockWidgetTitle::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setPen(palette().color(QPalette::WindowText));

    const QFontMetrics plain = fontMetrics();
    const int roomForGroup = std::max(0, d_->leftOfButtons - 2 * smallGap);
    const QString group = plain.elidedText(d_->groupName, Qt::ElideRight, roomForGroup);
    painter.drawText(QRect(smallGap, 0, roomForGroup, height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, group);

    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    painter.setFont(bold);
    const int left =
        group.isEmpty() ? smallGap : smallGap + plain.horizontalAdvance(group) + wideGap;
    const int room = std::max(0, d_->leftOfButtons - smallGap - left);
    const QString title = QFontMetrics(bold).elidedText(shownTitle(), Qt::ElideRight, room);
    const int titleWidth = QFontMetrics(bold).horizontalAdvance(title);
    // In the middle of the whole bar as long as group name and buttons leave it free.
    const int middle =
        std::clamp((width() - titleWidth) / 2, left, std::max(left, left + room - titleWidth));
    painter.drawText(QRect(middle, 0, titleWidth + 1, height()),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title);
}

void ZelDockWidgetTitle::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    showButtons();
}

void ZelDockWidgetTitle::showButtons()
{
    d_->dock->setVisible(d_->showDockButton && d_->isFloating &&
                         d_->features.testFlag(QDockWidget::DockWidgetFloatable));
    d_->floating->setVisible(d_->features.testFlag(QDockWidget::DockWidgetFloatable));
    d_->close->setVisible(d_->features.testFlag(QDockWidget::DockWidgetClosable));

    int right = width() - smallGap;
    for (ZelToolButton *button : {d_->dock, d_->floating, d_->close}) {
        if (button->isHidden())
            continue;
        const int side = std::min(button->sizeHint().width(), std::max(iconSide, height()));
        button->setGeometry(right - side, (height() - side) / 2, side, side);
        right -= side + (button == d_->floating ? wideGap : smallGap);
    }
    d_->leftOfButtons = right;
    update();
}

QString ZelDockWidgetTitle::shownTitle() const
{
    QString title = d_->headerTitle;
    if (title.isEmpty() && parentWidget())
        title = parentWidget()->windowTitle();
    return title.replace(QLatin1String("&&"), QLatin1String("&"));
}
