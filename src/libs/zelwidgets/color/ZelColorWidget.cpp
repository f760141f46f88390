#include "color/ZelColorWidget.h"

#include "ZelFocusFrame.h"
#include "color/ZelCheckerBrush.h"
#include "color/ZelColorConversion.h"
#include "color/ZelColorDialog.h"
#include "color/ZelColorWidgetAccessible.h"
#include "color/ZelColorWidgetPrivate.h"
#include "theme/ZelStyleIcon.h"

#include <ZelCore/ZelGammaPolicy>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace {

constexpr float opaqueFrom = 0.99f;
constexpr double disabledOpacity = 0.4;

} // namespace

/// Read once it is seen; few fields ever wear it.
const QIcon &ZelColorWidgetPrivate::overlay()
{
    if (!overlay_)
        overlay_ = ZelStyleIcon(QStringLiteral(":ui/icons/multicolor_overlay_label"));
    return *overlay_;
}

ZelColorWidget::ZelColorWidget(const zelsg::Color &color, const QSize &size, bool opensDialog,
                               QWidget *parent)
    : ZelFrame(parent)
    , d_(std::make_unique<ZelColorWidgetPrivate>())
{
    AccessibleColor::installFactory();
    d_->color = color.detachedClone();
    d_->active = d_->color.getActive();
    d_->opensDialog = opensDialog;
    showName();
    setFixedSize(size);
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    updateFillBrush();
    const ZelGammaPolicy *policy = ZelGammaPolicy::get();
    connect(policy, &ZelGammaPolicy::gammaCorrectChanged, this, &ZelColorWidget::updateFillBrush);
    connect(policy, &ZelGammaPolicy::gammaChanged, this, &ZelColorWidget::updateFillBrush);
}

ZelColorWidget::~ZelColorWidget()
{
    if (d_->dialog) {
        d_->dialog->disconnect(this);
        delete d_->dialog;
    }
}

void ZelColorWidget::setColor(const QColor &color, bool hasAlpha)
{
    d_->hasAlpha = hasAlpha;
    d_->alpha = hasAlpha ? color.alphaF() : 1.0f;
    setColor(zelsg::Color(fromQColor(color)));
    if (d_->dialog && hasAlpha)
        d_->dialog->setTransparency(d_->alpha);
}

zelsg::Color ZelColorWidget::getColor() const
{
    return d_->color.detachedClone();
}

ZelColor ZelColorWidget::getZelColor() const
{
    return d_->active;
}

QColor ZelColorWidget::getQColor() const
{
    QColor color = toQColor(d_->active);
    if (d_->hasAlpha)
        color.setAlphaF(d_->alpha);
    return color;
}

void ZelColorWidget::enableMakeMultiColor()
{
    d_->makeMultiColorEnabled = true;
}

void ZelColorWidget::includeSaveToLibraryButton()
{
    d_->includeSaveButton = true;
}

void ZelColorWidget::setShowModal(bool modal)
{
    d_->showModal = modal;
}

void ZelColorWidget::setTitle(const QString &title)
{
    d_->title = title;
}

void ZelColorWidget::showKelvin()
{
    d_->showKelvin = true;
}

void ZelColorWidget::setLibrary(ILibrary *library)
{
    d_->library = library;
}

void ZelColorWidget::setToolTip(const QString &text)
{
    d_->isNamedByColor = false;
    d_->label = text;
    QWidget::setToolTip(text);
}

void ZelColorWidget::showName()
{
    setToolTip(QString::fromStdString(d_->color.getColorName()));
    d_->isNamedByColor = true;
}

void ZelColorWidget::setBorderActive(bool active)
{
    setProperty("ActiveBorder", active);
    style()->unpolish(this);
    style()->polish(this);
    update();
}

void ZelColorWidget::showColorDialog()
{
    if (d_->dialog && !d_->dialog->isHidden()) {
        d_->dialog->show();
        d_->dialog->raise();
        return;
    }
    delete d_->dialog;
    d_->dialog = new ZelColorDialog(this, d_->color, d_->label, d_->library);
    d_->firstAlpha = d_->alpha;
    setupDialog();
    setBorderActive(true);
    d_->dialog->show();
}

void ZelColorWidget::setupDialog()
{
    ZelColorDialog *dialog = d_->dialog;
    dialog->showKelvinAsDefaultColorInput(d_->showKelvin);
    if (d_->includeSaveButton)
        dialog->showSaveToLibraryButton();
    if (ZelColorWidgetPrivate::areMultiColorsEnabled() && d_->makeMultiColorEnabled)
        dialog->showMakeMultiColorButton();
    if (d_->hasAlpha)
        dialog->setTransparency(d_->alpha);
    if (!d_->title.isEmpty())
        dialog->setWindowTitle(tr("%1 - %2").arg(dialog->windowTitle(), d_->title));
    dialog->setModal(d_->showModal);
    connect(dialog, &ZelColorDialog::colorChanged, this, &ZelColorWidget::setColorFromDialog);
    connect(dialog, &QDialog::accepted, this, &ZelColorWidget::editingFinished);
    connect(dialog, &ZelColorDialog::saveColorToLibrary, this, &ZelColorWidget::saveColorToLibrary);
    connect(dialog, &QDialog::rejected, this, &ZelColorWidget::restoreAlpha);
    connect(dialog, &QDialog::finished, this, &ZelColorWidget::dialogFinished);
}

