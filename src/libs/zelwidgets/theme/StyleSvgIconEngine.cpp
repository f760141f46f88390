#include "StyleSvgIconEngine.h"

#include "IconColorTheme.h"

#include <QDebug>
#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace {

QString readText(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool hasSvgSuffix(const QString &fileName)
{
    return fileName.endsWith(QLatin1String(".svg")) || fileName.endsWith(QLatin1String(".zelsvg"));
}

} // namespace

StyleSvgIconEngine::StyleSvgIconEngine(const QString &fileName)
    : fileName_(hasSvgSuffix(fileName) ? fileName : fileName + QLatin1String(".svg"))
{
    const QString text = readText(fileName_);
    if (text.isEmpty()) {
        qWarning() << "Failed to load icon file" << fileName;
        return;
    }
    svg_ = std::make_shared<const ThemedSvg>(text);
    defaultSize_ = QSvgRenderer(text.toUtf8()).defaultSize();
}

void StyleSvgIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                               QIcon::State state)
{
    if (svg_->source().isEmpty())
        return;
    if (!render(painter, targetIn(rect, mode, state), mode, state))
        painter->fillRect(rect, Qt::gray);
}

QRect StyleSvgIconEngine::targetIn(const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const QSize size = actualSize(rect.size(), mode, state);
    const QPoint offset(qRound((rect.width() - size.width()) / 2.0),
                        qRound((rect.height() - size.height()) / 2.0));
    return QRect(rect.topLeft() + offset, size);
}

bool StyleSvgIconEngine::render(QPainter *painter, const QRect &target, QIcon::Mode mode,
                                QIcon::State state) const
{
    const IconColorTheme *theme = theme_ ? theme_ : IconColorTheme::instance();
    if (!theme) {
        qWarning() << "StyleSvgIconEngine - Found no theme";
        return false;
    }
    if (svg_->source().isEmpty()) {
        qWarning() << "StyleSvgIconEngine - Empty Icon Data.";
        return false;
    }
    const QString text =
        theme->mapSvgToTheme(*svg_, modePinned_ ? QIcon::Mode(mode_) : mode,
                             statePinned_ ? QIcon::State(state_) : state, fileName_);
    // A failed rewriting has told why; the renderer would only complain of the missing document.
    if (!text.isEmpty())
        QSvgRenderer(text.toUtf8()).render(painter, target);
    return true;
}

QSize StyleSvgIconEngine::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    Q_UNUSED(mode)
    Q_UNUSED(state)
    if (svg_->source().isEmpty() || defaultSize_.isEmpty())
        return size;
    const double scale =
        qMin(size.width() / defaultSize_.width(), size.height() / defaultSize_.height());
    return (defaultSize_ * scale).toSize();
}

QPixmap StyleSvgIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(size);
    if (pixmap.isNull())
        return pixmap;
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
}

QIconEngine *StyleSvgIconEngine::clone() const
{
    return new StyleSvgIconEngine(*this);
}

QString StyleSvgIconEngine::iconName()
{
    return fileName_;
}

void StyleSvgIconEngine::virtual_hook(int id, void *data)
{
    if (id == QIconEngine::IsNullHook)
        *static_cast<bool *>(data) = svg_->source().isNull();
    else
        QIconEngine::virtual_hook(id, data);
}

void StyleSvgIconEngine::pin(QIcon::Mode mode, QIcon::State state)
{
    modePinned_ = true;
    mode_ = mode;
    statePinned_ = true;
    state_ = state;
}
