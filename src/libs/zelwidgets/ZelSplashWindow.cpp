#include "ZelSplashWindow.h"

#include "ZelSplashAccessible.h"
#include "ZelSplashPainting.h"
#include "ZelWindowPlacement.h"
#include "theme/ZelStyleIcon.h"

#include <QApplication>
#include <QDate>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <cstdlib>
#include <ctime>

namespace {

constexpr Qt::WindowFlags windowKind = Qt::SplashScreen | Qt::FramelessWindowHint;
constexpr qreal ratioWithoutParent = 2.0;
constexpr QColor barColor(0, 102, 255, 255);

QString defaultLegalLine()
{
    const QString organization = QCoreApplication::organizationName();
    const QString owner =
        organization.isEmpty() ? QGuiApplication::applicationDisplayName() : organization;
    return QStringLiteral("\u00a9 %1 ") + owner;
}

} // namespace

ZelSplashWindow::ZelSplashWindow(const SplashType &type, const QPoint &where, QWidget *parent,
                                 bool showLabel, const QPixmap &picture, const QPoint &barPosition)
    : QWidget(parent, windowKind)
    , status_(tr("Initializing..."))
    , barPosition_(barPosition.isNull() ? ZelSplashPainting::defaultBarPosition : barPosition)
{
    ZelSplashAccessible::installFactory();
    setAttribute(Qt::WA_TranslucentBackground);
    QScreen *screen = screenFor(where, parent);
    connect(qApp, &QApplication::focusChanged, this, &ZelSplashWindow::onFocusChanged);
    setLegalLine(defaultLegalLine());
    setAccessibleName(status_);

    picture_ = createPicture(type, picture);
    if (showLabel) {
        const ZelStyleIcon icon(QStringLiteral(":/res/splash/beta_splash_label.svg"));
        label_ = icon.pixmap(ZelSplashPainting::labelSize,
                             parent ? parent->devicePixelRatio() : ratioWithoutParent);
    }
    resize(sizeHint());
    if (screen)
        setScreen(screen);
    centerWidgetOnScreen(this, screen);
    setWindowModality(Qt::ApplicationModal);
    show();
    shownTime_.start();
}

ZelSplashWindow::~ZelSplashWindow() = default;

QScreen *ZelSplashWindow::screenFor(const QPoint &where, const QWidget *parent)
{
    QScreen *screen = QGuiApplication::primaryScreen();
    if (where.isNull())
        return screen;
    QScreen *found = QGuiApplication::screenAt(where);
    if (!found && parent)
        found = QGuiApplication::screenAt(parent->window()->geometry().center());
    return found ? found : screen;
}

QPixmap ZelSplashWindow::createPicture(SplashType type, const QPixmap &picture) const
{
    QPixmap result;
    if (type == BuiltIn || type == BuiltInAlternative) {
        // Applications rely on it that rand() differs from run to run after their start.
        std::srand(static_cast<unsigned>(std::time(nullptr)));
        const QIcon icon(QStringLiteral(":/res/splash/splashscreen%1.png").arg(0));
        result = icon.pixmap(ZelSplashPainting::defaultSize);
    } else if (type == OwnPicture) {
        result = picture;
    }
    if (result.isNull()) {
        result = QPixmap(ZelSplashPainting::defaultSize);
        result.fill(palette().color(QPalette::Window));
    }
    return result;
}

QString ZelSplashWindow::legalLine() const
{
    return legalLine_;
}

QString ZelSplashWindow::status() const
{
    return status_;
}

float ZelSplashWindow::progress() const
{
    return progress_;
}

QSize ZelSplashWindow::sizeHint() const
{
    return picture_.deviceIndependentSize().toSize();
}

void ZelSplashWindow::setLegalLine(const QString &line)
{
    legalLine_ = ZelSplashPainting::legalLine(line, QDate::currentDate().year());
    update();
}

void ZelSplashWindow::setStatus(const QString &status)
{
    ensurePolished();
    status_ = fontMetrics().elidedText(status, Qt::ElideRight, ZelSplashPainting::statusWidth);
    setAccessibleName(status);
    update();
}

void ZelSplashWindow::setProgress(float progress)
{
    progress_ = ZelSplashPainting::clampedProgress(progress);
    ZelSplashAccessible::announceProgress(this);
    update();
}

void ZelSplashWindow::close_window()
{
    const int remaining = ZelSplashPainting::remainingTime(shownTime_.elapsed());
    if (remaining > 0) {
        QTimer::singleShot(remaining, this, &ZelSplashWindow::closeAgain);
        return;
    }
    close();
    deleteLater();
}

void ZelSplashWindow::closeAgain()
{
    close_window();
}

void ZelSplashWindow::onFocusChanged(QWidget *, QWidget *now)
{
    // A modal dialog would be locked by the window above it.
    if (now && isVisible() && now->window()->isModal())
        close_window();
}

void ZelSplashWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture_);
    if (!label_.isNull())
        painter.drawPixmap(ZelSplashPainting::labelPosition, label_);
    painter.translate(barPosition_);
    paintBar(&painter);
    paintTexts(&painter);
}

void ZelSplashWindow::paintBar(QPainter *painter) const
{
    using namespace ZelSplashPainting;
    painter->setPen(Qt::NoPen);
    painter->setBrush(barColor);
    const QRectF filled = filledPart(progress_);
    if (!filled.isEmpty())
        painter->drawRoundedRect(filled, radius, radius);
    painter->setPen(Qt::lightGray);
    painter->setBrush(Qt::transparent);
    painter->drawRoundedRect(QRect(QPoint(), barSize), radius, radius);
}

void ZelSplashWindow::paintTexts(QPainter *painter) const
{
    using namespace ZelSplashPainting;
    painter->translate(statusOffset);
    painter->drawText(QPoint(), status_);
    painter->translate(0, barSize.height() + legalGap);
    QFont small = font();
    small.setPointSize(legalPointSize);
    painter->setFont(small);
    const QSize size = painter->fontMetrics().size(0, legalLine_);
    painter->drawText(QRect(QPoint(), size), Qt::TextDontClip, legalLine_);
}