/// The dialog may still be at work when it tells that it is finished.
void ZelColorWidget::dialogFinished()
{
    setBorderActive(false);
    if (d_->dialog)
        d_->dialog->deleteLater();
    d_->dialog.clear();
}

/// The dialog gives its first colour back, but not the alpha.
void ZelColorWidget::restoreAlpha()
{
    if (d_->alpha == d_->firstAlpha)
        return;
    d_->alpha = d_->firstAlpha;
    updateFillBrush();
    Q_EMIT colorUpdated(d_->color);
}

void ZelColorWidget::cancelColorDialog()
{
    if (d_->dialog)
        d_->dialog->reject();
}

/// The dialog goes on changing its own colour, so the field takes a copy.
void ZelColorWidget::setColorFromDialog(const zelsg::Color &col, bool cancelled)
{
    Q_UNUSED(cancelled)
    d_->color = col.detachedClone();
    d_->active = d_->color.getActive();
    if (d_->hasAlpha && d_->dialog)
        d_->alpha = d_->dialog->getQColor().alphaF();
    d_->picture = {};
    updateFillBrush();
    showName();
    Q_EMIT colorUpdated(d_->color);
}

void ZelColorWidget::setActiveColor(ZelColor c)
{
    zelsg::Color color = d_->color.detachedClone();
    color.setColor(c, zelsg::NameOp::Take);
    take(color);
}

void ZelColorWidget::setColor(zelsg::Color c)
{
    take(c.detachedClone());
}

/// A colour from outside; an open dialog follows.
void ZelColorWidget::take(const zelsg::Color &color)
{
    d_->color = color;
    d_->active = color.getActive();
    d_->picture = {};
    updateFillBrush();
    if (d_->isNamedByColor)
        showName();
    if (d_->dialog && !d_->dialog->isHidden())
        d_->dialog->setColorNoSignal(color);
}

void ZelColorWidget::setPixmap(QPixmap px)
{
    d_->picture = std::move(px);
    update();
}

void ZelColorWidget::updateFillBrush()
{
    QColor color = toDisplayQColor(d_->active);
    d_->fillRatio = devicePixelRatioF();
    if (!d_->hasAlpha || d_->alpha >= opaqueFrom) {
        d_->fillBrush = color;
    } else {
        color.setAlphaF(d_->alpha);
        d_->fillBrush = ZelCheckerBrush::under(color, size(), d_->fillRatio);
    }
    update();
}

void ZelColorWidget::resizeEvent(QResizeEvent *event)
{
    ZelFrame::resizeEvent(event);
    updateFillBrush();
}

void ZelColorWidget::paintEvent(QPaintEvent *event)
{
    ZelFrame::paintEvent(event);
    if (d_->fillRatio != devicePixelRatioF())
        updateFillBrush();
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setOpacity(isEnabled() ? 1.0 : disabledOpacity);
        const QRect area = contentsRect();
        if (d_->picture.isNull())
            painter.fillRect(area, d_->fillBrush);
        else
            painter.drawPixmap(area, d_->picture);
        if (d_->color.isMultiColor())
            d_->overlay().paint(&painter, area, Qt::AlignRight | Qt::AlignBottom);
    }
    if (hasFocus())
        ZelFocusFrame::paint(this);
}

void ZelColorWidget::focusInEvent(QFocusEvent *event)
{
    ZelFrame::focusInEvent(event);
    update();
}

void ZelColorWidget::focusOutEvent(QFocusEvent *event)
{
    ZelFrame::focusOutEvent(event);
    update();
}

void ZelColorWidget::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Select ||
        (isReturn && d_->opensDialog))
        activate();
    else
        ZelFrame::keyPressEvent(event);
}

void ZelColorWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        Q_EMIT clicked(d_->active);
        return;
    }
    d_->pressed = event->position().toPoint();
    activate();
}

/// A click of the left button. Who listens may end the field.
void ZelColorWidget::activate()
{
    const QPointer<ZelColorWidget> guard(this);
    Q_EMIT clicked(d_->active);
    if (guard && d_->opensDialog && !d_->showModal)
        showColorDialog();
}

void ZelColorWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    Q_UNUSED(event)
    d_->pressed.reset();
    Q_EMIT doubleClicked(d_->active);
}
